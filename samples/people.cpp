#include "people.h"

using namespace Qt::StringLiterals;

namespace vexal::sample::who {

QString lin()
{
    return u"lin@lanternhouse.example"_s;
}

QString mira()
{
    return u"mira@lanternhouse.example"_s;
}

QString teo()
{
    return u"teo@lanternhouse.example"_s;
}

QString anselm()
{
    return u"anselm@lanternhouse.example"_s;
}

} // namespace vexal::sample::who
