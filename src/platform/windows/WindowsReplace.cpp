#include "platform/Files.h"
#include "platform/NativePath.h"

#include <cerrno>
#include <cstdio>
#include <io.h>

namespace gatewise::files {

namespace fs = std::filesystem;

namespace {

std::error_code callError() {
    return {errno, std::generic_category()};
}

/// A path's narrow text is UTF-8, but the narrow calls of Windows take the ANSI page.
std::error_code writeFlushed(const fs::path& name, ByteView bytes) {
    std::FILE* file = _wfopen(name.c_str(), L"wb");
    if (file == nullptr) return callError();
    const bool whole = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() &&
                       std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
    std::error_code error = whole ? std::error_code() : callError();
    if (std::fclose(file) != 0 && !error) error = callError();
    return error;
}

} // namespace

std::error_code replace(std::string_view path, ByteView bytes, const Stamp* old) {
    const fs::path target = files::target(path);
    if (target.empty()) return std::make_error_code(std::errc::invalid_argument);
    fs::path beside = target;
    beside += ".new~";
    std::error_code error = writeFlushed(beside, bytes);
    if (!error && old != nullptr && stampOf(target) != *old)
        error = std::make_error_code(std::errc::interrupted);
    if (!error) fs::rename(beside, target, error);
    if (error) (void)removeFile(beside); // the first reason is the one to tell
    return error;
}

} // namespace gatewise::files
