#pragma once

#include "failure.h"

#include <utility>
#include <variant>

namespace vexal {

/// A value, or why there is none.
template <typename Value>
class Result
{
public:
    Result(Value value)
        : m_outcome(std::move(value))
    {
    }
    Result(Failure failure)
        : m_outcome(std::move(failure))
    {
    }

    explicit operator bool() const { return std::holds_alternative<Value>(m_outcome); }

    /// The value of a result that has one.
    const Value &operator*() const { return std::get<Value>(m_outcome); }
    const Value *operator->() const { return &std::get<Value>(m_outcome); }

    /// The failure of a result that has no value.
    const Failure &failure() const { return std::get<Failure>(m_outcome); }

private:
    std::variant<Value, Failure> m_outcome;
};

} // namespace vexal
