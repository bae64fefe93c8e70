#pragma once

#include "fields.h"

#include <QHashFunctions>
#include <QList>
#include <QMap>
#include <QString>

#include <functional>
#include <optional>

namespace vexal {

/// Gathers the hash of a record from all of its fields. Equal records give equal hashes.
class Hash
{
public:
    explicit Hash(size_t seed)
        : m_value(seed)
    {
    }

    size_t value() const { return m_value; }

    void add(const QString &text)
    {
        add(qint64(text.size())); // Qt's hash of a text is that of the text with zeros behind it.
        m_value = qHash(text, m_value);
    }

    void add(qint64 number) { m_value = qHash(number, m_value); }
    void add(double number) { m_value = qHash(number, m_value); }
    void add(bool truth) { add(qint64(truth)); }

    template <typename T>
    void add(const std::optional<T> &optional)
    {
        add(optional.has_value());
        if (optional)
            add(*optional);
    }

    template <typename T>
    void add(const QList<T> &list)
    {
        add(qint64(list.size()));
        for (const T &element : list)
            add(element);
    }

    template <typename T>
    void add(const QMap<QString, T> &map)
    {
        add(qint64(map.size()));
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
            add(entry.key());
            add(entry.value());
        }
    }

    template <Record R>
    void add(const R &record)
    {
        forEachField(record, [this](const char *, const auto &value) { this->add(value); });
    }

private:
    size_t m_value;
};

/// The hash of \a record over all of its fields: records can be keys of QHash and QSet.
template <Record R>
size_t qHash(const R &record, size_t seed) noexcept
{
    Hash hash(seed);
    hash.add(record);
    return hash.value();
}

} // namespace vexal

/// Records can be keys of the standard's unordered containers.
template <vexal::Record R>
struct std::hash<R>
{
    size_t operator()(const R &record) const noexcept { return qHash(record, 0); }
};
