#pragma once

#include <QUrl>

#include <optional>

namespace vexal {

/// The URL that `text` is, when it is one by the letter of the rules and not a mere reference: it has a scheme.
std::optional<QUrl> parsedUrl(const QString &text);

/// `base` with `path` appended as path components, every character of which stands for itself ("a?b#c%20" is one
/// component and no query). Nothing when a component is "." or "..", which would lead elsewhere. Query and fragment of
/// the base go.
std::optional<QUrl> appended(const QUrl &base, const QString &path);

/// The host of the URL is this computer.
bool isLoopback(const QUrl &url);

} // namespace vexal
