#include "platform/Files.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gatewise::files {

namespace fs = std::filesystem;

namespace {

std::error_code callError() {
    return {errno, std::generic_category()};
}

std::error_code writeAll(int handle, ByteView bytes) {
    for (std::size_t done = 0; done < bytes.size();) {
        const auto count = ::write(handle, bytes.data() + done, bytes.size() - done);
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (count == 0)
            return std::make_error_code(std::errc::io_error);
        else if (errno != EINTR)
            return callError();
    }
    return {};
}

std::error_code writeFlushed(const std::string& name, ByteView bytes, mode_t mode) {
    ::unlink(name.c_str()); // what an interrupted run left, or a link to somewhere else
    const int handle = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (handle < 0) return callError();
    ::fchmod(handle, mode);
    std::error_code error = writeAll(handle, bytes);
    if (!error && ::fsync(handle) != 0) error = callError();
    if (::close(handle) != 0 && !error) error = callError();
    return error;
}

/// The file that `path` stands for behind its symbolic links.
std::error_code followLinks(fs::path& target) {
    std::error_code error;
    for (int depth = 0; depth < 16 && fs::is_symlink(target, error); ++depth) {
        const fs::path next = fs::read_symlink(target, error);
        if (error) return error;
        target = next.is_absolute() ? next : target.parent_path() / next;
    }
    return {};
}

/// What keeps an existing file from being replaced. `mode` becomes its permissions.
std::error_code refusal(const fs::path& target, mode_t& mode) {
    struct stat old {};
    if (::stat(target.c_str(), &old) != 0) return errno == ENOENT ? std::error_code() : callError();
    if (S_ISDIR(old.st_mode)) return std::make_error_code(std::errc::is_a_directory);
    if (!S_ISREG(old.st_mode)) return std::make_error_code(std::errc::not_supported);
    // A file that its owner protected is not replaced behind his back, although the folder would allow it.
    if ((old.st_mode & 0222U) == 0) return std::make_error_code(std::errc::permission_denied);
    if (::access(target.c_str(), W_OK) != 0) return callError();
    mode = old.st_mode & 07777U;
    return {};
}

/// The new name outlives a power cut only with its folder on the disk.
void flushFolder(const fs::path& path) {
    const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) return;
    ::fsync(folder);
    ::close(folder);
}

} // namespace

std::error_code replace(std::string_view path, ByteView bytes, const Stamp* old) {
    fs::path target = files::target(path);
    if (target.empty()) return std::make_error_code(std::errc::invalid_argument);
    mode_t mode = 0644;
    if (const auto error = followLinks(target)) return error;
    if (const auto error = refusal(target, mode)) return error;
    const std::string beside = target.string() + ".new~";
    std::error_code error = writeFlushed(beside, bytes, mode);
    if (!error && old != nullptr && stampOf(target) != *old)
        error = std::make_error_code(std::errc::interrupted);
    if (!error && std::rename(beside.c_str(), target.c_str()) != 0) error = callError();
    if (error) {
        ::unlink(beside.c_str());
        return error;
    }
    flushFolder(target.parent_path());
    return {};
}

} // namespace gatewise::files
