#include "comparison.h"

#include "compare.h"
#include "derived.h"

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

PaneView paneOfOurs(const RefPage &reference, const QString &role, qreal supplierAspect)
{
    return {reference.img.value_or(QString()), referenceAspect(reference, supplierAspect), roleLabel(role)};
}

Tone::Value toneOf(const Finding &finding)
{
    if (finding.state == "fine"_L1 || finding.kind == "pass"_L1)
        return Tone::Reviewed;
    return finding.kind == "expected"_L1 ? Tone::Neutral : Tone::Accent;
}

QList<QRectF> boxesOf(const Finding &finding)
{
    QList<Box> boxes = finding.boxes.value_or(QList<Box>{});
    if (finding.box)
        boxes.prepend(*finding.box);
    QList<QRectF> rectangles;
    for (const Box &box : boxes) {
        if (box.size() == 4)
            rectangles.append({box[0], box[1], box[2], box[3]});
    }
    return rectangles;
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
    comparison.supplier = {page.img.value_or(QString()), aspect(page), supplierPaneLabel(file, page)};
    comparison.matched = comparison.roles.contains(comparison.role);
    comparison.ours = comparison.matched
                          ? paneOfOurs(page.refs->value(comparison.role), comparison.role, comparison.supplier.aspect)
                          : PaneView{{}, comparison.supplier.aspect, roleLabel(comparison.role)};
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
            marks.append({finding.id, finding.title, boxes, toneOf(finding), finding.id == focus});
    }
    return marks;
}

} // namespace vexal
