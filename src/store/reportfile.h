#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace vexal {

/// What the file of a report is called, without ".pdf": its title with "-" for what no file name may hold, and no
/// longer than a file system takes. "Vexal report" when it has no title.
QString reportName(const std::optional<QString> &title);

/// Keeps the report's bytes in the folder under its name or, where that is taken, the name with a number behind it
/// ("Proof 2.pdf"). The file appears whole or not at all, and never in place of another, however many are saved at
/// once. The path; none when the disk does not take it. May be called in any thread.
std::optional<QString> saveReport(const QString &folder, const std::optional<QString> &title, const QByteArray &bytes);

} // namespace vexal
