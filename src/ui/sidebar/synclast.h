#pragma once

#include "jobtexts.h"

namespace vexal {

/// How the last sync ended, in one line, and what unfolds under it.
class SyncLast
{
    Q_GADGET
    QML_VALUE_TYPE(syncLast)
    Q_PROPERTY(QString key MEMBER key FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(int tone READ toneNumber FINAL)
    Q_PROPERTY(QString text MEMBER text FINAL)
    Q_PROPERTY(QList<QString> steps MEMBER steps FINAL)
    Q_PROPERTY(vexal::ResultRow result MEMBER result FINAL)

public:
    QString key; ///< The job's id.
    QString symbol;
    Tone::Value tone = Tone::Neutral;
    QString text; ///< "2 new · Teo · 42 min ago"
    QStringList steps;
    ResultRow result;
    bool operator==(const SyncLast &) const = default;

private:
    int toneNumber() const { return tone; }
};

/// The line for a sync that is over. `board` may be null.
SyncLast syncLast(const Job &job, const BoardState *board, const Clock &clock);

} // namespace vexal
