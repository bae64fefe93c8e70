#pragma once

#include <QPainterPath>
#include <QString>
#include <QStringList>

#include <optional>

namespace vexal {
/// A symbol's outline in its box of 56 by 56 units; what is drawn is seen through the 50 units in its middle.
struct SymbolShape
{
    static constexpr qreal kBox = 56;  ///< Side of the box that the outline is given in.
    static constexpr qreal kSeen = 50; ///< How much of that side a symbol of a given size shows.
    QPainterPath path;
    qreal stroke = 0; ///< 0: the path is filled. Else how wide it is drawn, with round ends.
};

/// The symbol of that name ("checkmark.circle.fill"), or nothing if there is none.
std::optional<SymbolShape> symbolShape(const QString &name);

/// The names of all symbols, in alphabetical order.
QStringList symbolNames();

/// The path that the text describes with absolute M, L, C and Z, or nothing where it says anything else.
std::optional<QPainterPath> parsedPath(QStringView text);
} // namespace vexal
