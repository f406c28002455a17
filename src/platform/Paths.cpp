#include "platform/Paths.h"

#include "platform/Text.h"
#include "platform/Utf8.h"

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
    std::error_code error;
    return fs::symlink_status(path, error).type() != fs::file_type::not_found;
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
    fs::path exact = folder / name;
    if (isThere(exact)) return exact;
    if (name != component && hasRaw(folder, component)) return folder / component;
    const std::string wanted = textOf(fs::path(name));
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        if (equalNoCase(textOf(it->path().filename()), wanted)) return it->path();
    }
    return exact;
}

} // namespace

fs::path target(std::string_view path) {
    if (path.find('\0') != std::string_view::npos) return {};
    fs::path out;
    std::size_t at = 0;
    if (!path.empty() && (path[0] == '/' || path[0] == '\\')) out = "/";
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
    return out;
}

std::string textOf(const fs::path& path) {
    return exactTextFromUtf8(path.string()).value_or(path.string());
}

} // namespace gatewise::files
