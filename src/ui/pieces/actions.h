#pragma once

#include "action.h"

#include <QQmlListProperty>

namespace vexal {

/// Everything that can be asked for by a key, in one table: menus and buttons share these, so that no sequence is taken
/// twice. The window needs one ActionKeys.
class Actions : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(vexal::Action *pinNote MEMBER m_pinNote CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *previousPage MEMBER m_previousPage CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *nextPage MEMBER m_nextPage CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *zoomIn MEMBER m_zoomIn CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *zoomOut MEMBER m_zoomOut CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *fitPage MEMBER m_fitPage CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *actualSize MEMBER m_actualSize CONSTANT FINAL)
    Q_PROPERTY(vexal::Action *close MEMBER m_close CONSTANT FINAL)
    Q_PROPERTY(QQmlListProperty<vexal::Action> all READ listInQml CONSTANT FINAL)

public:
    explicit Actions(QObject *parent = nullptr);

    const QList<Action *> &all() const { return m_all; }

private:
    QQmlListProperty<Action> listInQml() { return {this, &m_all}; }
    Action *add(const QString &name, const QStringList &sequences);

    QList<Action *> m_all;
    Action *m_pinNote;
    Action *m_previousPage;
    Action *m_nextPage;
    Action *m_zoomIn;
    Action *m_zoomOut;
    Action *m_fitPage;
    Action *m_actualSize;
    Action *m_close;
};

} // namespace vexal
