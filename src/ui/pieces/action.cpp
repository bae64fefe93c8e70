#include "action.h"

#include <algorithm>
#include <utility>

namespace vexal {

Action::Action(const QString &name, const QStringList &sequences, const QString &section, Held held, QObject *parent)
    : QObject(parent)
    , m_name(name)
    , m_sequences(sequences)
    , m_section(section)
    , m_held(held)
{
}

void Action::trigger()
{
    if (OnAction *place = answering())
        Q_EMIT place->triggered();
}

OnAction *Action::answering() const
{
    const auto last =
        std::find_if(m_places.crbegin(), m_places.crend(), [](const OnAction *place) { return place->enabled(); });
    return last == m_places.crend() ? nullptr : *last;
}

void Action::add(OnAction *place)
{
    m_places.append(place);
    connect(place, &OnAction::enabledChanged, this, &Action::update);
    connect(place, &OnAction::checkedChanged, this, &Action::update);
    update();
}

void Action::remove(OnAction *place)
{
    m_places.removeOne(place);
    disconnect(place, nullptr, this, nullptr);
    update();
}

void Action::update()
{
    const OnAction *place = answering();
    const bool checked = place && place->checked();
    if (std::exchange(m_enabled, bool(place)) != bool(place))
        Q_EMIT enabledChanged();
    if (std::exchange(m_checked, checked) != checked)
        Q_EMIT checkedChanged();
}

OnAction::OnAction(QObject *parent)
    : QObject(parent)
{
}

OnAction::~OnAction()
{
    if (m_action)
        m_action->remove(this);
}

void OnAction::setAction(Action *action)
{
    if (m_action == action)
        return;
    if (m_action)
        m_action->remove(this);
    m_action = action;
    if (m_action)
        m_action->add(this);
    Q_EMIT actionChanged();
}

void OnAction::setEnabled(bool enabled)
{
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    Q_EMIT enabledChanged();
}

void OnAction::setChecked(bool checked)
{
    if (m_checked == checked)
        return;
    m_checked = checked;
    Q_EMIT checkedChanged();
}

} // namespace vexal
