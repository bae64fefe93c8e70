#include "found.h"

#include <QtMath>

namespace vexal::sample {

namespace {

/// A box round the place, as fractions of the page: rounded outwards to the ten-thousandth.
Box boxOf(const QRectF &place, const QSizeF &page)
{
    const auto down = [](double value) { return qFloor(value * 10000) / 10000.0; };
    const auto up = [](double value) { return qCeil(value * 10000) / 10000.0; };
    const double left = down(place.left() / page.width());
    const double top = down(place.top() / page.height());
    const auto length = [](double from, double to) { return qRound((to - from) * 10000) / 10000.0; };
    return {left, top, length(left, up(place.right() / page.width())), length(top, up(place.bottom() / page.height()))};
}

QRectF placeOf(const Print &print, const QStringList &names)
{
    QRectF place;
    for (const QString &name : names)
        place |= print.places.value(name);
    return place;
}

/// What changed in its place takes the room of both its forms. What is elsewhere on the other page has only its own;
/// what is missing from this one, only the other's.
QRectF together(const QRectF &here, const QRectF &there)
{
    return here.isEmpty() || here.intersects(there) ? here | there : here;
}

std::optional<QString> unlessEmpty(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

/// Where a change lies on the proof and on our page.
void locate(Finding &finding, const Change &change, const Print &proof, const Print &ours)
{
    if (change.on.isEmpty())
        return;
    const QStringList named = change.ours.isEmpty() ? change.on.first(1) : change.ours;
    const QRectF here = placeOf(proof, change.on.first(1));
    const QRectF there = placeOf(ours, named);
    finding.box = boxOf(together(here, there), proof.image.size());
    finding.ref_box = boxOf(together(there, here), ours.image.size());
    if (finding.box->at(2) <= 0 || finding.box->at(3) <= 0)
        qFatal("“%ls” lies nowhere", qUtf16Printable(change.title));
    QList<Box> further;
    for (const QString &name : change.on.sliced(1))
        further.append(boxOf(together(proof.places.value(name), ours.places.value(name)), proof.image.size()));
    if (!further.isEmpty())
        finding.boxes = further;
}

} // namespace

Finding found(const Change &change, const QString &against, const Print &proof, const Print &ours)
{
    Finding finding;
    finding.against = against;
    finding.kind = change.kind;
    finding.severity = change.severity;
    finding.title = change.title;
    finding.detail = unlessEmpty(change.detail);
    finding.before = unlessEmpty(change.before);
    finding.after = unlessEmpty(change.after);
    finding.state = change.verdict.state;
    if (!change.verdict.by.isEmpty()) {
        finding.state_by = change.verdict.by;
        finding.state_at = change.verdict.at;
    }
    locate(finding, change, proof, ours);
    return finding;
}

} // namespace vexal::sample
