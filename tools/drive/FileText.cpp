#include "drive/FileText.h"

#include "platform/Utf8.h"

#include <algorithm>

namespace gatewise::drive {

namespace {

bool isUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        char32_t point = 0;
        const std::size_t length = decodeUtf8(text, at, point);
        if (length == 0) return false;
        at += length;
    }
    return true;
}

bool hasControls(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) {
        const auto code = static_cast<unsigned char>(c);
        return (code < 0x20 && c != '\t' && c != '\n' && c != '\r') || code == 0x7F;
    });
}

/// The page leaves five places empty.
bool isWindows1252(std::string_view text) {
    return text.find_first_of("\x81\x8D\x8F\x90\x9D") == std::string_view::npos;
}

std::string hex(std::string_view bytes) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string out;
    for (const char c : bytes) {
        const auto code = static_cast<unsigned char>(c);
        out += kDigits[code >> 4U];
        out += kDigits[code & 15U];
    }
    return out;
}

void writeText(JsonWriter& json, std::string_view utf8, const char* encoding) {
    json.key("text");
    json.utf8(utf8);
    json.key("encoding");
    json.text(encoding);
}

} // namespace

void writeFile(JsonWriter& json, ByteView bytes) {
    const std::string text(bytes.begin(), bytes.end());
    json.beginObject();
    if (!hasControls(text) && isUtf8(text)) {
        writeText(json, text, "UTF-8");
    } else if (!hasControls(text) && isWindows1252(text)) {
        writeText(json, utf8FromText(text), "Windows-1252");
    } else {
        json.key("hex");
        json.text(hex(text));
    }
    json.endObject();
}

} // namespace gatewise::drive
