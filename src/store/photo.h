#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace vexal {

/// Names of the files that a profile photo can be made of, as patterns: JPEG, PNG and, where this system reads it,
/// HEIC.
QStringList photoPatterns();

/// The picture in the file as a profile photo: its middle square, upright, as a JPEG of 512 by 512 pixels that tells
/// nothing else of where it came from. None when the file is no picture of one of these kinds. May be called in any
/// thread.
std::optional<QByteArray> profilePhoto(const QString &path);

} // namespace vexal
