#pragma once

#include "store.h"

#include <QJSEngine>
#include <QQmlEngine>

namespace vexal {

/// Makes the one store known to an engine's screens as the singleton `Store`. Call it before the engine loads one.
inline void giveStore(QQmlEngine &engine, Store &store)
{
    engine.setProperty("store", QVariant::fromValue(&store));
}

/// The store as screens name it.
struct StoreInQml
{
    Q_GADGET
    QML_FOREIGN(vexal::Store)
    QML_NAMED_ELEMENT(Store)
    QML_SINGLETON

public:
    static Store *create(QQmlEngine *engine, QJSEngine *)
    {
        auto *store = engine->property("store").value<Store *>();
        Q_ASSERT_X(store, "StoreInQml", "an engine shows screens before it was given a store");
        QJSEngine::setObjectOwnership(store, QJSEngine::CppOwnership);
        return store;
    }
};

} // namespace vexal
