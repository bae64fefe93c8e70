#pragma once

#include "action.h"

#include <QQmlListProperty>

namespace vexal {

/// Everything that can be asked for by a key or in the menu, in one table, the menu's own first and in its order:
/// menu and buttons share these, so that no sequence is taken twice. The window needs one ActionKeys.
class Actions : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(vexal::Action *about MEMBER m_about CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *changePhoto MEMBER m_changePhoto CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *signOut MEMBER m_signOut CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *quit MEMBER m_quit CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *sync MEMBER m_sync CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *refresh MEMBER m_refresh CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *makeReport MEMBER m_makeReport CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *markReviewed MEMBER m_markReviewed CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *activity MEMBER m_activity CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *sideBySide MEMBER m_sideBySide CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *overlay MEMBER m_overlay CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *blink MEMBER m_blink CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *zoomIn MEMBER m_zoomIn CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *zoomOut MEMBER m_zoomOut CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *fitPage MEMBER m_fitPage CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *actualSize MEMBER m_actualSize CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *previousPage MEMBER m_previousPage CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *nextPage MEMBER m_nextPage CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *menu MEMBER m_menu CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *pinNote MEMBER m_pinNote CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *close MEMBER m_close CONSTANT FINAL)
    Q_PROPERTY(QQmlListProperty<vexal::Action> all READ listInQml CONSTANT FINAL)

public:
    explicit Actions(QObject *parent = nullptr);

    const QList<Action *> &all() const { return m_all; }

private:
    QQmlListProperty<Action> listInQml() { return {this, &m_all}; }
    Action *add(const QString &name, const QStringList &sequences, const QString &section = {},
                Action::Held held = Action::Held::AsksOnce);

    QList<Action *> m_all;
    Action *m_about;
    Action *m_changePhoto;
    Action *m_signOut;
    Action *m_quit;
    Action *m_sync;
    Action *m_refresh;
    Action *m_makeReport;
    Action *m_markReviewed;
    Action *m_activity;
    Action *m_sideBySide;
    Action *m_overlay;
    Action *m_blink;
    Action *m_zoomIn;
    Action *m_zoomOut;
    Action *m_fitPage;
    Action *m_actualSize;
    Action *m_previousPage;
    Action *m_nextPage;
    Action *m_menu;
    Action *m_pinNote;
    Action *m_close;
};

} // namespace vexal
