#pragma once

#include "board.h"

#include <QtQml/qqmlregistration.h>

#include <QObject>

namespace vexal {

/// What is left on a page. Expected changes and passed checks are no findings here; against which of our files a
/// finding was found does not matter.
struct PageTally
{
    int issues = 0; ///< Findings that are real issues.
    int open = 0;   ///< Open findings that are more than minor.
    int notes = 0;  ///< Notes that are not resolved.
    bool operator==(const PageTally &) const = default;
};

/// The tally of the page of that index.
PageTally pageTally(const FileDetail &detail, qint64 index);

/// A page as the strip under the canvas shows it.
class PageCell
{
    Q_GADGET
    QML_VALUE_TYPE(pageCell)
    Q_PROPERTY(QString key MEMBER key FINAL)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString thumb MEMBER thumb FINAL)
    Q_PROPERTY(double aspect MEMBER aspect FINAL)
    Q_PROPERTY(int issues MEMBER issues FINAL)
    Q_PROPERTY(int open MEMBER open FINAL)
    Q_PROPERTY(int notes MEMBER notes FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)

public:
    QString key; ///< The page's index, in decimal.
    QString label;
    QString thumb;     ///< Blob key; empty without a picture.
    double aspect = 1; ///< Width over height.
    int issues = 0;
    int open = 0;
    int notes = 0;
    QString name; ///< "Page 7, 1 real issue, 2 notes"
    bool operator==(const PageCell &) const = default;
};

/// One cell for each page of the file, in page order.
QList<PageCell> pageCells(const FileDetail &detail);

} // namespace vexal
