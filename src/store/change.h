#pragma once

#include "store.h"

#include <QVarLengthArray>

#include <utility>

namespace vexal {

/// One change of the Store. Published fields are written through it; as it ends, the signal of each field that really
/// changed goes out once. A change within a change joins it, so that operations can be made of others.
class Store::Change
{
public:
    explicit Change(Store &store)
        : m_store(store)
        , m_whole(store.m_change ? *store.m_change : *this)
    {
        store.m_change = &m_whole;
    }
    ~Change();
    Q_DISABLE_COPY_MOVE(Change)

    /// Writes a field of the Store; answers whether that changed it.
    template <typename Field, typename Value>
    bool set(Field &field, Value &&value, void (Store::*changed)())
    {
        if (field == value)
            return false;
        field = std::forward<Value>(value);
        m_whole.note(changed);
        return true;
    }

    /// Writes one entry of a map of the Store.
    template <typename Value>
    void put(QMap<QString, Value> &map, const QString &key, const Value &value, void (Store::*changed)())
    {
        const auto held = map.constFind(key);
        if (held != map.cend() && *held == value)
            return;
        map.insert(key, value);
        m_whole.note(changed);
    }

    /// Takes an entry out of a map of the Store.
    template <typename Value>
    void remove(QMap<QString, Value> &map, const QString &key, void (Store::*changed)())
    {
        if (map.remove(key) > 0)
            m_whole.note(changed);
    }

    /// Lets a signal out with the others that is no field's.
    void tell(void (Store::*told)()) { m_whole.note(told); }

private:
    using Signal = void (Store::*)();

    void note(Signal changed);

    Store &m_store;
    Change &m_whole;
    QVarLengthArray<Signal, 8> m_changed;
};

} // namespace vexal
