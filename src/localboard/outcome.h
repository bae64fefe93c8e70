#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace vexal::local {

/// Why the board did not do what it was asked: a sentence for the person who asked, and the HTTP status that goes with
/// it.
struct Refusal
{
    int status = 400;
    QString sentence;
};

/// The request itself is at fault.
inline Refusal refused(const QString &sentence)
{
    return {400, sentence};
}

/// What it speaks of is not here.
inline Refusal unknown(const QString &sentence)
{
    return {404, sentence};
}

/// What came of asking for a \a T: it, or why not.
template <typename T>
class Outcome
{
public:
    Outcome(T value)
        : m_value(std::move(value))
    {
    }
    Outcome(Refusal refusal)
        : m_refusal(std::move(refusal))
    {
    }

    explicit operator bool() const { return m_value.has_value(); }
    const T &operator*() const { return *m_value; }
    const T *operator->() const { return &*m_value; }

    /// What \a next makes of the value, or the refusal as it is.
    template <typename Next>
    auto then(Next next) const -> decltype(next(std::declval<const T &>()))
    {
        if (m_value)
            return next(*m_value);
        return m_refusal;
    }

    /// Only where there is no value.
    const Refusal &refusal() const { return m_refusal; }

private:
    std::optional<T> m_value;
    Refusal m_refusal;
};

} // namespace vexal::local
