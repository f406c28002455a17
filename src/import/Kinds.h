#pragma once

#include "import/Kind.h"

#include <span>
#include <string>
#include <string_view>

namespace gatewise::importer {

/// What a person calls the kind: "airports (OpenFlights)".
std::string_view nameOf(Kind kind);

/// How many lines recognise() wants to see.
inline constexpr std::size_t kLinesToRecognise = 12;

/// The kind of a table by its first lines, never by its name.
Recognised recognise(std::span<const std::string> lines);

} // namespace gatewise::importer
