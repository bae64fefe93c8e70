#include "facts.h"

#include "derived.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

bool turnsTheLine(QChar sign)
{
    switch (sign.direction()) {
    case QChar::DirR:
    case QChar::DirAL:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirLRO:
    case QChar::DirRLI:
        return true;
    default:
        return false;
    }
}

} // namespace

QString isolated(const QString &text)
{
    constexpr char16_t firstStrongIsolate = 0x2068;
    constexpr char16_t popIsolate = 0x2069;
    if (std::none_of(text.cbegin(), text.cend(), turnsTheLine))
        return text;
    return QChar(firstStrongIsolate) + text + QChar(popIsolate);
}

QString joinedFacts(const QStringList &facts)
{
    QStringList saying;
    for (const QString &fact : facts) {
        if (const QString plain = shownLine(fact); !plain.isEmpty())
            saying.append(isolated(plain));
    }
    return saying.join(u" · "_s);
}

QString counted(qint64 number, const QString &noun)
{
    return QString::number(number) + u' ' + noun + (number == 1 ? QString() : u"s"_s);
}

} // namespace vexal
