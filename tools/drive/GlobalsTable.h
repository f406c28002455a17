#pragma once

#include "drive/Json.h"
#include "pages/Program.h"

#include <string_view>

namespace gatewise::drive {

/// A piece of the global state by its own name; false when there is none.
bool writeGlobal(JsonWriter& json, const Program& p, std::string_view name);

enum class Assigned { Done, NoSuchName, WrongValue };

/// Sets a value that functions without arguments of their own for it depend on. Texts are Windows-1252.
Assigned assignGlobal(Program& p, std::string_view name, std::string_view value);

/// Points 0 to planLast and every summary value.
void writePlan(JsonWriter& json, const Plan& plan);

} // namespace gatewise::drive
