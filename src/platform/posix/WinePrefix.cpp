#include "platform/posix/WinePrefix.h"

#include "platform/Files.h"
#include "platform/Text.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <cstdlib>

namespace gatewise::native {

namespace fs = std::filesystem;

namespace {

bool isPrefix(const fs::path& folder) {
    std::error_code error;
    return fs::is_directory(folder / "drive_c", error);
}

void addPrefix(std::vector<fs::path>& prefixes, const fs::path& folder) {
    if (isPrefix(folder) && std::find(prefixes.begin(), prefixes.end(), folder) == prefixes.end()) {
        prefixes.push_back(folder);
    }
}

/// "\\" and "\"" stand for themselves, "\x20ac" for a character.
std::string unescaped(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            out += text[i];
            continue;
        }
        const char kind = text[++i];
        if (kind != 'x') {
            out += kind;
            continue;
        }
        std::size_t digits = 0;
        char32_t code = 0;
        while (digits < 4 && i + 1 < text.size() &&
               std::isxdigit(static_cast<unsigned char>(text[i + 1])) != 0) {
            code = code * 16 + static_cast<char32_t>(std::stoi(std::string(1, text[++i]), nullptr, 16));
            ++digits;
        }
        if (digits > 0)
            appendUtf8(out, code);
        else
            out += kind;
    }
    return out;
}

/// Between the brackets of a section's line, or empty.
std::string sectionName(std::string_view line) {
    const auto end = line.rfind(']');
    if (!line.starts_with('[') || end == std::string_view::npos) return {};
    return unescaped(line.substr(1, end - 1));
}

} // namespace

std::vector<fs::path> winePrefixes() {
    std::vector<fs::path> prefixes;
    if (const char* named = std::getenv("WINEPREFIX"); named != nullptr && *named != '\0')
        addPrefix(prefixes, named);
    const char* homeText = std::getenv("HOME");
    if (homeText == nullptr || *homeText == '\0') return prefixes;
    const fs::path home = homeText;
    addPrefix(prefixes, home / ".wine");
    for (const char* shelf :
         {".local/share/wineprefixes", ".PlayOnLinux/wineprefix", "Games", ".cxoffice",
          ".local/share/bottles/bottles", ".var/app/com.usebottles.bottles/data/bottles/bottles"}) {
        std::error_code error;
        for (fs::directory_iterator it(home / shelf, error), end; !error && it != end; it.increment(error)) {
            addPrefix(prefixes, it->path());
        }
    }
    return prefixes;
}

std::optional<fs::path> prefixOf(const fs::path& path) {
    for (fs::path at = path; at.has_relative_path(); at = at.parent_path()) {
        if (at.filename() == "drive_c" || at.filename() == "dosdevices") return at.parent_path();
    }
    return std::nullopt;
}

std::optional<std::string> registryText(std::string_view systemReg, std::string_view key,
                                        std::string_view value) {
    constexpr std::string_view kRoot = "Software\\";
    std::string wowKey(key);
    if (equalNoCase(key.substr(0, kRoot.size()), kRoot)) wowKey.insert(kRoot.size(), "Wow6432Node\\");
    const std::string quoted = "\"" + std::string(value) + "\"=\"";
    bool inside = false;
    while (!systemReg.empty()) {
        const auto end = systemReg.find('\n');
        std::string_view line = systemReg.substr(0, end);
        systemReg.remove_prefix(end == std::string_view::npos ? systemReg.size() : end + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.starts_with('[')) {
            const std::string name = sectionName(line);
            inside = equalNoCase(name, key) || equalNoCase(name, wowKey);
        } else if (inside && line.size() > quoted.size() && line.ends_with('"') &&
                   equalNoCase(line.substr(0, quoted.size()), quoted)) {
            line.remove_prefix(quoted.size());
            line.remove_suffix(1);
            return unescaped(line);
        }
    }
    return std::nullopt;
}

std::optional<fs::path> nativePath(const fs::path& prefix, std::string_view windowsPath) {
    if (windowsPath.size() < 2 || windowsPath[1] != ':') return std::nullopt;
    const char letter = lowerCase(windowsPath[0]);
    if (letter < 'a' || letter > 'z') return std::nullopt;
    std::error_code error;
    fs::path drive = prefix / "dosdevices" / (std::string(1, letter) + ":");
    if (!fs::is_directory(drive, error)) {
        if (letter != 'c') return std::nullopt;
        drive = prefix / "drive_c";
    } else if (letter == 'c') {
        drive = prefix / "drive_c"; // as a person would write it
    }
    std::string tail(windowsPath.substr(2));
    while (tail.ends_with('\\') || tail.ends_with('/')) tail.pop_back();
    return files::resolve(drive.string() + tail);
}

} // namespace gatewise::native
