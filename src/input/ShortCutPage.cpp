#include "input/ShortCuts.h"
#include "platform/Text.h"

#include <utility>

namespace gatewise {

namespace {

/// Words of a keyboard for the names among programmers.
constexpr std::pair<const char*, const char*> kKeyNames[] = {
    {"PgUp", "Page Up"}, {"PgDown", "Page Down"}, {"Return", "Enter"}, {"Up", "&uarr;"},
    {"Left", "&larr;"},  {"Right", "&rarr;"},     {"Plus", "&#43;"}};

/// "<kbd>Ctrl</kbd> + <kbd>P</kbd>"
std::string keyCell(std::string_view keys) {
    for (const auto& [name, words] : kKeyNames) {
        if (keys == name) keys = words;
    }
    return "<kbd>" + replaceAll(std::string(keys), "+", "</kbd> + <kbd>") + "</kbd>";
}

} // namespace

std::string shortCutPage() {
    std::string page = "<h1>Short cuts</h1>\n"
                       "<p>Everything that a key does wherever the focus is.</p>\n"
                       "<table>\n<tr><th>Key</th><th>Where</th><th>Does</th></tr>\n";
    for (const ShortCut& row : shortCuts()) {
        page += "<tr><td>" + keyCell(row.keys) + "</td><td>" + row.where + "</td><td>" + row.words +
                "</td></tr>\n";
    }
    return page + "</table>\n";
}

} // namespace gatewise
