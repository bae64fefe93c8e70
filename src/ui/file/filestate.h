#pragma once

#include "filelinks.h"
#include "pagestrip.h"
#include "passingtime.h"
#include "reviewactions.h"
#include "rowlist.h"
#include "store.h"

#include <QtQml/qqmlregistration.h>

namespace vexal {

/// What stands over a file's pages.
class FileHeader
{
    Q_GADGET
    QML_VALUE_TYPE(fileHeader)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString status MEMBER status FINAL)
    Q_PROPERTY(QString facts MEMBER facts FINAL)
    Q_PROPERTY(QVariantList links READ linksForQml FINAL)
    Q_PROPERTY(bool reviewed MEMBER reviewed FINAL)

public:
    QString title;
    QString status; ///< As the board has it.
    QString facts;
    QList<FileLink> links;
    bool reviewed = false; ///< There is nothing left to do.
    bool operator==(const FileHeader &) const = default;

private:
    QVariantList linksForQml() const;
};

/// What the file view, or the view of several files, says of the selection; kept in step with the store. It sees to it
/// that what is known of the one selected file is fetched.
class FileState : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vexal::Store *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(vexal::PassingTime *time READ time WRITE setTime NOTIFY timeChanged REQUIRED FINAL)
    Q_PROPERTY(QString file READ file NOTIFY changed FINAL)
    Q_PROPERTY(vexal::FileHeader header READ header NOTIFY changed FINAL)
    Q_PROPERTY(vexal::ReportProgress report READ report NOTIFY changed FINAL)
    Q_PROPERTY(bool settingStatus READ settingStatus NOTIFY changed FINAL)
    Q_PROPERTY(QString filesHeading READ filesHeading NOTIFY changed FINAL)
    Q_PROPERTY(QStringList thumbs READ thumbs NOTIFY changed FINAL)
    Q_PROPERTY(QString problem READ problem NOTIFY changed FINAL)
    Q_PROPERTY(bool loading READ loading NOTIFY changed FINAL)
    Q_PROPERTY(QAbstractListModel *pages READ pages CONSTANT FINAL)
    Q_PROPERTY(int page READ page NOTIFY pageChanged FINAL)

public:
    explicit FileState(QObject *parent = nullptr);

    Store *store() const { return m_store; }
    void setStore(Store *store);
    PassingTime *time() const { return m_time; }
    void setTime(PassingTime *time);

    /// Id of the one selected file; empty without one.
    QString file() const { return m_shown.file; }
    FileHeader header() const { return m_shown.header; }
    /// Of the report on exactly the selected files.
    ReportProgress report() const { return m_shown.report; }
    /// The file's status is being changed.
    bool settingStatus() const { return m_shown.settingStatus; }
    /// "3 files"
    QString filesHeading() const;
    /// Blob keys of the selected files' thumbnails, in board order.
    QStringList thumbs() const { return m_shown.thumbs; }
    /// Why nothing is known of the file's pages; empty when something is, or is still to come.
    QString problem() const { return m_shown.problem; }
    /// Nothing is known of the file's pages yet.
    bool loading() const { return m_shown.loading; }

    /// The file's pages as rows of `pageCell`, and which of them shows.
    QAbstractListModel *pages() { return &m_pages; }
    int page() const { return m_page; }

    /// Marks the file reviewed or, when it is, takes it back into review.
    Q_INVOKABLE void toggleReviewed();
    /// Asks for a report on the selected files.
    Q_INVOKABLE void makeReport();
    Q_INVOKABLE void stopReport();
    Q_INVOKABLE void openReport();
    /// Turns to the page of that index.
    Q_INVOKABLE void turnTo(int index);
    /// Asks once more for what is known of the file.
    Q_INVOKABLE void tryAgain();
    Q_INVOKABLE void follow(const QString &link) const;

Q_SIGNALS:
    void storeChanged();
    void timeChanged();
    void changed();
    void pageChanged();

private:
    struct Shown
    {
        QString file;
        FileHeader header;
        ReportProgress report;
        QStringList thumbs;
        QString problem;
        bool settingStatus = false;
        bool loading = false;
        bool operator==(const Shown &) const = default;
    };

    void tell();
    void tellPages();
    void tellPage();
    void load();
    Shown shown() const;
    void announce() const;

    Store *m_store = nullptr;
    PassingTime *m_time = nullptr;
    Shown m_shown;
    QString m_loaded; ///< Id of the file that was last asked for.
    RowList<PageCell> m_pages;
    int m_page = 0;
};

} // namespace vexal
