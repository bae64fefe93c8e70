#pragma once

#include "livestore.h"
#include "screen.h"

namespace vexal::test {

/// The inspector in a real window, on a real store that lives on a scripted server. The key that closes things closes
/// the close-up of the focused finding, as it does beside a canvas.
class InspectorScreen
{
public:
    explicit InspectorScreen(const FileDetail &detail, QSize size = {330, 900})
        : live(aBoard({aFile(detail.file.id), aFile(QStringLiteral("other"))}))
    {
        live.details.insert(detail.file.id, detail);
        live.serveDetail(detail.file.id);
        live.begin();
        screen = std::make_unique<Screen>(live.store, qml(), size);
    }

    /// The first visible item of that object name in `root`.
    static QQuickItem *named(QQuickItem *root, const QString &name)
    {
        if (!root || !root->isVisible())
            return nullptr;
        if (root->objectName() == name)
            return root;
        const auto children = root->childItems();
        for (QQuickItem *child : children) {
            if (QQuickItem *found = named(child, name))
                return found;
        }
        return nullptr;
    }
    /// The same in the whole window.
    QQuickItem *named(const QString &name) const { return named(screen->window().contentItem(), name); }

    /// The card of the finding; null when it is not shown.
    QQuickItem *card(const QString &title) const
    {
        for (QQuickItem *card : screen->all("StandingCard")) {
            if (named(card, QStringLiteral("title"))->property("text") == title)
                return card;
        }
        return nullptr;
    }

    /// The field of the composer.
    QQuickItem *field() const { return named(named(QStringLiteral("field")), QStringLiteral("edit")); }
    QString context() const { return named(QStringLiteral("context"))->property("text").toString(); }
    QQuickItem *focus() const { return screen->window().activeFocusItem(); }

    /// What the person types on the keyboard.
    void type(const QString &text) const
    {
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, &screen->window(), Qt::Key_unknown, QString(c), Qt::NoModifier);
    }

    void waitForEnd() const { QTRY_VERIFY(live.store.busy().isEmpty()); }

    LiveStore live;
    std::unique_ptr<Screen> screen;

private:
    static QByteArray qml()
    {
        return R"(
import QtQuick
import Vexal.Pieces
import Vexal.Inspector
Inspector {
    focus: true
    ActionKeys {}
    OnAction {
        action: Actions.close
        enabled: Store.focus !== ""
        onTriggered: Store.clearFocus()
    }
    state: InspectorState {
        store: Store
        time: PassingTime
        drafts: Drafts
    }
}
)";
    }
};

} // namespace vexal::test
