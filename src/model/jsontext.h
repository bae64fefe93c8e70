#pragma once

#include <QString>

#include <array>
#include <optional>
#include <string_view>

/// Texts as JSON writes them.
namespace vexal {

/// The text that \a raw, what stands between the quotes of a JSON string, stands for; nothing when an escape is wrong
/// or a surrogate is without its other half. \a raw must be valid UTF-8.
std::optional<QString> textOf(std::string_view raw);

/// Remembers the short texts of one document, so that one that comes again and again (a status, a supplier, a person)
/// takes its memory once.
class Texts
{
public:
    /// As vexal::textOf(). \a raw must stay where it is as long as this object lives.
    std::optional<QString> textOf(std::string_view raw);

private:
    struct Known
    {
        std::string_view raw;
        QString text;
    };
    std::array<Known, 256> m_known; ///< By hash; of two with the same the later one stays.
};

} // namespace vexal
