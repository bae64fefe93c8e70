#pragma once

#include "filepicker.h"

#include <QPointer>

#include <memory>

QT_BEGIN_NAMESPACE
class QQmlEngine;
QT_END_NAMESPACE

namespace vexal {

/// The desktop's own dialog for opening a file or, where it has none, Qt's.
class DialogFilePicker : public QObject, public FilePicker
{
    Q_OBJECT

public:
    DialogFilePicker();
    ~DialogFilePicker() override;

    /// While a dialog is open another one is not opened.
    void pick(const QString &message, const QStringList &patterns, QObject *context,
              std::function<void(const QString &)> done) override;

private Q_SLOTS:
    void accept();
    void close();

private:
    std::unique_ptr<QQmlEngine> m_engine; ///< Made with the first dialog: few people ever change their photo.
    std::unique_ptr<QObject> m_dialog;
    QPointer<QObject> m_context;
    std::function<void(const QString &)> m_done;
};

} // namespace vexal
