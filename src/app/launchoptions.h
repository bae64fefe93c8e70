#pragma once

#include <QSizeF>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace vexal {

/// What the command line asks of a staging run: a photograph of the window in a chosen state. Without "--shot" the
/// other flags say nothing, and a normal start is not affected.
struct LaunchOptions
{
    QString shot; ///< Where the photograph goes.
    bool dark = false;
    bool signin = false;           ///< Photograph the sign-in screen; load no sample.
    std::optional<QString> sample; ///< Folder of the sample board.
    std::optional<QSizeF> size;    ///< Content size of the window in points.
    bool multi = false;            ///< Two files selected.
    bool focus = false;            ///< A finding of high severity focused.
    bool activity = false;         ///< The activity list open.
    bool pin = false;              ///< A pin placed on the page.
};

/// The words after the program's name, as they were given: before Qt takes its own out.
QStringList commandLine(int argc, char **argv);

/// The argument after the first occurrence of the flag, compared as a whole; nothing when the flag stands last or
/// nowhere.
std::optional<QString> valueOf(QStringView flag, const QStringList &arguments);

/// Those of the arguments that are URLs of the program's own scheme, as the desktop hands them over.
QList<QUrl> urlsIn(const QStringList &arguments);

/// Reads the flags, compared as whole arguments. A flag with a value takes the argument after its first occurrence; a
/// flag that stands last has none and counts as not given. Nothing without "--shot".
std::optional<LaunchOptions> launchOptions(const QStringList &arguments);

/// Two numbers around an "x", such as "1440x900". Nothing for any other text.
std::optional<QSizeF> sizeFromText(const QString &text);

} // namespace vexal
