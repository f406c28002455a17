#include "platform/NativePath.h"

namespace gatewise::files {

namespace fs = std::filesystem;

fs::path pathOfUtf8(std::string_view utf8) {
#ifdef _WIN32
    return {std::u8string(utf8.begin(), utf8.end())};
#else
    return {utf8};
#endif
}

std::string utf8Of(const fs::path& path) {
    const auto utf8 = path.u8string();
    return {utf8.begin(), utf8.end()};
}

} // namespace gatewise::files
