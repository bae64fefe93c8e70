#pragma once

#include <QtGlobal>

#include <optional>
#include <string_view>

/// Numbers as JSON writes them, read from exactly their own characters.
namespace vexal {

/// Whether \a token is a number by JSON's grammar, of whatever size.
bool isNumber(std::string_view token);

/// The double that is nearest to \a token; nothing when \a token is no number or is larger than any double.
std::optional<double> doubleOf(std::string_view token);

/// The integer that \a token stands for, however it is written: "7", "7.0" and "70e-1" are 7. Nothing when \a token is
/// no number, is not whole, or does not fit into 64 bits with sign.
std::optional<qint64> integerOf(std::string_view token);

} // namespace vexal
