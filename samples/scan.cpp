#include "scan.h"

namespace vexal::sample {

namespace {

QTransform askew(const QSizeF &page)
{
    QTransform turn;
    turn.translate(page.width() / 2 + 3, page.height() / 2 + 3);
    turn.rotate(0.4);
    turn.translate(-page.width() / 2, -page.height() / 2);
    return turn;
}

int grainy(int channel, int grain)
{
    return qBound(0, channel * 249 / 255 + grain, 255); // the lamp is a little weak
}

void addGrain(QImage &page, quint64 seed)
{
    quint32 noise = static_cast<quint32>(seed) | 1U;
    for (int y = 0; y < page.height(); ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(page.scanLine(y));
        for (int x = 0; x < page.width(); ++x) {
            noise ^= noise << 13U;
            noise ^= noise >> 17U;
            noise ^= noise << 5U;
            const int grain = static_cast<int>(noise % 11U) - 5;
            line[x] = qRgb(grainy(qRed(line[x]), grain), grainy(qGreen(line[x]), grain), grainy(qBlue(line[x]), grain));
        }
    }
}

} // namespace

Print scanned(const Print &page, quint64 seed)
{
    const QTransform turn = askew(page.image.size());
    Print scan{QImage(page.image.size(), QImage::Format_RGB32), page.places};
    scan.image.fill(ink(0xE9E6DF)); // the lid of the scanner
    {
        QPainter painter(&scan.image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.setTransform(turn);
        painter.drawImage(0, 0, page.image);
    }
    addGrain(scan.image, seed);
    for (QRectF &place : scan.places)
        place = turn.mapRect(place) & QRectF(scan.image.rect());
    return scan;
}

} // namespace vexal::sample
