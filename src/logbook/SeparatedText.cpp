#include "logbook/SeparatedText.h"

namespace gatewise {

/// What stands in quotes; false, and the reader only behind the quote, when they never end.
bool SeparatedText::takeQuoted(std::string& cell) {
    const std::size_t begin = ++at_;
    for (; !atEnd(); ++at_) {
        if (text_[at_] != '"') {
            cell += text_[at_];
        } else if (at_ + 1 < text_.size() && text_[at_ + 1] == '"') {
            cell += text_[++at_];
        } else {
            ++at_;
            return true;
        }
    }
    at_ = begin;
    return false;
}

std::string SeparatedText::takeCell() {
    std::string cell;
    if (!atEnd() && text_[at_] == '"' && !takeQuoted(cell)) cell.clear();
    while (!atEnd() && text_[at_] != sign_ && !atLineEnd()) cell += text_[at_++];
    return cell;
}

void SeparatedText::takeRow(std::vector<std::string>& row) {
    row.clear();
    for (bool more = true; more;) {
        std::string cell = takeCell();
        if (row.size() < kMostCells) row.push_back(std::move(cell));
        more = !atEnd() && text_[at_] == sign_;
        if (more) ++at_;
    }
    while (!atEnd() && atLineEnd()) ++at_;
}

bool SeparatedText::next(std::vector<std::string>& row) {
    while (!atEnd()) {
        takeRow(row);
        if (row.size() > 1 || !row[0].empty()) return true;
    }
    return false;
}

} // namespace gatewise
