#pragma once

#include <optional>
#include <string>
#include <string_view>

// What stands behind a command's word. Lines are UTF-8; texts for the program come out as Windows-1252.

namespace gatewise::drive {

/// Takes the word up to the next blank off the front, and that blank.
std::string_view takeWord(std::string_view& rest);

/// The rest of a line as a text: itself, or what it stands for as a JSON string. Nothing when it begins with
/// a quote and is no JSON string.
std::optional<std::string> textArgument(std::string_view rest);

/// The same for the name of a file or folder, which may hold characters that Windows-1252 has not.
std::optional<std::string> pathArgument(std::string_view rest);

/// Takes one argument of a list off the front, a JSON string or a word; still UTF-8. Nothing when it is a
/// broken JSON string.
std::optional<std::string> takeArgument(std::string_view& rest);

/// Whole texts as numbers, with "." as decimal point.
std::optional<long long> integerArgument(std::string_view text);
std::optional<double> numberArgument(std::string_view text);

} // namespace gatewise::drive
