#pragma once

#include "derived.h"
#include "store.h"

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace vexal {

/// What the window shows beside the sidebar, kept in step with the store.
class RootState : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vexal::Store *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(vexal::RootState::Place place READ place NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyLine READ emptyLine NOTIFY changed FINAL)
    Q_PROPERTY(QString toastId READ toastId NOTIFY toastChanged FINAL)
    Q_PROPERTY(QString toastText READ toastText NOTIFY toastChanged FINAL)
    Q_PROPERTY(QString undoLabel READ undoLabel NOTIFY toastChanged FINAL)
    Q_PROPERTY(QString updateTitle READ updateTitle NOTIFY bannersChanged FINAL)
    Q_PROPERTY(QString updateNotes READ updateNotes NOTIFY bannersChanged FINAL)
    Q_PROPERTY(QString problem READ problem NOTIFY bannersChanged FINAL)
    Q_PROPERTY(bool canCopySignInLink READ canCopySignInLink NOTIFY signInChanged FINAL)
    Q_PROPERTY(QString emailDomain READ emailDomain CONSTANT FINAL)
    Q_PROPERTY(QString dedication READ dedication CONSTANT FINAL)

public:
    /// What the detail column holds.
    enum Place { Loading, NothingChosen, OneFile, SeveralFiles };
    Q_ENUM(Place)

    explicit RootState(QObject *parent = nullptr);

    Store *store() const { return m_store; }
    void setStore(Store *store);

    Place place() const { return m_place; }
    /// "Pick a file.", or "Nothing to review yet." for a board without files.
    QString emptyTitle() const;
    /// What to do about it.
    QString emptyLine() const;

    /// The toast on screen; all empty without one.
    QString toastId() const { return m_toast.id.isNull() ? QString() : m_toast.id.toString(); }
    QString toastText() const { return shownText(m_toast.text); }
    QString undoLabel() const { return m_toast.undoLabel.value_or(QString()); }
    /// Takes the toast of that id away; a younger one stays.
    Q_INVOKABLE void clearToast(const QString &id);
    /// Tells assistive technology that the item shows anew, so that it is read out.
    Q_INVOKABLE static void announce(QQuickItem *item);
    /// Does what the toast's button promises.
    Q_INVOKABLE void undoToast();

    /// What the banner of a newer version says; empty without one.
    QString updateTitle() const;
    QString updateNotes() const;
    /// Opens the page that has the newer version; does nothing when its address is none.
    Q_INVOKABLE void download() const;
    /// Takes the offer away.
    Q_INVOKABLE void dismissUpdate();
    /// Why the board that shows is not the newest; empty when it is, or when there is none yet.
    QString problem() const;

    /// The sign-in page waits for the person.
    bool canCopySignInLink() const { return !m_store->signInPage().isEmpty(); }
    /// Puts the address of the sign-in page into the clipboard, for a browser that did not come by itself.
    Q_INVOKABLE void copySignInLink();
    Q_INVOKABLE void cancelSignIn();

    /// What the sign-in screen says of this deployment.
    QString emailDomain() const;
    QString dedication() const;
    /// Asks the store to sign the person in.
    Q_INVOKABLE void signIn();

Q_SIGNALS:
    void storeChanged();
    void changed();
    void toastChanged();
    void bannersChanged();
    void signInChanged();

private:
    void update();
    void updateToast();

    Store *m_store = nullptr;
    Place m_place = Loading;
    bool m_anyFile = false;
    Toast m_toast;
};

/// Which place a store's selection and board lead to.
RootState::Place placeOf(const Store &store);

} // namespace vexal
