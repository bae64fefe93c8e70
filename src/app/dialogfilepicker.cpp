#include "dialogfilepicker.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>
#include <QWindow>

#include <utility>

using namespace Qt::StringLiterals;

namespace vexal {

DialogFilePicker::DialogFilePicker() = default;
DialogFilePicker::~DialogFilePicker() = default;

void DialogFilePicker::pick(const QString &message, const QStringList &patterns, QObject *context,
                            std::function<void(const QString &)> done)
{
    if (m_dialog)
        return;
    if (!m_engine)
        m_engine = std::make_unique<QQmlEngine>();
    QQmlComponent component(m_engine.get());
    component.setData("import QtQuick.Dialogs\nFileDialog {}", QUrl());
    m_dialog.reset(component.createWithInitialProperties(
        {{u"title"_s, message}, {u"nameFilters"_s, QStringList{u"Photos (%1)"_s.arg(patterns.join(u' '))}}}));
    if (!m_dialog) {
        qWarning("There is no dialog for opening files: %s", qUtf8Printable(component.errorString()));
        return;
    }
    m_dialog->setProperty("parentWindow", QVariant::fromValue(QGuiApplication::focusWindow()));
    m_context = context;
    m_done = std::move(done);
    connect(m_dialog.get(), SIGNAL(accepted()), this, SLOT(accept()));
    connect(m_dialog.get(), SIGNAL(rejected()), this, SLOT(close()));
    QMetaObject::invokeMethod(m_dialog.get(), "open");
}

void DialogFilePicker::accept()
{
    const QString path = m_dialog->property("selectedFile").toUrl().toLocalFile();
    const auto done = std::exchange(m_done, nullptr);
    close();
    if (m_context)
        done(path);
}

// The dialog is still speaking.
void DialogFilePicker::close()
{
    m_dialog.release()->deleteLater();
}

} // namespace vexal
