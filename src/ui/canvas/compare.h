#pragma once

#include "board.h"

#include <QRectF>
#include <QSizeF>

namespace vexal {

/// The roles of our files in the order in which they are offered.
QStringList comparableRoles();
/// The role as the bar and our pane call it: "What we sent", "Last print".
QString roleLabel(const QString &role);
/// The role within a sentence: "what we sent", "the last print".
QString rolePhrase(const QString &role);

/// The roles under which a page has a page of ours, in their fixed order.
QStringList rolesOffered(const Page &page);
/// The role a page is compared with: the wanted one when it is offered, else the first that is, else the wanted one.
QString roleChosen(const QStringList &offered, const QString &wanted);

/// "Ostrel Print file · p7"; "Supplier file · p7" for a file without one.
QString supplierPaneLabel(const FileItem &file, const Page &page);

/// "Ostrel Print file over what we sent"
QString overlayPaneLabel(const FileItem &file, const QString &role);

/// What our pane says in place of a page: "No file of ours for this page".
QString missingHeading(const QString &role);

/// The box in points that each pane of a canvas of this size gets side by side: insets of 18 and 14, 18 between the
/// panes, 22 for the row of labels.
QSizeF sideBySideBox(QSizeF canvas);
/// The same for a single pane over the whole width.
QSizeF singleBox(QSizeF canvas);
/// The largest page of this width over height (at least 0.2) within a box of points; no side is under 1.
QSizeF fittedPage(QSizeF box, qreal aspect);

/// The part of a page that a crop around a box shows, in fractions of the page: about twice the box, at least a third
/// of the page wide, no wider than 2.6 times its height on the screen, within the page. The whole page for a list that
/// is no box.
QRectF cropRegion(const Box &box, qreal aspect);
/// Where the whole page lies behind a crop's frame of this size in points: the region around the box fills the width.
/// Of a region that is higher than the frame the box is seen, or its beginning; below one that is lower, what of the
/// page follows.
QRectF pageBehindCrop(const Box &box, qreal aspect, QSizeF frame);
/// Where a box is drawn on a page that lies there: 3 outside on every side.
QRectF boxOnCrop(const QRectF &box, const QRectF &page);
/// How high the loupe's crops are, caption included, when it is this wide: between 120 and 210 points.
qreal loupeHeight(qreal width);

/// Whether a finding is drawn on the supplier's page while that is compared with a role: its own role's findings, and
/// text hidden under the art, which depends on no file of ours.
bool drawnOn(const Finding &finding, qint64 page, const QString &role);

/// The rectangle that marks a box on a page of this size in points: 3 outside on every side, never under 8 by 8. Null
/// for a list that is no box.
QRectF boxOnPane(const Box &box, QSizeF pane);

} // namespace vexal
