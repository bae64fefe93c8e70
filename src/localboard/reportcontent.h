#pragma once

#include "jobs.h"
#include "ledger.h"

#include <functional>

namespace vexal::local {

/// What a report is made of.
struct ReportContent
{
    QString title;
    QString by; ///< Name of who asked for it.
    double at = 0;
    QList<FileDetail> files;
    QMap<QString, QString> names;                          ///< Of the people, by e-mail address.
    std::function<QByteArray(const QString &key)> picture; ///< Empty where there is none. Throws DatabaseError.
};

/// Gathers a report on those of the files \a fileIds that are on the board, for the person \a by. Throws DatabaseError.
ReportContent reportContent(Ledger &ledger, const QList<QString> &fileIds, const QString &by);

/// The three steps in which a report on \a files comes about: gathering, laying out, binding.
QList<Step> reportSteps(const QList<FileDetail> &files);

} // namespace vexal::local
