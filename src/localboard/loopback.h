#pragma once

#include <string>

namespace vexal::local {

/// Whether nobody but this machine answers to the host: "localhost", an address such as "127.0.0.1", or "::1". A name
/// of any other kind may lead anywhere.
bool isLoopback(const std::string &host);

/// The host in a Host header, which may name a port and writes IPv6 in brackets; empty when it is none.
std::string hostIn(const std::string &header);

} // namespace vexal::local
