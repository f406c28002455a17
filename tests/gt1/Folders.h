#pragma once

#include "platform/Binary.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <map>
#include <string>

// Folders of tables for the tests of the data set compiler.

namespace gatewise::gt1 {

using TableTexts = std::map<std::string, std::string>;

/// The tables of a tiny world: AAA, BBB and CCC, two airlines, two aircraft, three flights, a plan with all
/// four kinds of points and one without any.
TableTexts tinyWorld();

void writeFolder(const TableTexts& files, const std::filesystem::path& folder);

/// Every file of a folder (without its sub-folders) by its name.
std::map<std::string, std::string> readFolder(const std::filesystem::path& folder);

/// Replaces the first `from`; the test fails when there is none.
void edit(std::string& text, const std::string& from, const std::string& to);

std::filesystem::path sampleFolder();      // the tables of the main set
std::filesystem::path smallSampleFolder(); // those of the further set

} // namespace gatewise::gt1
