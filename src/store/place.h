#pragma once

#include "board.h"

#include <algorithm>

namespace vexal {

/// Where among the details of files one finding or note stands.
struct Place
{
    QString fileId;
    qsizetype row = 0;
};

/// The place of the finding (`list` is &FileDetail::findings) or note (&FileDetail::comments) of that id: in the file
/// `first`, else in any other.
template <typename Item>
std::optional<Place> placeOf(const QString &id, QList<Item> FileDetail::*list, const QMap<QString, FileDetail> &details,
                             const QString &first)
{
    const auto placeIn = [&](auto detail) -> std::optional<Place> {
        const QList<Item> &items = (*detail).*list;
        const auto item = std::find_if(items.cbegin(), items.cend(), [&](const Item &known) { return known.id == id; });
        return item == items.cend() ? std::nullopt : std::optional(Place{detail.key(), item - items.cbegin()});
    };
    const auto looked = details.constFind(first);
    std::optional<Place> place = looked == details.cend() ? std::nullopt : placeIn(looked);
    for (auto detail = details.cbegin(); !place && detail != details.cend(); ++detail)
        place = placeIn(detail);
    return place;
}

} // namespace vexal
