#pragma once

#include "board.h"
#include "palette.h"

#include <QtQml/qqmlregistration.h>

#include <QRectF>
#include <QStringList>

namespace vexal {

/// One page of the canvas: its picture, the shape of its frame and its label.
class PaneView
{
    Q_GADGET
    QML_VALUE_TYPE(paneView)
    Q_PROPERTY(QString key MEMBER key FINAL)
    Q_PROPERTY(qreal aspect MEMBER aspect FINAL)
    Q_PROPERTY(QString label MEMBER label FINAL)

public:
    QString key; ///< Blob key of the page's picture; empty without one.
    qreal aspect = 1;
    QString label;
    bool operator==(const PaneView &) const = default;
};

/// What the canvas compares: the supplier's page and the matching page of ours, and the words around them.
class Comparison
{
    Q_GADGET
    QML_VALUE_TYPE(comparison)
    Q_PROPERTY(int index MEMBER index FINAL)
    Q_PROPERTY(int count MEMBER count FINAL)
    Q_PROPERTY(QString pageText MEMBER pageText FINAL)
    Q_PROPERTY(QString counterText MEMBER counterText FINAL)
    Q_PROPERTY(QList<QString> roles MEMBER roles FINAL)
    Q_PROPERTY(QList<QString> roleLabels MEMBER roleLabels FINAL)
    Q_PROPERTY(int roleIndex READ roleIndex FINAL)
    Q_PROPERTY(vexal::PaneView supplier MEMBER supplier FINAL)
    Q_PROPERTY(vexal::PaneView ours MEMBER ours FINAL)
    Q_PROPERTY(bool matched MEMBER matched FINAL)
    Q_PROPERTY(QString missing MEMBER missing FINAL)

public:
    int index = 0;          ///< Of the page shown, from 0.
    int count = 0;          ///< Pages of the file; with 0 nothing else here says anything.
    QString pageText;       ///< "p7"
    QString counterText;    ///< "9 of 16"
    QStringList roles;      ///< Of ours, those that the page has a page of.
    QStringList roleLabels; ///< The same as the bar calls them.
    QString role;           ///< The one compared with.
    int roleIndex() const { return int(roles.indexOf(role)); }
    PaneView supplier;
    PaneView ours;
    bool matched = false; ///< Ours has a page for this one; without, `missing` is said in its place.
    QString missing;
    bool operator==(const Comparison &) const = default;
};

/// The comparison of a file's page (an index that lies within the file) against a role.
Comparison comparisonOf(const FileItem &file, qint64 index, const QString &against);

/// A finding's mark on the supplier's page.
class BoxMark
{
    Q_GADGET
    QML_VALUE_TYPE(boxMark)
    Q_PROPERTY(QString key MEMBER key FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QList<QRectF> boxes MEMBER boxes FINAL)
    Q_PROPERTY(int tone READ toneValue FINAL)
    Q_PROPERTY(bool selected MEMBER selected FINAL)

public:
    QString key; ///< The finding's id.
    QString title;
    QList<QRectF> boxes;             ///< In fractions of the page.
    Tone::Value tone = Tone::Accent; ///< Reviewed when it is settled, neutral for an expected change.
    bool selected = false;
    int toneValue() const { return tone; }
    bool operator==(const BoxMark &) const = default;
};

/// The marks of a page's findings while it is compared with a role, in the findings' order. A finding without a box has
/// none.
QList<BoxMark> boxMarks(const FileDetail &detail, qint64 index, const QString &role, const QString &focus);

} // namespace vexal
