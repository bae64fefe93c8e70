#pragma once

#include "jobs.h"

/// What a sync says of itself. The proof is what it brings; nothing when the inbox is empty.
namespace vexal::local {

/// The steps that a sync goes through.
QList<Step> syncSteps(const std::optional<FileDetail> &proof);

/// What it did, for its result.
Summary syncSummary(const std::optional<FileDetail> &proof);

/// How the activity log says that it ended.
QString syncedText(const std::optional<FileDetail> &proof);

/// How the activity log says that \a file came in.
QString newFileText(const FileItem &file);

} // namespace vexal::local
