#include "platform/Profile.h"

#include <algorithm>

namespace gatewise {

using profile::body;
using profile::equalsSign;
using profile::isSpace;
using profile::KeyIndex;
using profile::lineAt;
using profile::stripped;
using profile::valueOf;

namespace {

/// A line with another value. The blanks around the old value stay, but not next to blanks that the value
/// brings itself: they would grow with every write.
std::string lineWith(std::string_view line, std::string_view value) {
    const std::string_view text = body(line);
    std::size_t from = equalsSign(line) + 1;
    std::size_t to = text.size();
    const bool blankFirst = !value.empty() && isSpace(value.front());
    const bool blankLast = !value.empty() && isSpace(value.back());
    while (!blankFirst && from < text.size() && isSpace(text[from])) ++from;
    while (!blankLast && to > from && isSpace(text[to - 1])) --to;
    return std::string(line.substr(0, from)).append(value).append(line.substr(to));
}

/// New lines behind `out`, whose last line may lack its end. An end-of-text mark (1A) belongs to no value,
/// but it does not end the line either.
void appendLines(std::string& out, const std::vector<std::string>& lines) {
    if (lines.empty()) return;
    if (!out.empty() && out.back() != '\r' && out.back() != '\n') out += "\r\n";
    for (const std::string& line : lines) out += line;
}

} // namespace

Profile::Profile(std::string_view file) : Profile(Bytes(file.begin(), file.end())) {}

Profile::Profile(Bytes file) : coding_(codingOf(file)) {
    lines_ = unmarked(std::move(file), coding_);
    for (std::size_t at = 0, length = 0; at < lines_.size(); at += length) {
        const std::string_view line = lineAt(text(), at);
        length = line.size();
        if (profile::sectionName(line)) headers_.push_back(static_cast<std::uint32_t>(at));
    }
}

std::string_view Profile::text() const {
    return asText(lines_);
}

/// The line that began at `at`, as it is now.
std::string_view Profile::lineOf(std::size_t at) const {
    const auto changed = replaced_.find(at);
    return changed != replaced_.end() ? std::string_view(changed->second) : lineAt(text(), at);
}

void Profile::index(Section& section, std::size_t header) const {
    section.inFile = true;
    const auto next = std::upper_bound(headers_.begin(), headers_.end(), header);
    const std::size_t end = next == headers_.end() ? lines_.size() : *next;
    std::size_t length = lineAt(text(), header).size();
    section.end = header + length;
    for (std::size_t at = section.end; at < end; at += length) {
        const std::string_view line = lineAt(text(), at);
        length = line.size();
        if (!stripped(body(line)).empty()) section.end = at + length;
        section.keys.add(text(), at);
    }
}

Profile::Section& Profile::section(std::string_view name) const {
    name = stripped(name);
    for (const auto& known : sections_) {
        if (equalNoCase(known->name, name)) return *known;
    }
    sections_.push_back(std::make_unique<Section>());
    Section& out = *sections_.back();
    out.name = name;
    for (const std::uint32_t header : headers_) {
        const auto found = profile::sectionName(lineAt(text(), header));
        if (!found || !equalNoCase(*found, name)) continue;
        index(out, header);
        break;
    }
    return out;
}

std::string* Profile::addedLine(Section& section, std::string_view key) {
    for (std::string& line : section.added) {
        const auto equals = equalsSign(line);
        if (equals != std::string::npos &&
            equalNoCase(stripped(std::string_view(line).substr(0, equals)), key))
            return &line;
    }
    return nullptr;
}

std::optional<std::string> Profile::find(std::string_view sectionName, std::string_view keyName) const {
    const std::string name = valueFor(stripped(sectionName), coding_);
    const std::string key = valueFor(stripped(keyName), coding_);
    Section& place = section(name);
    const std::size_t line = place.keys.find(text(), key);
    const std::string* added = line == KeyIndex::kNone ? addedLine(place, key) : nullptr;
    if (line == KeyIndex::kNone && added == nullptr) return std::nullopt;
    return valueFrom(valueOf(added != nullptr ? std::string_view(*added) : lineOf(line)), coding_);
}

void Profile::set(std::string_view sectionName, std::string_view keyName, std::string_view newValue) {
    const std::string name = valueFor(onOneLine(sectionName), coding_);
    const std::string key = valueFor(onOneLine(keyName), coding_);
    const std::string value = valueFor(onOneLine(newValue), coding_);
    Section& place = section(name);
    const std::size_t line = place.keys.find(text(), key);
    if (line != KeyIndex::kNone) {
        replaced_[line] = lineWith(lineOf(line), value);
        return;
    }
    if (std::string* added = addedLine(place, stripped(key))) {
        *added = lineWith(*added, value);
        return;
    }
    if (!place.inFile && place.added.empty()) {
        place.added.push_back("[" + name + "]\r\n");
        appended_.push_back(&place);
    }
    place.added.push_back(key + "=" + value + "\r\n");
}

std::string Profile::content() const {
    std::map<std::size_t, const Section*> grown;
    for (const auto& section : sections_) {
        if (section->inFile && !section->added.empty()) grown[section->end] = section.get();
    }
    std::string out;
    out.reserve(lines_.size());
    std::size_t at = 0; // of what is not copied yet
    auto line = replaced_.begin();
    const auto copyTo = [&](std::size_t end) {
        for (; line != replaced_.end() && line->first < end; ++line) {
            out += text().substr(at, line->first - at);
            out += line->second;
            at = line->first + lineAt(text(), line->first).size();
        }
        out += text().substr(at, end - at);
        at = end;
    };
    for (const auto& [end, section] : grown) {
        copyTo(end);
        appendLines(out, section->added);
    }
    copyTo(lines_.size());
    for (const Section* section : appended_) appendLines(out, section->added);
    return marked(std::move(out), coding_);
}

} // namespace gatewise
