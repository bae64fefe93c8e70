#include "notices.h"

#include "deployment.h"

using namespace Qt::StringLiterals;

namespace vexal {

QList<Notice> notices()
{
    return {
        {u"Inter"_s, u"SIL Open Font License 1.1"_s, u"2016–2022 The Inter Project Authors"_s},
        {u"Framework7 Icons"_s, u"MIT License"_s, u"2016 Vladimir Kharlampidi"_s},
        {u"Qt"_s, u"GNU LGPL 3"_s, u"2016–2022 The Qt Company Ltd. and contributors"_s},
        {u"libcurl"_s, u"curl License"_s, u"1997–2022 Daniel Stenberg and contributors"_s},
        {u"simdjson"_s, u"Apache License 2.0"_s, u"2019–2020 Daniel Lemire and contributors"_s},
        {u"QtKeychain"_s, u"BSD 2-Clause License"_s, u"2011–2015 Frank Osterfeld and contributors"_s},
        {u"libsecret"_s, u"GNU LGPL 2.1 or later"_s, u"Collabora Ltd., Red Hat Inc. and contributors"_s},
        {u"zlib"_s, u"zlib License"_s, u"1995–2013 Jean-loup Gailly and Mark Adler"_s},
    };
}

QString Imprint::version()
{
    return u"Version %1 (build %2)"_s.arg(deployment::version).arg(deployment::build);
}

} // namespace vexal
