#pragma once

#include "palette.h"

#include <QEasingCurve>
#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace vexal {
/// How the window looks at this moment, as the application decides it; screens read it through `Theme`. One an engine.
class Appearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY darkChanged)
    Q_PROPERTY(bool resting READ resting WRITE setResting NOTIFY restingChanged)
    Q_PROPERTY(bool seen READ seen WRITE setSeen NOTIFY seenChanged)
    Q_PROPERTY(QEasingCurve curve READ curve CONSTANT)
    Q_PROPERTY(bool contrast READ contrast WRITE setContrast NOTIFY contrastChanged)
    Q_PROPERTY(bool reducedMotion READ reducedMotion WRITE setReducedMotion NOTIFY reducedMotionChanged)

public:
    /// The one that the windows of this engine follow; it lives as long as the engine.
    static Appearance &of(QQmlEngine &engine);

    /// The same, for the engine's own use.
    static Appearance *create(QQmlEngine *engine, QJSEngine *) { return &of(*engine); }

    /// The dark appearance.
    bool dark() const { return m_dark; }
    void setDark(bool dark);

    /// The person asked for more contrast: lines and writing of second rank are stronger.
    bool contrast() const { return m_contrast; }
    void setContrast(bool contrast);

    /// Time stands still: nothing moves by itself and every change is at its end at once, so that two photographs of
    /// the same board are the same bytes.
    bool resting() const { return m_resting; }
    void setResting(bool resting);

    /// The window can be seen; what is not seen does not move.
    bool seen() const { return m_seen; }
    void setSeen(bool seen);

    /// The person asked for less motion: things fade, nothing travels or pulses.
    bool reducedMotion() const { return m_reducedMotion; }
    void setReducedMotion(bool reduced);

    /// How the standard animation gets from its start to its end.
    static QEasingCurve curve();

    Q_INVOKABLE static QColor colour(vexal::Role::Value role, bool dark) { return vexal::colour(role, dark); }
    Q_INVOKABLE static vexal::Tint tint(vexal::Tone::Value tone, bool dark) { return vexal::tint(tone, dark); }

    /// The colour at that much of its opacity. What is of one colour throughout takes it so, and not as an item's
    /// opacity: shapes of different opacities are never drawn together, and a page may have hundreds.
    Q_INVOKABLE static QColor faded(QColor colour, qreal opacity);

    /// The window's typeface at a size in points of the screen, rounded; tracking is in points too.
    Q_INVOKABLE static QFont face(qreal size, int weight, qreal tracking);

Q_SIGNALS:
    void darkChanged();
    void contrastChanged();
    void restingChanged();
    void seenChanged();
    void reducedMotionChanged();

private:
    // Not default-constructible: else the engine would make one of its own instead of asking create().
    explicit Appearance(QQmlEngine &engine);

    bool m_dark = false;
    bool m_contrast = false;
    bool m_resting = false;
    bool m_seen = true;
    bool m_reducedMotion = false;
};
} // namespace vexal
