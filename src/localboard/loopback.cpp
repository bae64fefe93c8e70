#include "loopback.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <strings.h>

namespace vexal::local {

bool isLoopback(const std::string &host)
{
    in_addr v4{};
    in6_addr v6{};
    if (::inet_pton(AF_INET, host.c_str(), &v4) == 1)
        return ntohl(v4.s_addr) >> 24U == IN_LOOPBACKNET;
    if (::inet_pton(AF_INET6, host.c_str(), &v6) == 1)
        return IN6_IS_ADDR_LOOPBACK(&v6);
    return ::strcasecmp(host.c_str(), "localhost") == 0;
}

std::string hostIn(const std::string &header)
{
    const bool bracketed = header.starts_with('[');
    const auto end = header.find(bracketed ? ']' : ':');
    if (end == std::string::npos)
        return bracketed ? std::string() : header;
    const auto port = header.substr(bracketed ? end + 1 : end);
    if (!port.empty() && (port[0] != ':' || port.find_first_not_of("0123456789", 1) != std::string::npos))
        return {};
    return bracketed ? header.substr(1, end - 1) : header.substr(0, end);
}

} // namespace vexal::local
