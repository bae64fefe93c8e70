#pragma once

#include "board.h"

#include <QProcessEnvironment>
#include <QTemporaryDir>

/// A folder that make-sample filled, inside the build folder, and what is told in it. It goes with the object.
class SampleFolder
{
public:
    /// Why there is none; empty when all went well.
    QString make(const QMap<QString, QString> &around = {});

    QString path() const { return m_place.path(); }
    const vexal::Sample &sample() const { return m_sample; }
    const QList<vexal::FileDetail> &inbox() const { return m_inbox; }
    /// The details of the board, then those of the inbox.
    QList<vexal::FileDetail> all() const { return m_sample.details.values() + m_inbox; }

    /// The names of all files, those of the inbox behind "inbox/".
    QStringList files() const;
    QByteArray bytes(const QString &file) const;
    /// Where a picture of the detail lies: those of the inbox lie beside its list.
    QString picture(const vexal::FileDetail &detail, const QString &key) const;
    /// Where a picture of the board lies.
    QString picture(const QString &key) const;

private:
    QString read();

    QTemporaryDir m_place{QStringLiteral(SAMPLE_PLACE "/sample-XXXXXX")};
    vexal::Sample m_sample;
    QList<vexal::FileDetail> m_inbox;
};
