#pragma once

#include <QTypeInfo>

#include <cstddef>
#include <tuple>

/// VEXAL_FIELDS(Record, field, ...) names the fields of a record once. Decoding, encoding and hashing walk that list,
/// so a field that is named there is read, written and hashed, and its name is its key on the wire. A field that is not
/// named there does not compile.
namespace vexal {

/// One field of a record: its key on the wire and where it lives.
template <typename Owner, typename Value>
struct Field
{
    const char *key;
    Value Owner::*member;
};

template <typename Owner, typename Value>
constexpr Field<Owner, Value> field(const char *key, Value Owner::*member)
{
    return {key, member};
}

/// A type whose fields VEXAL_FIELDS names.
template <typename T>
concept Record = requires
{
    fieldsOf(static_cast<const T *>(nullptr));
};

/// How many fields a record has.
template <Record R>
constexpr std::size_t fieldCount = std::tuple_size_v<decltype(fieldsOf(static_cast<const R *>(nullptr)))>;

/// Calls \a visit with each field of \a record, in their order: its key and its value.
template <Record R, typename Visit>
constexpr void forEachField(R &record, Visit visit)
{
    std::apply([&](auto... field) { (visit(field.key, record.*field.member), ...); }, fieldsOf(&record));
}

/// Whether values of these types, one after the other, fill a \a Owner: then none of its fields was forgotten.
template <typename Owner, typename... Value>
constexpr bool fill(const std::tuple<Field<Owner, Value>...> &)
{
    const auto aligned = [](std::size_t offset, std::size_t alignment) {
        return (offset + alignment - 1) / alignment * alignment;
    };
    std::size_t end = 0;
    ((end = aligned(end, alignof(Value)) + sizeof(Value)), ...);
    return aligned(end, alignof(Owner)) == sizeof(Owner);
}

} // namespace vexal

// A record consists of Qt's values and optionals of them, none of which points into itself: lists may move its bytes.
template <vexal::Record R>
Q_DECLARE_TYPEINFO_BODY(R, Q_RELOCATABLE_TYPE);

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
    }                                                                                                                  \
    static_assert(::vexal::fill(fieldsOf(static_cast<const Record *>(nullptr))), "name every field, in order");
