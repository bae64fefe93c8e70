#include "pdfreader.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cmath>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

/// Runs \a program on the PDF in \a folder; what it prints.
QByteArray run(const QTemporaryDir &folder, const QByteArray &pdf, const QString &program, const QStringList &arguments)
{
    QFile file(folder.filePath(u"in.pdf"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size())
        return {};
    file.close();
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.start(program, arguments);
    return process.waitForFinished() && process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

} // namespace

QString textOfPdf(const QByteArray &pdf)
{
    const QTemporaryDir folder;
    return QString::fromUtf8(run(folder, pdf, u"pdftotext"_s, {u"in.pdf"_s, u"-"_s})).simplified();
}

QList<QImage> sheetsOfPdf(const QByteArray &pdf)
{
    const QTemporaryDir folder;
    run(folder, pdf, u"pdftoppm"_s, {u"-r"_s, u"40"_s, u"-png"_s, u"in.pdf"_s, u"sheet"_s});
    QList<QImage> sheets;
    for (const QString &name : QDir(folder.path()).entryList({u"sheet*.png"_s}, QDir::Files, QDir::Name))
        sheets.append(QImage(folder.filePath(name)));
    return sheets;
}

bool shows(const QImage &sheet, const QColor &color)
{
    const auto isNear = [&](const QColor &pixel) {
        return std::abs(pixel.red() - color.red()) + std::abs(pixel.green() - color.green()) +
                   std::abs(pixel.blue() - color.blue()) <
               30;
    };
    for (int y = 0; y < sheet.height(); ++y) {
        for (int x = 0; x < sheet.width(); ++x) {
            if (isNear(sheet.pixelColor(x, y)))
                return true;
        }
    }
    return false;
}

} // namespace vexal
