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

/// The place of the finding (`list` is &FileDetail::findings) or note (&FileDetail::comments) of that id.
template <typename Item>
std::optional<Place> placeOf(const QString &id, QList<Item> FileDetail::*list, const QMap<QString, FileDetail> &details)
{
    for (auto detail = details.cbegin(); detail != details.cend(); ++detail) {
        const QList<Item> &items = (*detail).*list;
        const auto item = std::find_if(items.cbegin(), items.cend(), [&](const Item &known) { return known.id == id; });
        if (item != items.cend())
            return Place{detail.key(), item - items.cbegin()};
    }
    return {};
}

} // namespace vexal
