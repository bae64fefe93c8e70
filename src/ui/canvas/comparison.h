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
    Q_PROPERTY(QSizeF pixels MEMBER pixels FINAL)

public:
    QString key; ///< Blob key of the page's picture; empty without one.
    qreal aspect = 1;
    QString label;
    QSizeF pixels; ///< Of the picture; empty when the board does not say.
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
    Q_PROPERTY(QString overlayLabel MEMBER overlayLabel FINAL)
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
    QString overlayLabel; ///< "Ostrel Print file over what we sent"
    PaneView supplier;
    PaneView ours;
    bool matched = false; ///< Ours has a page for this one; without, `missing` is said in its place.
    QString missing;
    bool operator==(const Comparison &) const = default;
};

/// The comparison of a file's page (an index that lies within the file) against a role.
Comparison comparisonOf(const FileItem &file, qint64 index, const QString &against);

/// A page that may be shown next: a neighbour's, or ours of another role.
class PageAhead
{
    Q_GADGET
    QML_VALUE_TYPE(pageAhead)
    Q_PROPERTY(QString picture MEMBER picture FINAL)
    Q_PROPERTY(QString ours MEMBER ours FINAL)
    Q_PROPERTY(qreal aspect MEMBER aspect FINAL)
    Q_PROPERTY(qreal frameAspect MEMBER frameAspect FINAL)
    Q_PROPERTY(bool isOurs MEMBER isOurs FINAL)

public:
    QString key;           ///< "3/latest"; "3/" for the supplier's.
    QString picture;       ///< Blob key.
    QString ours;          ///< Of a supplier's page: the picture of ours that it will be compared with; else empty.
    qreal aspect = 1;      ///< The page's own.
    qreal frameAspect = 1; ///< Of the supplier's page that it will be laid over.
    bool isOurs = false;
    bool operator==(const PageAhead &) const = default;
};

/// The pages that may be shown next while a page is compared with a role: the next and the previous one with ours of
/// both roles, and ours of the other role of this one. Pages without a picture are left out.
QList<PageAhead> pagesAhead(const FileItem &file, qint64 index, const QString &against);

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
    Q_PROPERTY(qreal layer READ layer FINAL)

public:
    QString key; ///< The finding's id.
    QString title;
    QList<QRectF> boxes;             ///< In fractions of the page.
    Tone::Value tone = Tone::Accent; ///< Reviewed when it is settled, neutral for an expected change.
    bool selected = false;
    int toneValue() const { return tone; }
    /// The smaller a mark, the higher it lies, so that none is out of reach under another.
    qreal layer() const;
    bool operator==(const BoxMark &) const = default;
};

/// The marks of a page's findings while it is compared with a role, in the findings' order. A finding without a box has
/// none.
QList<BoxMark> boxMarks(const FileDetail &detail, qint64 index, const QString &role, const QString &focus);

/// The pin of a note on the supplier's page.
class PinMark
{
    Q_GADGET
    QML_VALUE_TYPE(pinMark)
    Q_PROPERTY(int number MEMBER number FINAL)
    Q_PROPERTY(QPointF place MEMBER place FINAL)
    Q_PROPERTY(QString text MEMBER text FINAL)
    Q_PROPERTY(QString finding MEMBER finding FINAL)

public:
    QString key;     ///< The note's id.
    int number = 0;  ///< What its head says.
    QPointF place;   ///< In fractions of the page.
    QString text;    ///< Of the note.
    QString finding; ///< Id of the finding that the note answers; empty without one.
    bool operator==(const PinMark &) const = default;
};

/// The pins of a page's notes that are not resolved, in their order. A note without a place has none.
QList<PinMark> pinMarks(const QList<Note> &notes, qint64 page);

/// What the loupe enlarges: a finding's place on the supplier's page and on ours.
class Closeup
{
    Q_GADGET
    QML_VALUE_TYPE(closeup)
    Q_PROPERTY(bool open READ open FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(int tone READ toneValue FINAL)
    Q_PROPERTY(QRectF place MEMBER place FINAL)
    Q_PROPERTY(vexal::PaneView supplier MEMBER supplier FINAL)
    Q_PROPERTY(vexal::PaneView ours MEMBER ours FINAL)
    Q_PROPERTY(QList<double> box MEMBER box FINAL)
    Q_PROPERTY(QList<QRectF> boxes MEMBER boxes FINAL)
    Q_PROPERTY(QList<double> refBox MEMBER refBox FINAL)
    Q_PROPERTY(QList<QRectF> refBoxes MEMBER refBoxes FINAL)
    Q_PROPERTY(QString missing MEMBER missing FINAL)

public:
    QString finding; ///< Its id; empty when there is nothing to enlarge.
    QString title;
    Tone::Value tone = Tone::Accent;
    QRectF place; ///< What to bring into view: the finding's first place, in fractions of the page.
    PaneView supplier;
    PaneView ours;
    Box box;    ///< What each crop is centred on.
    Box refBox; ///< The same place as on the supplier's page when the finding does not say.
    QList<QRectF> boxes;
    QList<QRectF> refBoxes;
    QString missing; ///< Said in place of our page; empty when there is one.
    bool open() const { return !finding.isEmpty(); }
    int toneValue() const { return tone; }
    bool operator==(const Closeup &) const = default;
};

/// The close-up of the focused finding, when it is drawn on the page that is shown and has a box.
Closeup closeupOf(const FileDetail &detail, qint64 index, const QString &role, const QString &focus);

} // namespace vexal
