#pragma once

#include <QColor>
#include <QPainterPath>

namespace vexal::sample {

/// The cuts of type that the house and its suppliers set in.
enum class Face {
    Schoolbook,
    SchoolbookItalic,
    SchoolbookBold,
    Palladio,
    PalladioItalic,
    PalladioBold,
    Bookman,
    BookmanItalic,
    BookmanDemi,
    BookmanDemiItalic,
    Gothic,
    GothicDemi,
    Chancery,
    Roman,
    RomanItalic,
    Sans,
    SansMedium,
    SansSemibold,
};

/// How words look: the cut, the size in pixels of the page, the ink, and the space added between letters in thousandths
/// of the size.
struct Type
{
    Face face = Face::Schoolbook;
    double size = 40;
    QColor colour = Qt::black;
    double tracking = 0;
};

/// The outlines of the words on a baseline that starts at the origin. They come from the font's file alone, unhinted:
/// nothing that a machine says about fonts changes them.
QPainterPath words(const QString &text, const Type &type);

/// How far the words reach along the baseline, in pixels.
double advance(const QString &text, const Type &type);

/// The words bent round a circle at the origin, their middle at the top, or at the foot and readable from below.
QPainterPath wordsRound(const QString &text, const Type &type, double radius, bool foot = false);

} // namespace vexal::sample
