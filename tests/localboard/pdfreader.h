#pragma once

#include <QImage>
#include <QList>

/// What another program sees in a PDF of ours.
namespace vexal {

/// Its text, line breaks as blanks. Empty when it does not open.
QString textOfPdf(const QByteArray &pdf);

/// Its sheets as pictures, 40 pixels an inch. None when it does not open.
QList<QImage> sheetsOfPdf(const QByteArray &pdf);

/// Whether \a color is to be seen on \a sheet.
bool shows(const QImage &sheet, const QColor &color);

} // namespace vexal
