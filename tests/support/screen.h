#pragma once

#include "images.h"
#include "remoteimage.h"
#include "store.h"
#include "storeinqml.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QRegularExpression>
#include <QTest>
#include <QtQuickTest>

#include <memory>

/// A real window on a real store, for tests of what screens draw and ask for.
namespace vexal::test {

class Screen
{
public:
    /// Shows the QML document in a window of the size, with the store and the pictures that the fetch gives.
    Screen(Store &store, const QByteArray &qml, QSize size, Images::Fetch fetch = Images::fetchNothing)
        : m_images(QString(), std::move(fetch))
        , m_window(&m_engine, nullptr)
    {
        // What goes wrong in a screen is said in a warning.
        QTest::failOnWarning(
            QRegularExpression(QStringLiteral("TypeError|ReferenceError|Unable to assign|loop detected")));
        giveStore(m_engine, store);
        giveImages(m_engine, m_images);
        m_component = std::make_unique<QQmlComponent>(&m_engine);
        m_component->setData(qml, QUrl(QStringLiteral("qrc:/test/Screen.qml")));
        QObject *root = m_component->create();
        if (!root)
            qFatal("%s", qPrintable(m_component->errorString()));
        m_window.setResizeMode(QQuickView::SizeRootObjectToView);
        m_window.resize(size);
        m_window.setContent(QUrl(), m_component.get(), root);
        m_window.show();
        // Another test on the same display may take the keyboard at the same moment.
        const auto isActive = [this] {
            if (!m_window.isActive())
                m_window.requestActivate();
            return m_window.isActive() && m_window.isExposed();
        };
        constexpr int patience = 60'000; // milliseconds
        if (!QTest::qWaitFor(isActive, patience))
            qFatal("the window never came up");
    }

    QQuickView &window() { return m_window; }
    Images &images() { return m_images; }

    /// The visible items made of the QML file of that name, in the order in which they are drawn.
    QList<QQuickItem *> all(const QByteArray &type) const
    {
        QList<QQuickItem *> found;
        collect(m_window.contentItem(), type, found); // overlays lie beside the root
        return found;
    }

    /// The only visible item of that kind.
    QQuickItem *only(const QByteArray &type) const
    {
        const auto found = all(type);
        if (found.size() != 1)
            qWarning("%lld items are a %s", qlonglong(found.size()), type.constData());
        return found.size() == 1 ? found.first() : nullptr;
    }

    /// The visible texts, in the order in which they are drawn.
    QStringList texts() const
    {
        QStringList texts;
        for (const QQuickItem *label : all("Label"))
            texts.append(label->property("text").toString());
        return texts;
    }

    /// Clicks the middle of the item, where it is once everything has been laid out.
    void click(const QQuickItem *item, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        if (!QQuickTest::qWaitForPolish(&m_window))
            qFatal("the window never came to rest");
        const QPoint middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
        QTest::mouseClick(&m_window, Qt::LeftButton, modifiers, middle);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&m_window, key, modifiers);
    }
    /// Holds the key down until it has repeated three times.
    void hold(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyPress(&m_window, key, modifiers);
        for (int i = 0; i < 3; ++i)
            QTest::simulateEvent(&m_window, true, key, modifiers, {}, true);
        QTest::keyRelease(&m_window, key, modifiers);
    }

private:
    static void collect(QQuickItem *item, const QByteArray &type, QList<QQuickItem *> &found)
    {
        if (!item || !item->isVisible())
            return;
        const QByteArray name = item->metaObject()->className();
        if (name.startsWith(type + "_QML") || name == "vexal::" + type || name.startsWith("vexal::" + type + "_QML"))
            found.append(item);
        const auto children = item->childItems();
        for (QQuickItem *child : children)
            collect(child, type, found);
    }

    Images m_images;
    QQmlEngine m_engine;
    std::unique_ptr<QQmlComponent> m_component;
    QQuickView m_window;
};

} // namespace vexal::test
