#include "wellformed.h"

#include "jsonnumber.h"
#include "jsontext.h"

#include <algorithm>
#include <vector>

namespace vexal {

namespace {

/// Walks over a JSON value without recursion, so that no nesting is too deep for the stack.
class Walk
{
public:
    explicit Walk(std::string_view json)
        : m_rest(json)
    {
    }

    bool reachesTheEnd()
    {
        do {
            if (!value())
                return false;
        } while (!m_open.empty());
        blanks();
        return m_rest.empty();
    }

private:
    /// Takes a value up to where the next one begins: of a container its opening, of what is complete its closings too.
    bool value()
    {
        blanks();
        if (take('{'))
            return opened(true);
        if (take('['))
            return opened(false);
        return scalar() && followed();
    }

    bool opened(bool object)
    {
        m_open.push_back(object);
        blanks();
        if (take(closing()))
            return closed();
        return !object || key();
    }

    bool closed()
    {
        m_open.pop_back();
        return followed();
    }

    /// Takes what stands between a complete value and the next one.
    bool followed()
    {
        for (; !m_open.empty(); m_open.pop_back()) {
            blanks();
            if (take(','))
                return !m_open.back() || key();
            if (!take(closing()))
                return false;
        }
        return true;
    }

    bool key()
    {
        blanks();
        if (!string())
            return false;
        blanks();
        return take(':');
    }

    bool scalar()
    {
        if (m_rest.starts_with('"'))
            return string();
        const std::string_view token = m_rest.substr(0, m_rest.find_first_of(" \t\n\r,:]}[{\""));
        m_rest.remove_prefix(token.size());
        return token == "true" || token == "false" || token == "null" || isNumber(token);
    }

    bool string()
    {
        if (!take('"'))
            return false;
        bool escapes = false;
        size_t end = 0;
        for (; end < m_rest.size() && m_rest[end] != '"'; ++end) {
            if (static_cast<unsigned char>(m_rest[end]) < 0x20)
                return false;
            if (m_rest[end] == '\\') {
                escapes = true;
                ++end;
            }
        }
        if (end >= m_rest.size())
            return false;
        const std::string_view raw = m_rest.substr(0, end);
        m_rest.remove_prefix(end + 1);
        return !escapes || textOf(raw);
    }

    void blanks() { m_rest.remove_prefix(std::min(m_rest.find_first_not_of(" \t\n\r"), m_rest.size())); }

    bool take(char wanted)
    {
        if (!m_rest.starts_with(wanted))
            return false;
        m_rest.remove_prefix(1);
        return true;
    }

    char closing() const { return m_open.back() ? '}' : ']'; }

    std::string_view m_rest;
    std::vector<bool> m_open; ///< The containers around where we are: true for an object.
};

} // namespace

bool isWellFormed(std::string_view json)
{
    return Walk(json).reachesTheEnd();
}

} // namespace vexal
