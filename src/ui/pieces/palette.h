#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What a colour stands for, apart from any state. Every colour on the screen is asked for by one of these or by a
/// tone.
namespace vexal::Role {
Q_NAMESPACE
QML_ELEMENT

enum Value {
    // Writing.
    Text,      ///< What is read first.
    Secondary, ///< What is read second.
    Tertiary,  ///< Placeholders, chevrons, the side of a comparison that is ours.
    Faint,     ///< Decoration and what is disabled; too weak to be read.
    Chosen,    ///< The second line of a chosen row.
    // Grounds.
    Backdrop, ///< The window itself: header, inspector, strip.
    Sidebar,
    Canvas, ///< The desk under the pages, one shade under the window.
    Card,   ///< Cards, text fields, popovers.
    Soft,   ///< Notices inside a column.
    // Lines.
    Line,  ///< An opaque rule.
    Hair,  ///< Rules and outlines.
    Hair2, ///< The outline of a check box, a dashed frame.
    // What lies over a ground.
    Hover,   ///< A row or plain button under the pointer.
    Pressed, ///< The same held down, or open.
    Track,   ///< The groove of a segmented control, the ground of a tool button.
    Segment, ///< The chosen cell in that groove.
    // Toasts and hints: dark in both appearances.
    Toast,
    ToastRing,
    ToastText,
    ToastAction,
    // Shadows.
    Shadow,       ///< Under what floats.
    PageShadow,   ///< Under a page on the canvas.
    SegmentShade, ///< Under the chosen cell.
    // The same in both appearances.
    OnSolid,    ///< Writing on a solid tone.
    Expected,   ///< The box of an expected change: it lies on paper, which is never dark.
    Paper,      ///< Paper, the knob of a slider, the ground of the sign-in button.
    OnPaper,    ///< Writing on paper.
    LastOfRole, ///< How many there are.
};
Q_ENUM_NS(Value)
} // namespace vexal::Role

/// The colour that a state wears. One tone means one state on every screen.
namespace vexal::Tone {
Q_NAMESPACE
QML_ELEMENT

enum Value {
    Accent,   ///< The accent; also a new file and the supplier's side.
    Reviewed, ///< Reviewed, fine, live, done.
    Issue,    ///< A real issue, a failure, high severity.
    LookAt,   ///< In review, needs a look, medium severity.
    Neutral,  ///< No state.
    LastOfTone,
};
Q_ENUM_NS(Value)
} // namespace vexal::Tone

namespace vexal {
/// A tone's colour with its two companions: one colour cannot be both text on its own wash and ground for white text.
struct Tint
{
    Q_GADGET
    QML_VALUE_TYPE(tint)
    Q_PROPERTY(QColor plain MEMBER plain)
    Q_PROPERTY(QColor ink MEMBER ink)
    Q_PROPERTY(QColor solid MEMBER solid)
public:
    QColor plain; ///< Dots, boxes, outlines, symbols of 11 points and more; washes, at a low opacity.
    QColor ink;   ///< Text and small symbols on the tone's own wash.
    QColor solid; ///< A fill under white text.
    bool operator==(const Tint &) const = default;
};

/// The colour of a role in the light or the dark appearance; it may be translucent.
QColor colour(Role::Value role, bool dark);

/// The colours of a tone in the light or the dark appearance.
Tint tint(Tone::Value tone, bool dark);

/// What the eye sees where `top`, which may be translucent, lies on the opaque `ground`.
QColor laidOver(const QColor &top, const QColor &ground);

/// The contrast of two opaque colours, 1 (none) to 21 (black on white), as the web's accessibility guidelines define
/// it.
qreal contrast(const QColor &a, const QColor &b);
} // namespace vexal
