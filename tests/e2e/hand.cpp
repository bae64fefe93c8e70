#include "hand.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace vexal {

void Hand::does(const QStringList &arguments) const
{
    QProcess xdotool;
    xdotool.setProcessEnvironment(m_desk.environment());
    xdotool.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    xdotool.start(u"xdotool"_s, arguments);
    if (!xdotool.waitForFinished() || xdotool.exitCode() != 0)
        qWarning("The hand could not do this: %s", qPrintable(arguments.join(u' ')));
}

void Hand::pointAt(QPoint place) const
{
    does({u"mousemove"_s, QString::number(place.x()), QString::number(place.y())});
}

void Hand::click(QPoint place, const QString &held) const
{
    pointAt(place);
    const QStringList click{u"click"_s, u"1"_s};
    does(held.isEmpty() ? click : QStringList{u"keydown"_s, held} + click + QStringList{u"keyup"_s, held});
}

void Hand::turnWheel(int notches, const QString &held) const
{
    does({u"keydown"_s, held});
    does({u"click"_s, u"--repeat"_s, QString::number(notches), u"4"_s});
    does({u"keyup"_s, held});
}

void Hand::press(const QStringList &keys) const
{
    does(QStringList{u"key"_s} + keys);
}

void Hand::write(const QString &text) const
{
    does({u"type"_s, u"--"_s, text});
}

} // namespace vexal
