#include "status.h"

using namespace Qt::StringLiterals;

namespace vexal {
StatusLook statusLook(QStringView status)
{
    if (status == u"new")
        return {u"New"_s, Tone::Accent};
    if (status == u"in_review")
        return {u"In review"_s, Tone::LookAt};
    return {u"Reviewed"_s, Tone::Reviewed};
}
} // namespace vexal
