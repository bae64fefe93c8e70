#pragma once

#include "plan.h"

#include <optional>

namespace vexal::sample {

/// Paints and writes every picture of the plans into the folder, and answers what a server tells of them, one detail a
/// plan. Nothing when a picture cannot be written; standard error then names it.
std::optional<QList<FileDetail>> press(const QList<FilePlan> &plans, const QString &folder);

} // namespace vexal::sample
