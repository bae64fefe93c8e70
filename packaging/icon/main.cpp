#include "appicon.h"

#include <QDir>
#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int sides[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

/// The file for icons of that size in an icon theme's folder, which is made if need be.
QString place(const QString &theme, const QString &size, const QString &file)
{
    const QString folder = theme + u'/' + size + u"/apps/"_s;
    QDir().mkpath(folder);
    return folder + file;
}

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool drawAll(const QString &theme, const QString &name)
{
    bool written = write(place(theme, u"scalable"_s, name + u".svg"_s), vexal::appIconSvg());
    for (const int side : sides) {
        const QString size = u"%1x%1"_s.arg(side);
        written = vexal::appIcon(side).save(place(theme, size, name + u".png"_s)) && written;
    }
    return written;
}

} // namespace

/// draw-icon THEME-FOLDER NAME: leaves the program's icon there in every size.
int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("draw-icon THEME-FOLDER NAME\n", stderr);
        return 2;
    }
    if (drawAll(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2])))
        return 0;
    std::fputs("The icons could not be written.\n", stderr);
    return 1;
}
