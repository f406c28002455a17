#include "logbook/SeparatedText.h"

namespace gatewise {

namespace {

/// Takes the cell that begins at `at` and leaves `at` on what follows it.
std::string takeCell(std::string_view text, std::size_t& at, char sign) {
    std::string cell;
    if (at < text.size() && text[at] == '"') {
        for (++at; at < text.size(); ++at) {
            if (text[at] != '"') {
                cell += text[at];
            } else if (at + 1 < text.size() && text[at + 1] == '"') {
                cell += text[++at];
            } else {
                ++at;
                break;
            }
        }
    }
    while (at < text.size() && text[at] != sign && text[at] != '\n' && text[at] != '\r') cell += text[at++];
    return cell;
}

} // namespace

std::vector<std::vector<std::string>> separatedRows(std::string_view text, char sign) {
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> row;
    std::size_t at = 0;
    while (at < text.size()) {
        row.push_back(takeCell(text, at, sign));
        if (at < text.size() && text[at] == sign) {
            ++at;
            if (at < text.size()) continue;
            row.emplace_back();
        }
        while (at < text.size() && (text[at] == '\n' || text[at] == '\r')) ++at;
        if (row.size() > 1 || !row[0].empty()) rows.push_back(std::move(row));
        row.clear();
    }
    return rows;
}

} // namespace gatewise
