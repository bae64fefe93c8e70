#pragma once

#include "board.h"
#include "clock.h"
#include "palette.h"

#include <QtQml/qqmlregistration.h>

#include <QSet>

/// How far a job of the worker machine has come, as its block shows it.
namespace vexal::JobStage {
Q_NAMESPACE
QML_ELEMENT

enum Value {
    Over,    ///< It has ended, however it did; nothing is left to wait for.
    InLine,  ///< The worker machine has not begun.
    Running, ///< It is at work.
    Stuck,   ///< It began and gives no sign of life.
};
Q_ENUM_NS(Value)
} // namespace vexal::JobStage

// In this Qt a compiled binding reads no enumerator from a value: rows of this module give QML its number.
namespace vexal {

/// A job that waits or runs, as `JobBlock` shows it.
class JobRow
{
    Q_GADGET
    QML_VALUE_TYPE(jobRow)
    Q_PROPERTY(QString key MEMBER key FINAL)
    Q_PROPERTY(int stage READ stageNumber FINAL)
    Q_PROPERTY(QList<QString> steps MEMBER steps FINAL)
    Q_PROPERTY(QString started MEMBER started FINAL)
    Q_PROPERTY(bool stopping MEMBER stopping FINAL)

public:
    QString key; ///< The job's id.
    JobStage::Value stage = JobStage::Over;
    QStringList steps; ///< What it did so far; the last one is under way.
    QString started;   ///< "Started by Teo 3 min ago"
    bool stopping = false;
    bool operator==(const JobRow &) const = default;

private:
    int stageNumber() const { return stage; }
};

/// A line of what a job brought about.
class ResultLine
{
    Q_GADGET
    QML_VALUE_TYPE(resultLine)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString text MEMBER text FINAL)
    Q_PROPERTY(int tone READ toneNumber FINAL)

public:
    QString symbol;
    QString text;
    Tone::Value tone = Tone::Neutral;
    bool operator==(const ResultLine &) const = default;

private:
    int toneNumber() const { return tone; }
};

/// A job that has ended, as `ResultBlock` shows it.
class ResultRow
{
    Q_GADGET
    QML_VALUE_TYPE(resultRow)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(int tone READ toneNumber FINAL)
    Q_PROPERTY(QString by MEMBER by FINAL)
    Q_PROPERTY(QVariantList lines READ linesForQml FINAL)

public:
    QString symbol;
    QString title; ///< "Done", "Needs a look", "Stopped", "Didn't finish"
    Tone::Value tone = Tone::Neutral;
    QString by; ///< "By Teo · 42 min ago"
    QList<ResultLine> lines;
    bool operator==(const ResultRow &) const = default;

private:
    int toneNumber() const { return tone; }
    QVariantList linesForQml() const;
};

/// The stage of a status as the board names it. One that is not known counts as over.
JobStage::Value jobStage(QStringView status);

/// A job that waits or runs. `busy` are the keys of the actions in flight; `board` may be null.
JobRow jobRow(const Job &job, const BoardState *board, const QSet<QString> &busy, const Clock &clock);

/// How a job ended and what it brought about; only what has really come is listed. `board` may be null.
ResultRow resultRow(const Job &job, const BoardState *board, const Clock &clock);

/// The job is done and lists things that somebody has to check.
bool needsALook(const Job &job);

/// Texts from outside as a screen shows them.
QList<QString> shownTexts(QList<QString> texts);

/// When something of the record's happened, as told now; nothing when it is not known.
QString relativeTime(const std::optional<double> &milliseconds, const Clock &clock);

/// The words of the pieces that show a job.
class JobTexts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The steps that are listed: the last four.
    Q_INVOKABLE static QList<QString> listedSteps(const QList<QString> &steps);
    /// How many were left out: "1 earlier step", "2 earlier steps"; nothing when none was.
    Q_INVOKABLE static QString earlierSteps(const QList<QString> &steps);
    /// What somebody who works is at, the `n`th thing of a round that begins anew after its last.
    Q_INVOKABLE static QString workingPhrase(int n);
    /// What to do when the worker machine stopped answering, where the button `title` had started the job.
    Q_INVOKABLE static QString stuckAdvice(const QString &title);
};

} // namespace vexal
