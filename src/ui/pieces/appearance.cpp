#include "appearance.h"

#include "typeface.h"

#include <QPointF>
#include <QQmlEngine>

namespace vexal {
Appearance::Appearance(QQmlEngine &engine)
    : QObject(&engine)
{
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}

Appearance &Appearance::of(QQmlEngine &engine)
{
    auto *existing = engine.findChild<Appearance *>({}, Qt::FindDirectChildrenOnly);
    return existing ? *existing : *new Appearance(engine);
}

void Appearance::setDark(bool dark)
{
    if (m_dark == dark)
        return;
    m_dark = dark;
    Q_EMIT darkChanged();
}

void Appearance::setContrast(bool contrast)
{
    if (m_contrast == contrast)
        return;
    m_contrast = contrast;
    Q_EMIT contrastChanged();
}

void Appearance::setResting(bool resting)
{
    if (m_resting == resting)
        return;
    m_resting = resting;
    Q_EMIT restingChanged();
}

void Appearance::setSeen(bool seen)
{
    if (m_seen == seen)
        return;
    m_seen = seen;
    Q_EMIT seenChanged();
}

void Appearance::setReducedMotion(bool reduced)
{
    if (m_reducedMotion == reduced)
        return;
    m_reducedMotion = reduced;
    Q_EMIT reducedMotionChanged();
}

QEasingCurve Appearance::curve()
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(QPointF(0.2, 0.8), QPointF(0.2, 1.0), QPointF(1.0, 1.0));
    return curve;
}

QColor Appearance::faded(QColor colour, qreal opacity)
{
    colour.setAlphaF(float(colour.alphaF() * opacity));
    return colour;
}

QFont Appearance::face(qreal size, int weight, qreal tracking)
{
    return vexal::face(size, static_cast<QFont::Weight>(weight), tracking);
}
} // namespace vexal
