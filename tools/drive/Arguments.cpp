#include "drive/Arguments.h"

#include "drive/Json.h"
#include "platform/Files.h"
#include "platform/NativePath.h"

namespace gatewise::drive {

namespace {

std::optional<std::string> utf8Argument(std::string_view rest) {
    if (!rest.starts_with('"')) return std::string(rest);
    auto value = takeJsonString(rest);
    if (value && !trimmed(rest).empty()) return std::nullopt;
    return value;
}

} // namespace

std::string_view takeWord(std::string_view& rest) {
    const auto blank = rest.find(' ');
    const std::string_view word = rest.substr(0, blank);
    rest = blank == std::string_view::npos ? std::string_view() : rest.substr(blank + 1);
    return word;
}

std::optional<std::string> textArgument(std::string_view rest) {
    const auto utf8 = utf8Argument(rest);
    if (!utf8) return std::nullopt;
    return textFromUtf8(*utf8);
}

std::optional<std::string> pathArgument(std::string_view rest) {
    const auto utf8 = utf8Argument(rest);
    if (!utf8) return std::nullopt;
    return pathText(*utf8);
}

std::string pathText(std::string_view utf8) {
    return files::textOf(files::pathOfUtf8(utf8));
}

std::optional<std::string> takeArgument(std::string_view& rest) {
    if (!rest.starts_with('"')) return std::string(takeWord(rest));
    auto value = takeJsonString(rest);
    if (!value) return std::nullopt;
    if (!rest.empty() && rest.front() != ' ') return std::nullopt;
    if (!rest.empty()) rest.remove_prefix(1);
    return value;
}

} // namespace gatewise::drive
