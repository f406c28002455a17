#include "gt1/Report.h"

namespace gatewise::gt1 {

namespace {

std::string textOf(const Place& place) {
    std::string out = place.file;
    if (place.line > 0) out += ":" + std::to_string(place.line);
    out += ": ";
    if (place.column > 0) out += "column " + std::to_string(place.column) + " (" + place.name + "): ";
    return out;
}

} // namespace

void Report::error(const Place& place, std::string_view expected, std::string_view found) {
    errors_.push_back(textOf(place) + "expected " + std::string(expected) + ", found " + std::string(found));
}

void Report::unreadable(const Place& place, std::string_view expected, std::string_view found) {
    error(place, expected, found);
    unreadable_ = true;
}

void Report::warning(const Place& place, std::string_view message) {
    warnings_.push_back(textOf(place) + std::string(message));
}

void Report::reached(double share) {
    share_ = share;
    goesOnNow();
}

bool Report::goesOnNow() {
    stopped_ = stopped_ || (watch_ && !watch_(share_));
    return !stopped_;
}

std::string inQuotes(std::string_view text) {
    constexpr std::size_t longest = 60;
    if (text.size() <= longest) return "\"" + std::string(text) + "\"";
    std::size_t end = longest;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) --end; // no half characters
    return "\"" + std::string(text.substr(0, end)) + "...\"";
}

} // namespace gatewise::gt1
