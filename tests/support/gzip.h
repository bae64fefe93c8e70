#pragma once

#include <QByteArray>

/// The bytes in the gzip format.
QByteArray gzip(const QByteArray &bytes);
