#pragma once

#include "preferences.h"

#include <QHash>

/// Preferences that no file holds.
class MemoryPreferences : public vexal::Preferences
{
public:
    std::optional<QString> value(QStringView key) override
    {
        const auto found = m_values.constFind(key.toString());
        return found == m_values.cend() ? std::nullopt : std::optional(*found);
    }
    void setValue(QStringView key, const QString &value) override { m_values.insert(key.toString(), value); }
    void remove(QStringView key) override { m_values.remove(key.toString()); }

    const QHash<QString, QString> &values() const { return m_values; }

private:
    QHash<QString, QString> m_values;
};
