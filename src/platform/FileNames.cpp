#include "platform/FileNames.h"

#include "platform/Text.h"

#include <algorithm>

namespace gatewise::files {

namespace {

constexpr std::string_view kDevices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
constexpr std::string_view kPorts[] = {"COM", "LPT"};
constexpr std::string_view kPortNumbers = "123456789\xB9\xB2\xB3"; // the raised digits count as well

bool isPort(std::string_view name) {
    return name.size() == 4 && kPortNumbers.find(name[3]) != std::string_view::npos &&
           std::any_of(std::begin(kPorts), std::end(kPorts),
                       [&](std::string_view port) { return equalNoCase(name.substr(0, 3), port); });
}

/// A device keeps its meaning behind any extension: "nul.pln" is the device, not a file.
bool isDevice(std::string_view name) {
    const std::string_view base = trimmed(name.substr(0, name.find('.')));
    return isPort(base) || std::any_of(std::begin(kDevices), std::end(kDevices),
                                       [&](std::string_view device) { return equalNoCase(base, device); });
}

bool isForbidden(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < 0x20 || code == 0x7F || std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
}

} // namespace

bool isFileName(std::string_view name) {
    // A name that ends in a blank or a dot loses it on Windows, and may then be another file's; "." and ".."
    // are among these.
    if (name.empty() || name.back() == ' ' || name.back() == '.') return false;
    return std::none_of(name.begin(), name.end(), isForbidden) && !isDevice(name);
}

std::optional<std::string> namedIn(std::string_view folder, std::string_view name, std::error_code& error) {
    error = isFileName(name) ? std::error_code() : std::make_error_code(std::errc::invalid_argument);
    if (error) return std::nullopt;
    return std::string(folder).append("\\").append(name);
}

} // namespace gatewise::files
