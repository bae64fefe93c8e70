#pragma once

#include "findingrow.h"

namespace vexal {

/// What the inspector says of one page of a file beside its cards.
class PageReview
{
    Q_GADGET
    QML_VALUE_TYPE(pageReview)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString found MEMBER found FINAL)
    Q_PROPERTY(bool readFromPicture MEMBER readFromPicture FINAL)
    Q_PROPERTY(bool empty MEMBER empty FINAL)
    Q_PROPERTY(QString emptyLine MEMBER emptyLine FINAL)
    Q_PROPERTY(QString summary MEMBER summary FINAL)

public:
    QString title;                ///< "Page 7"
    QString found;                ///< "2 found" or "Matches"
    bool readFromPicture = false; ///< The page has no live text.
    bool empty = false;           ///< Nothing was found at all: `emptyLine` says against what.
    QString emptyLine;
    QString summary; ///< The line that the settled findings are folded under; empty without any.
    bool operator==(const PageReview &) const = default;
};

/// A page and everything that was found on it.
struct FoundOnPage
{
    PageReview review;
    QList<FindingRow> cards;   ///< What asks for a judgement, group by group in the order in which their kinds appear.
    QList<FindingRow> settled; ///< Expected changes and passed checks.
    bool operator==(const FoundOnPage &) const = default;
};

/// Another page of the file on which something is still open.
class OtherPage
{
    Q_GADGET
    QML_VALUE_TYPE(otherPage)
    Q_PROPERTY(QString key MEMBER key FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString open MEMBER open FINAL)
    Q_PROPERTY(int index MEMBER index FINAL)

public:
    QString key;   ///< The page's index, in decimal.
    QString title; ///< "Page 9"
    QString open;  ///< "2 to look at"
    int index = 0;
    bool operator==(const OtherPage &) const = default;
};

/// What the group of a kind is called: "Words", "Line breaks", ... ; "Other" for a kind that is not known.
QString groupTitle(const QString &kind);

/// "2 found", or "Matches".
QString foundLine(qsizetype findings);

/// The line over `settled` findings of which `expected` are expected changes: "2 of our edits came through", "3 checked
/// and fine", "1 check passed".
QString summaryLine(qsizetype settled, qsizetype expected);

/// What a page without findings matches: the words for a role or, when nothing of ours was compared, that.
QString emptyLine(const QString &role, bool matched);

/// What was found on a page of the file while it is compared with a role. Text hidden under the art is shown for every
/// role while it has the focus, but only counted for its own.
FoundOnPage foundOnPage(const FileDetail &detail, qint64 index, const QString &role, const Telling &telling);

/// The pages other than this one on which there is something to judge once they are turned to, in page order. `against`
/// is the role that is wished for; each page is told for the one that it resolves to.
QList<OtherPage> otherPages(const FileDetail &detail, qint64 index, const QString &against);

} // namespace vexal
