#pragma once

#include <string_view>

// The project's own tables that travel inside of the program, as data/types and data/zones hold them.

namespace gatewise::importer {

extern const std::string_view kTypesTable;
extern const std::string_view kRelativesTable;
extern const std::string_view kModelsTable;
extern const std::string_view kZonesTable;

} // namespace gatewise::importer
