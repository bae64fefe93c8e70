#include "compare.h"

#include "derived.h"
#include "facts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr qreal sideInset = 18;
constexpr qreal footInset = 14;
constexpr qreal betweenPanes = 18;
constexpr qreal labelRow = 22;
constexpr qreal narrowestAspect = 0.2;
constexpr qreal markOutside = 3;
constexpr qreal smallestMark = 8;
constexpr qreal cropAroundWidth = 1.9;
constexpr qreal cropAroundHeight = 2.4;
constexpr qreal narrowestCrop = 0.34;
constexpr qreal widestCrop = 2.6; ///< Times its height on the screen.
constexpr qreal betweenCrops = 12;
constexpr qreal captionRow = 20;
constexpr qreal lowestCrop = 120;
constexpr qreal highestCrop = 210;

const QString submitted = u"submitted"_s;
const QString latest = u"latest"_s;

// Where on a page of that height a crop begins. A frame higher than the region ends with the page at the latest; in one
// that is lower the box stands in the middle, or begins it.
qreal cropTop(const Box &box, const QRectF &region, qreal pageHeight, qreal frame)
{
    const qreal top = region.top() * pageHeight;
    const qreal hidden = region.height() * pageHeight - frame;
    if (hidden <= 0)
        return std::clamp<qreal>(top, 0, std::max<qreal>(0, pageHeight - frame));
    if (box.size() != 4)
        return top + hidden / 2;
    const qreal wanted = box[3] * pageHeight + 2 * markOutside <= frame ? (box[1] + box[3] / 2) * pageHeight - frame / 2
                                                                        : box[1] * pageHeight - 2 * markOutside;
    return std::clamp<qreal>(wanted, top, top + hidden);
}

} // namespace

QStringList comparableRoles()
{
    return {submitted, latest};
}

QString roleLabel(const QString &role)
{
    return role == submitted ? u"What we sent"_s : u"Last print"_s;
}

QString rolePhrase(const QString &role)
{
    return role == submitted ? u"what we sent"_s : u"the last print"_s;
}

QStringList rolesOffered(const Page &page)
{
    QStringList offered;
    if (!page.refs)
        return offered;
    for (const QString &role : comparableRoles()) {
        if (page.refs->contains(role))
            offered.append(role);
    }
    return offered;
}

QString roleChosen(const QStringList &offered, const QString &wanted)
{
    if (offered.isEmpty() || offered.contains(wanted))
        return wanted;
    return offered.first();
}

QString supplierPaneLabel(const FileItem &file, const Page &page)
{
    return isolated(supplierName(file)) + u" file · p"_s + pageLabel(page);
}

QString overlayPaneLabel(const FileItem &file, const QString &role)
{
    return isolated(supplierName(file)) + u" file over "_s + rolePhrase(role);
}

QString missingHeading(const QString &role)
{
    return role == submitted ? u"No file of ours for this page"_s : u"No last print for this page"_s;
}

QSizeF sideBySideBox(QSizeF canvas)
{
    const QSizeF single = singleBox(canvas);
    return {(single.width() - betweenPanes) / 2, single.height()};
}

QSizeF singleBox(QSizeF canvas)
{
    return {canvas.width() - 2 * sideInset, canvas.height() - 2 * footInset - labelRow};
}

QSizeF fittedPage(QSizeF box, qreal aspect)
{
    const qreal ratio = std::max(aspect, narrowestAspect);
    const QSizeF wide(box.width(), box.width() / ratio);
    const QSizeF page = wide.height() <= box.height() ? wide : QSizeF(box.height() * ratio, box.height());
    return page.expandedTo({1, 1});
}

bool drawnOn(const Finding &finding, qint64 page, const QString &role)
{
    return finding.page == page && (finding.against == role || finding.kind == "hidden"_L1);
}

QRectF boxOnPane(const Box &box, QSizeF pane)
{
    if (box.size() != 4)
        return {};
    return {box[0] * pane.width() - markOutside, box[1] * pane.height() - markOutside,
            std::max(box[2] * pane.width() + 2 * markOutside, smallestMark),
            std::max(box[3] * pane.height() + 2 * markOutside, smallestMark)};
}

QRectF cropRegion(const Box &box, qreal aspect)
{
    if (box.size() != 4)
        return {0, 0, 1, 1};
    const qreal around = std::max(box[2] * cropAroundWidth, narrowestCrop);
    const qreal lowest = aspect * around / widestCrop;
    const qreal width = std::min<qreal>(around, 1);
    const qreal height = std::min<qreal>(std::max(box[3] * cropAroundHeight, lowest), 1);
    return {std::clamp<qreal>(box[0] + box[2] / 2 - width / 2, 0, 1 - width),
            std::clamp<qreal>(box[1] + box[3] / 2 - height / 2, 0, 1 - height), width, height};
}

QRectF pageBehindCrop(const Box &box, qreal aspect, QSizeF frame)
{
    const QRectF region = cropRegion(box, aspect);
    const QSizeF page = QSizeF(1, 1 / aspect) * (frame.width() / region.width());
    return {QPointF(-region.x() * page.width(), -cropTop(box, region, page.height(), frame.height())), page};
}

QRectF boxOnCrop(const QRectF &box, const QRectF &page)
{
    return {page.x() + box.x() * page.width() - markOutside, page.y() + box.y() * page.height() - markOutside,
            box.width() * page.width() + 2 * markOutside, box.height() * page.height() + 2 * markOutside};
}

qreal loupeHeight(qreal width)
{
    return std::clamp((width - betweenCrops) / 2 / widestCrop + captionRow, lowestCrop, highestCrop);
}

} // namespace vexal
