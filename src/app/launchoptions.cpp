#include "launchoptions.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

// A number and nothing beside it: toDouble alone would forgive blanks and read "inf" and "nan".
std::optional<double> number(const QString &text)
{
    bool reads = false;
    const double value = text.toDouble(&reads);
    const bool blanks = std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isSpace(); });
    if (!reads || blanks || !std::isfinite(value))
        return std::nullopt;
    return value;
}

} // namespace

QStringList commandLine(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

std::optional<QString> valueOf(QStringView flag, const QStringList &arguments)
{
    const auto found = std::find(arguments.cbegin(), arguments.cend(), flag);
    if (found == arguments.cend() || std::next(found) == arguments.cend())
        return std::nullopt;
    return *std::next(found);
}

QList<QUrl> urlsIn(const QStringList &arguments)
{
    QList<QUrl> urls;
    for (const QString &argument : arguments) {
        if (const QUrl url(argument, QUrl::StrictMode); url.scheme() == "vexal"_L1)
            urls.append(url);
    }
    return urls;
}

std::optional<QSizeF> sizeFromText(const QString &text)
{
    const QStringList pieces = text.split(u'x', Qt::SkipEmptyParts);
    if (pieces.size() != 2)
        return std::nullopt;
    const auto width = number(pieces[0]);
    const auto height = number(pieces[1]);
    if (!width || !height)
        return std::nullopt;
    return QSizeF(*width, *height);
}

std::optional<LaunchOptions> launchOptions(const QStringList &arguments)
{
    const auto shot = valueOf(u"--shot", arguments);
    if (!shot)
        return std::nullopt;
    LaunchOptions options;
    options.shot = *shot;
    options.dark = arguments.contains("--dark"_L1);
    options.signin = arguments.contains("--signin"_L1);
    options.sample = valueOf(u"--sample", arguments);
    if (const auto size = valueOf(u"--size", arguments))
        options.size = sizeFromText(*size);
    options.multi = arguments.contains("--multi"_L1);
    options.focus = arguments.contains("--focus"_L1);
    options.activity = arguments.contains("--activity"_L1);
    options.pin = arguments.contains("--pin"_L1);
    return options;
}

} // namespace vexal
