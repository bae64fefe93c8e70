#pragma once

#include <QByteArray>

#include <optional>

namespace vexal {

/// The bytes that the whole gzip stream `packed` stands for. Nothing when it is cut short, damaged, or stands for more
/// than `limit` bytes.
std::optional<QByteArray> inflated(const QByteArray &packed, qint64 limit);

} // namespace vexal
