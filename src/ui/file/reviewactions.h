#pragma once

#include "board.h"
#include "clock.h"

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QSet>

#include <functional>

namespace vexal {

/// How far the report on one file, or on several together, has come.
class ReportProgress
{
    Q_GADGET
    QML_VALUE_TYPE(reportProgress)
    Q_PROPERTY(bool making MEMBER making FINAL)
    Q_PROPERTY(QString step MEMBER step FINAL)
    Q_PROPERTY(QString job MEMBER job FINAL)
    Q_PROPERTY(bool stopping MEMBER stopping FINAL)
    Q_PROPERTY(bool asking MEMBER asking FINAL)
    Q_PROPERTY(bool failed MEMBER failed FINAL)
    Q_PROPERTY(QString report MEMBER report FINAL)
    Q_PROPERTY(QString by MEMBER by FINAL)
    Q_PROPERTY(QString when MEMBER when FINAL)
    Q_PROPERTY(bool opening MEMBER opening FINAL)

public:
    bool making = false; ///< A job for it waits or runs: `step` says how far it is, `job` is its id.
    QString step;
    QString job;
    bool stopping = false; ///< The job was asked to stop.
    bool asking = false;   ///< The worker machine is being asked for a report.
    bool failed = false;   ///< The newest job did not come to its end.
    QString report;        ///< Id of the newest report; empty without one.
    QString by;            ///< "Report by Teo · Yesterday 15:04"
    QString when;          ///< "Yesterday 15:04"
    bool opening = false;  ///< The report is on its way.
    bool operator==(const ReportProgress &) const = default;
};

/// The newest report job whose files are exactly these; null without one.
const Job *reportJobOf(const QSet<QString> &files, const BoardState &board);

/// The newest report whose files are exactly these; null without one.
const Report *reportOf(const QSet<QString> &files, const BoardState &board);

/// The progress of the report on these files. `busy` are the keys of the actions in flight, `name` says how the screens
/// name a person.
ReportProgress reportProgress(const QSet<QString> &files, const BoardState &board, const QSet<QString> &busy,
                              const Clock &clock, const std::function<QString(const std::optional<QString> &)> &name);

} // namespace vexal
