#include "change.h"

namespace vexal {

Store::Change::~Change()
{
    if (m_store.m_change != this)
        return;
    m_store.m_change = nullptr;
    for (const Signal changed : m_changed)
        Q_EMIT(m_store.*changed)();
}

void Store::Change::note(Signal changed)
{
    if (!m_changed.contains(changed))
        m_changed.append(changed);
}

} // namespace vexal
