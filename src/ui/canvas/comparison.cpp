#include "comparison.h"

#include "compare.h"
#include "derived.h"
#include "pinnumbers.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

QSizeF pixelsOf(const std::optional<QList<double>> &px)
{
    return px && px->size() == 2 ? QSizeF(px->at(0), px->at(1)) : QSizeF();
}

PaneView paneOfOurs(const RefPage &reference, const QString &role, qreal supplierAspect)
{
    return {reference.img.value_or(QString()), aspect(reference, supplierAspect), roleLabel(role),
            pixelsOf(reference.px)};
}

PaneView paneOfSupplier(const FileItem &file, const Page &page)
{
    return {page.img.value_or(QString()), aspect(page), supplierPaneLabel(file, page), pixelsOf(page.px)};
}

PaneView paneOfRole(const Page &page, const QString &role)
{
    const qreal supplierAspect = aspect(page);
    if (!page.refs || !page.refs->contains(role))
        return {{}, supplierAspect, roleLabel(role), {}};
    return paneOfOurs(page.refs->value(role), role, supplierAspect);
}

Tone::Value toneOf(const Finding &finding)
{
    if (finding.state == "fine"_L1 || finding.kind == "pass"_L1)
        return Tone::Reviewed;
    return finding.kind == "expected"_L1 ? Tone::Neutral : Tone::Accent;
}

// What of a box lies on the page; of one beside it, the place of the edge that is nearest.
QRectF onPage(const Box &box)
{
    const auto held = [](double fraction) { return std::clamp<qreal>(fraction, 0, 1); };
    const QPointF from(held(box[0]), held(box[1]));
    return {from, QSizeF(std::max<qreal>(0, held(box[0] + box[2]) - from.x()),
                         std::max<qreal>(0, held(box[1] + box[3]) - from.y()))};
}

QList<QRectF> rectanglesOf(const QList<Box> &boxes)
{
    QList<QRectF> rectangles;
    for (const Box &box : boxes) {
        if (box.size() == 4)
            rectangles.append(onPage(box));
    }
    return rectangles;
}

QList<QRectF> boxesOf(const Finding &finding)
{
    QList<Box> boxes = finding.boxes.value_or(QList<Box>{});
    if (finding.box)
        boxes.prepend(*finding.box);
    return rectanglesOf(boxes);
}

void addAhead(QList<PageAhead> &ahead, const Page &page, qint64 index, const QString &against, bool withSupplier)
{
    const QStringList roles = rolesOffered(page);
    const QString chosen = roleChosen(roles, against);
    const qreal frame = aspect(page);
    const QString place = QString::number(index) + u'/';
    if (withSupplier)
        ahead.append({place, page.img.value_or(QString()), paneOfRole(page, chosen).key, frame, frame, false});
    for (const QString &role : roles) {
        const PaneView ours = paneOfRole(page, role);
        if (withSupplier || role != chosen)
            ahead.append({place + role, ours.key, {}, ours.aspect, frame, true});
    }
}

} // namespace

Comparison comparisonOf(const FileItem &file, qint64 index, const QString &against)
{
    Comparison comparison;
    const QList<Page> pages = file.pages.value_or(QList<Page>{});
    comparison.count = int(pages.size());
    if (pages.isEmpty())
        return comparison;

    const Page &page = pages[index];
    comparison.index = int(index);
    comparison.pageText = u'p' + pageLabel(page);
    comparison.counterText = QString::number(index + 1) + u" of "_s + QString::number(pages.size());
    comparison.roles = rolesOffered(page);
    for (const QString &role : std::as_const(comparison.roles))
        comparison.roleLabels.append(roleLabel(role));
    comparison.role = roleChosen(comparison.roles, against);
    comparison.supplier = paneOfSupplier(file, page);
    comparison.ours = paneOfRole(page, comparison.role);
    comparison.overlayLabel = overlayPaneLabel(file, comparison.role);
    comparison.matched = comparison.roles.contains(comparison.role);
    comparison.missing = missingHeading(comparison.role);
    return comparison;
}

QList<BoxMark> boxMarks(const FileDetail &detail, qint64 index, const QString &role, const QString &focus)
{
    QList<BoxMark> marks;
    for (const Finding &finding : detail.findings) {
        if (!drawnOn(finding, index, role))
            continue;
        const QList<QRectF> boxes = boxesOf(finding);
        if (!boxes.isEmpty())
            marks.append({finding.id, shownText(finding.title), boxes, toneOf(finding), finding.id == focus});
    }
    return marks;
}

QList<PageAhead> pagesAhead(const FileItem &file, qint64 index, const QString &against)
{
    const QList<Page> pages = file.pages.value_or(QList<Page>{});
    QList<PageAhead> ahead;
    for (const qint64 place : {index, index + 1, index - 1}) {
        if (place >= 0 && place < pages.size())
            addAhead(ahead, pages[place], place, against, place != index);
    }
    ahead.removeIf([](const PageAhead &page) { return page.picture.isEmpty(); });
    return ahead;
}

qreal BoxMark::layer() const
{
    qreal area = 0;
    for (const QRectF &box : boxes)
        area = std::max(area, box.width() * box.height());
    return -std::min<qreal>(area, 1);
}

QList<PinMark> pinMarks(const QList<Note> &notes, qint64 page)
{
    const QHash<QString, int> numbers = pinNumbers(notes, page);
    QList<PinMark> pins;
    for (const Note &note : notes) {
        if (note.page == page && note.x && note.y && note.resolved.value_or(0) == 0)
            pins.append({note.id,
                         numbers.value(note.id),
                         {*note.x, *note.y},
                         shownText(note.text),
                         note.finding_id.value_or(QString())});
    }
    return pins;
}

Closeup closeupOf(const FileDetail &detail, qint64 index, const QString &role, const QString &focus)
{
    const auto finding = std::find_if(detail.findings.cbegin(), detail.findings.cend(),
                                      [&focus](const Finding &candidate) { return candidate.id == focus; });
    const QList<Page> pages = detail.file.pages.value_or(QList<Page>{});
    if (finding == detail.findings.cend() || index >= pages.size() || !drawnOn(*finding, index, role))
        return {};
    const QList<QRectF> boxes = boxesOf(*finding);
    if (!finding->box || finding->box->size() != 4)
        return {};

    const Page &page = pages[index];
    // Text that hides under the art was found against one of ours: that one is enlarged, whichever is compared with.
    const QString ourRole = rolesOffered(page).contains(finding->against) ? finding->against : role;
    Closeup closeup;
    closeup.finding = finding->id;
    closeup.title = shownText(finding->title);
    closeup.tone = toneOf(*finding);
    closeup.place = boxes.first();
    closeup.supplier = paneOfSupplier(detail.file, page);
    closeup.supplier.label = supplierName(detail.file);
    closeup.ours = paneOfRole(page, ourRole);
    closeup.box = *finding->box;
    closeup.boxes = boxes;
    closeup.refBox = finding->ref_box.value_or(closeup.box);
    closeup.refBoxes = rectanglesOf({finding->ref_box.value_or(Box())});
    closeup.missing = rolesOffered(page).contains(ourRole) ? QString() : missingHeading(ourRole);
    return closeup;
}

} // namespace vexal
