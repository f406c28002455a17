#include "platform/Files.h"

#include "platform/Text.h"
#include "platform/Utf8.h"

#include <cerrno>
#include <cstring>

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

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

/// The entry of `folder` that is `name`, exact case first; `name` itself when there is none.
fs::path child(const fs::path& folder, const std::string& name) {
    std::error_code error;
    fs::path exact = folder / name;
    if (fs::symlink_status(exact, error).type() != fs::file_type::not_found) return exact;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        if (equalNoCase(textFromUtf8(it->path().filename().string()), textFromUtf8(name))) return it->path();
    }
    return exact;
}

std::error_code lastError() {
    return {errno, std::generic_category()};
}

/// A path's narrow text is UTF-8, but the narrow calls of Windows take the ANSI page.
std::FILE* openFile(const fs::path& file, const char* mode) {
#ifdef _WIN32
    return _wfopen(file.c_str(), fs::path(mode).c_str());
#else
    return std::fopen(file.c_str(), mode);
#endif
}

} // namespace

fs::path resolve(std::string_view path) {
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
            out = child(out.empty() ? fs::path(".") : out, nativeName(component));
        }
    }
    return out;
}

std::string textOf(const fs::path& path) {
    bool lossless = false;
    std::string text = textFromUtf8(path.string(), &lossless);
    return lossless ? text : path.string();
}

bool fileExists(std::string_view path) {
    std::error_code error;
    return fs::is_regular_file(resolve(path), error);
}

bool folderExists(std::string_view path) {
    std::error_code error;
    return fs::is_directory(resolve(path), error);
}

std::string foundName(std::string_view path) {
    const fs::path native = resolve(path);
    std::error_code error;
    return fs::is_regular_file(native, error) ? textOf(native.filename()) : std::string();
}

std::optional<Bytes> readAll(std::string_view path, std::error_code* error) {
    const auto refused = [&](std::error_code why) {
        if (error != nullptr) *error = why;
        return std::nullopt;
    };
    const fs::path native = resolve(path);
    std::error_code found;
    const fs::file_status status = fs::status(native, found);
    if (fs::is_directory(status)) return refused(std::make_error_code(std::errc::is_a_directory));
    // A pipe would hold the window until somebody writes into it.
    if (fs::exists(status) && !fs::is_regular_file(status))
        return refused(std::make_error_code(std::errc::not_supported));
    std::FILE* file = openFile(native, "rb");
    if (file == nullptr) return refused(lastError());
    Bytes bytes;
    const auto expected = fs::file_size(native, found);
    if (!found && expected > static_cast<std::uintmax_t>(kLongestFile)) {
        std::fclose(file);
        return refused(std::make_error_code(std::errc::file_too_large));
    }
    if (!found) bytes.resize(static_cast<std::size_t>(expected));
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file));
    const bool failed = std::ferror(file) != 0;
    std::fclose(file);
    if (failed) return refused(std::make_error_code(std::errc::io_error));
    return bytes;
}

#ifndef _WIN32

namespace {

std::error_code writeFlushed(const std::string& name, ByteView bytes, mode_t mode) {
    ::unlink(name.c_str()); // what an interrupted run left, or a link to somewhere else
    const int handle = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (handle < 0) return lastError();
    ::fchmod(handle, mode);
    std::error_code error;
    for (std::size_t done = 0; done < bytes.size() && !error;) {
        const auto count = ::write(handle, bytes.data() + done, bytes.size() - done);
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (count == 0)
            error = std::make_error_code(std::errc::io_error);
        else if (errno != EINTR)
            error = lastError();
    }
    if (!error && ::fsync(handle) != 0) error = lastError();
    if (::close(handle) != 0 && !error) error = lastError();
    return error;
}

} // namespace

std::error_code replace(std::string_view path, ByteView bytes) {
    std::error_code error;
    fs::path target = resolve(path);
    for (int depth = 0; depth < 16 && fs::is_symlink(target, error); ++depth) {
        const fs::path next = fs::read_symlink(target, error);
        if (error) return error;
        target = next.is_absolute() ? next : target.parent_path() / next;
    }
    struct stat old {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    // A file that its owner protected is not replaced behind his back, although the folder would allow it.
    if (exists && (old.st_mode & 0222U) == 0) return std::make_error_code(std::errc::permission_denied);
    if (exists && ::access(target.c_str(), W_OK) != 0) return lastError();

    const std::string beside = target.string() + ".new~";
    error = writeFlushed(beside, bytes, exists ? old.st_mode & 07777U : 0644U);
    if (!error && std::rename(beside.c_str(), target.c_str()) != 0) error = lastError();
    if (error) {
        ::unlink(beside.c_str());
        return error;
    }
    const int folder = ::open(target.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
    return {};
}

#else

std::error_code replace(std::string_view path, ByteView bytes) {
    const fs::path target = resolve(path);
    fs::path beside = target;
    beside += ".new~";
    std::FILE* file = openFile(beside, "wb");
    if (file == nullptr) return lastError();
    const bool whole = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() &&
                       std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
    std::error_code error = whole ? std::error_code() : lastError();
    std::fclose(file);
    if (!error) fs::rename(beside, target, error);
    std::error_code ignored;
    if (error) fs::remove(beside, ignored);
    return error;
}

#endif

std::error_code remove(std::string_view path) {
    std::error_code error;
    fs::remove(resolve(path), error);
    return error;
}

std::vector<Entry> list(std::string_view path) {
    std::vector<Entry> out;
    std::error_code error;
    for (fs::directory_iterator it(resolve(path), error), end; !error && it != end; it.increment(error)) {
        std::error_code ignored;
        out.push_back({textOf(it->path().filename()), it->is_directory(ignored)});
    }
    return out;
}

RecordFile::RecordFile(std::string_view path) {
    const fs::path native = resolve(path);
    std::error_code error;
    if (!fs::is_regular_file(native, error)) return;
    const auto size = fs::file_size(native, error);
    if (error) return;
    file_ = openFile(native, "rb");
    length_ = file_ != nullptr ? static_cast<long long>(size) : 0;
}

RecordFile::~RecordFile() {
    if (file_ != nullptr) std::fclose(file_);
}

bool RecordFile::read(long long offset, std::span<std::uint8_t> out) const {
    const auto count = static_cast<long long>(out.size());
    if (file_ == nullptr || offset < 0 || offset > length_ || count > length_ - offset) return false;
    if (std::fseek(file_, static_cast<long>(offset), SEEK_SET) != 0) return false;
    return std::fread(out.data(), 1, out.size(), file_) == out.size();
}

} // namespace gatewise::files
