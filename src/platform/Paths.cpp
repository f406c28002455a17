#include "platform/Paths.h"

#include "platform/NativePath.h"
#include "platform/Text.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <utility>

namespace gatewise::files {

namespace fs = std::filesystem;

namespace {

bool isUtf8WithHighBytes(std::string_view text) {
    bool high = false;
    for (const char c : text) high = high || static_cast<unsigned char>(c) >= 0x80;
    if (!high) return false;
    for (std::size_t at = 0; at < text.size();) {
        char32_t point = 0;
        const std::size_t length = decodeUtf8(text, at, point);
        if (length == 0) return false;
        at += length;
    }
    return true;
}

std::string nativeName(std::string_view component) {
    return isUtf8WithHighBytes(component) ? std::string(component) : utf8FromText(component);
}

bool isThere(const fs::path& path) {
#ifdef _WIN32
    return kindOf(path) != Kind::None;
#else
    std::error_code error; // a link counts that leads nowhere
    return fs::symlink_status(path, error).type() != fs::file_type::not_found;
#endif
}

/// Whether `folder` has an entry of these very bytes, which need be no UTF-8 where names are bytes.
bool hasRaw([[maybe_unused]] const fs::path& folder, [[maybe_unused]] std::string_view bytes) {
#ifdef _WIN32
    return false;
#else
    return isThere(folder / bytes);
#endif
}

/// The entry of `folder` that the text `component` names, exact case first; as it would be created when there
/// is none.
fs::path child(const fs::path& folder, std::string_view component) {
    const std::string name = nativeName(component);
    fs::path exact = folder / pathOfUtf8(name);
    if (isThere(exact)) return exact;
    if (name != component && hasRaw(folder, component)) return folder / component;
    const std::string wanted = textOf(pathOfUtf8(name));
    for (const FolderEntry& entry : entriesOf(folder)) {
        if (equalNoCase(textOf(entry.name), wanted)) return folder / entry.name;
    }
    return exact;
}

bool isSeparator(char c) {
    return c == '/' || c == '\\';
}

/// What a path that begins with a slash begins with: on systems that have such, the name of a computer behind
/// two of them. `at` moves behind it.
fs::path rootOf(std::string_view path, [[maybe_unused]] std::size_t& at) {
#ifdef _WIN32
    if (path.size() > 2 && isSeparator(path[1]) && !isSeparator(path[2])) {
        at = std::min(path.find_first_of("/\\", 2), path.size());
        return pathOfUtf8("//" + nativeName(path.substr(2, at - 2)) + "/");
    }
#endif
    return !path.empty() && isSeparator(path[0]) ? fs::path("/") : fs::path();
}

/// Without what `reachable` put before it.
std::string withoutReach(std::string utf8) {
#ifdef _WIN32
    if (utf8.starts_with("\\\\?\\UNC\\")) return utf8.erase(2, 6);
    if (utf8.starts_with("\\\\?\\")) return utf8.erase(0, 4);
#endif
    return utf8;
}

} // namespace

fs::path target(std::string_view path) {
    if (path.find('\0') != std::string_view::npos) return {};
    std::size_t at = 0;
    fs::path out = rootOf(path, at);
    while (at <= path.size()) {
        auto end = path.find_first_of("/\\", at);
        if (end == std::string_view::npos) end = path.size();
        const std::string_view component = path.substr(at, end - at);
        at = end + 1;
        if (component.empty() || component == ".") continue;
        if (component == "..") {
            out = out.has_relative_path() ? out.parent_path() : out;
        } else if (component.size() == 2 && component[1] == ':' && out.empty()) {
            out = fs::path(std::string(component) + "/");
        } else {
            out = child(out.empty() ? fs::path(".") : out, component);
        }
    }
    return reachable(std::move(out));
}

std::string textOf(const fs::path& path) {
    const std::string utf8 = withoutReach(utf8Of(path));
    return exactTextFromUtf8(utf8).value_or(utf8);
}

} // namespace gatewise::files
