#include "platform/ProfileLines.h"

namespace gatewise::profile {

namespace {

std::string_view keyOf(std::string_view line) {
    return stripped(line.substr(0, equalsSign(line)));
}

std::uint32_t foldedHash(std::string_view key) {
    std::uint32_t hash = 2166136261U;
    for (const char c : key) hash = (hash ^ static_cast<std::uint8_t>(lowerCase(c))) * 16777619U;
    return hash ^ hash >> 15U;
}

} // namespace

std::string_view stripped(std::string_view text) {
    while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back())) text.remove_suffix(1);
    return text;
}

std::string_view body(std::string_view line) {
    const auto end = line.find_last_not_of("\r\n\x1A");
    return end == std::string_view::npos ? std::string_view() : line.substr(0, end + 1);
}

std::optional<std::string_view> sectionName(std::string_view line) {
    const std::string_view text = stripped(body(line));
    if (text.empty() || text.front() != '[') return std::nullopt;
    const auto close = text.find(']');
    return stripped(text.substr(1, close == std::string_view::npos ? close : close - 1));
}

std::size_t equalsSign(std::string_view line) {
    const std::string_view text = body(line);
    const std::string_view inner = stripped(text);
    if (inner.empty() || inner.front() == ';') return std::string_view::npos;
    return text.find('=');
}

std::string_view valueOf(std::string_view line) {
    const std::string_view text = stripped(body(line).substr(equalsSign(line) + 1));
    const bool quoted =
        text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.back() == text.front();
    return quoted ? text.substr(1, text.size() - 2) : text;
}

std::string_view lineAt(std::string_view content, std::size_t at) {
    std::size_t end = at;
    while (end < content.size() && content[end] != '\r' && content[end] != '\n') ++end;
    if (end < content.size()) end += content.substr(end, 2) == "\r\n" ? 2 : 1;
    return content.substr(at, end - at);
}

void KeyIndex::add(std::string_view content, std::size_t at) {
    const std::string_view line = lineAt(content, at);
    if (equalsSign(line) == std::string_view::npos) return;
    constexpr std::size_t kFull = 9; // tenths
    if ((used_ + 1) * 10 > slots_.size() * kFull) grow();
    const std::string_view key = keyOf(line);
    const std::uint32_t hash = foldedHash(key);
    Slot& slot = slots_[slotOf(content, key, hash)];
    if (slot.line != 0) return;
    slot = {hash, static_cast<std::uint32_t>(at + 1)};
    ++used_;
}

std::size_t KeyIndex::find(std::string_view content, std::string_view key) const {
    if (slots_.empty()) return kNone;
    const Slot& slot = slots_[slotOf(content, stripped(key), foldedHash(stripped(key)))];
    return slot.line == 0 ? kNone : slot.line - 1;
}

/// The slot of a key, or the empty one where it would go.
std::size_t KeyIndex::slotOf(std::string_view content, std::string_view key, std::uint32_t hash) const {
    std::size_t at = hash & (slots_.size() - 1);
    while (slots_[at].line != 0 &&
           (slots_[at].hash != hash || !equalNoCase(keyOf(lineAt(content, slots_[at].line - 1)), key))) {
        at = (at + 1) & (slots_.size() - 1);
    }
    return at;
}

void KeyIndex::grow() {
    constexpr std::size_t kFirst = 16;
    std::vector<Slot> old(std::max(kFirst, slots_.size() * 2));
    old.swap(slots_);
    for (const Slot& slot : old) {
        if (slot.line == 0) continue;
        std::size_t at = slot.hash & (slots_.size() - 1);
        while (slots_[at].line != 0) at = (at + 1) & (slots_.size() - 1);
        slots_[at] = slot;
    }
}

} // namespace gatewise::profile
