#include "facts.h"

using namespace Qt::StringLiterals;

namespace vexal {

QString joinedFacts(const QStringList &facts)
{
    QStringList saying;
    for (const QString &fact : facts) {
        if (!fact.isEmpty())
            saying.append(fact);
    }
    return saying.join(u" · "_s);
}

QString counted(qint64 number, const QString &noun)
{
    return QString::number(number) + u' ' + noun + (number == 1 ? QString() : u"s"_s);
}

} // namespace vexal
