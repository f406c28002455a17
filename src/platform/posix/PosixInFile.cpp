#include "platform/InFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gatewise::files {

namespace {

std::error_code systemError() {
    return {errno, std::generic_category()};
}

Stamp stampFrom(const struct stat& status) {
    constexpr std::int64_t kNanoseconds = 1'000'000'000;
    return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
            static_cast<std::int64_t>(status.st_size),
            static_cast<std::int64_t>(status.st_mtim.tv_sec) * kNanoseconds + status.st_mtim.tv_nsec};
}

std::error_code kindError(const struct stat& status) {
    if (S_ISREG(status.st_mode)) return {};
    return std::make_error_code(S_ISDIR(status.st_mode) ? std::errc::is_a_directory
                                                        : std::errc::not_supported);
}

} // namespace

Stamp stampOf(const std::filesystem::path& native) {
    struct stat status {};
    const bool plain = ::stat(native.c_str(), &status) == 0 && S_ISREG(status.st_mode);
    return plain ? stampFrom(status) : Stamp();
}

InFile::InFile(const std::filesystem::path& native) {
    // A pipe or a line would hold the program until somebody writes into it.
    handle_ = ::open(native.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (handle_ < 0) {
        // Sockets and lines without a device answer so.
        error_ = errno == ENXIO ? std::make_error_code(std::errc::not_supported) : systemError();
        return;
    }
    struct stat status {};
    error_ = ::fstat(handle_, &status) == 0 ? kindError(status) : systemError();
    if (error_) {
        ::close(handle_);
        handle_ = -1;
        return;
    }
    stamp_ = stampFrom(status);
}

InFile::~InFile() {
    if (handle_ >= 0) ::close(handle_);
}

std::size_t InFile::read(long long offset, std::span<std::uint8_t> out, std::error_code& error) const {
    error.clear();
    std::size_t done = 0;
    while (done < out.size()) {
        const auto count = ::pread(handle_, out.data() + done, out.size() - done,
                                   static_cast<off_t>(offset) + static_cast<off_t>(done));
        if (count == 0) break;
        if (count > 0) {
            done += static_cast<std::size_t>(count);
        } else if (errno != EINTR) {
            error = systemError();
            break;
        }
    }
    return done;
}

} // namespace gatewise::files
