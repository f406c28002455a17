#pragma once

#include <charconv>
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

/// The program's text of the name of a file or folder.
std::string pathText(std::string_view utf8);

/// A whole text as a number of type `T`, with "." as decimal point; nothing when it is none or out of range.
template<class T> std::optional<T> numberText(std::string_view text) {
    T value{};
    if (text.starts_with('+')) text.remove_prefix(1);
    const auto* last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, value);
    if (error != std::errc() || end != last) return std::nullopt;
    return value;
}

inline std::optional<long long> integerArgument(std::string_view text) {
    return numberText<long long>(text);
}
inline std::optional<double> numberArgument(std::string_view text) {
    return numberText<double>(text);
}

} // namespace gatewise::drive
