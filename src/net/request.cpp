#include "request.h"

#include <algorithm>

namespace vexal {

std::optional<QString> Response::header(QByteArrayView name) const
{
    const auto found = std::find_if(headers.begin(), headers.end(), [name](const Header &header) {
        return header.first.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == headers.end() ? std::nullopt : std::optional(QString::fromLatin1(found->second));
}

} // namespace vexal
