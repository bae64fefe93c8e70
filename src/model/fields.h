#pragma once

#include <tuple>

/// VEXAL_FIELDS(Record, field, ...) names the fields of a record once. Decoding, encoding and hashing walk that list,
/// so a field that is named there is read, written and hashed, and its name is its key on the wire.
namespace vexal {

/// One field of a record: its key on the wire and where it lives.
template <typename Record, typename Value>
struct Field
{
    const char *key;
    Value Record::*member;
};

template <typename Record, typename Value>
constexpr Field<Record, Value> field(const char *key, Value Record::*member)
{
    return {key, member};
}

} // namespace vexal

// One macro a field, by the classic recursive expansion of __VA_OPT__.
#define VEXAL_EXPAND(...) VEXAL_EXPAND3(VEXAL_EXPAND3(VEXAL_EXPAND3(__VA_ARGS__)))
#define VEXAL_EXPAND3(...) VEXAL_EXPAND2(VEXAL_EXPAND2(VEXAL_EXPAND2(__VA_ARGS__)))
#define VEXAL_EXPAND2(...) VEXAL_EXPAND1(VEXAL_EXPAND1(VEXAL_EXPAND1(__VA_ARGS__)))
#define VEXAL_EXPAND1(...) __VA_ARGS__
#define VEXAL_PARENS ()
#define VEXAL_FIELD(Record, name, ...)                                                                                 \
    ::vexal::field(#name, &Record::name) __VA_OPT__(, VEXAL_FIELD_AGAIN VEXAL_PARENS(Record, __VA_ARGS__))
#define VEXAL_FIELD_AGAIN() VEXAL_FIELD

#define VEXAL_FIELDS(Record, ...)                                                                                      \
    constexpr auto fieldsOf(const Record *)                                                                            \
    {                                                                                                                  \
        return std::make_tuple(VEXAL_EXPAND(VEXAL_FIELD(Record, __VA_ARGS__)));                                        \
    }
