#include "platform/InFile.h"

#include "platform/NativePath.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

namespace gatewise::files {

namespace {

std::error_code systemError() {
    return {errno, std::generic_category()};
}

std::int64_t joinedHalves(DWORD high, DWORD low) {
    return static_cast<std::int64_t>((static_cast<std::uint64_t>(high) << 32U) | low);
}

bool stampFrom(HANDLE file, Stamp& stamp) {
    BY_HANDLE_FILE_INFORMATION info{};
    if (GetFileInformationByHandle(file, &info) == 0) return false;
    stamp.device = info.dwVolumeSerialNumber;
    stamp.file = static_cast<std::uint64_t>(joinedHalves(info.nFileIndexHigh, info.nFileIndexLow));
    stamp.size = joinedHalves(info.nFileSizeHigh, info.nFileSizeLow);
    stamp.changed = joinedHalves(info.ftLastWriteTime.dwHighDateTime, info.ftLastWriteTime.dwLowDateTime);
    return true;
}

} // namespace

Stamp stampOf(const std::filesystem::path& native) {
    return InFile(native).stamp();
}

InFile::InFile(const std::filesystem::path& path) {
    const auto native = reachable(path);
    if (kindOf(native) == Kind::Folder) {
        error_ = std::make_error_code(std::errc::is_a_directory);
        return;
    }
    handle_ = _wopen(native.c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
    if (handle_ < 0) {
        error_ = systemError();
        return;
    }
    const auto file = reinterpret_cast<HANDLE>(_get_osfhandle(handle_));
    // A device or a pipe would hold the program until somebody writes into it.
    if (GetFileType(file) == FILE_TYPE_DISK && stampFrom(file, stamp_)) return;
    error_ = std::make_error_code(std::errc::not_supported);
    _close(handle_);
    handle_ = -1;
}

InFile::~InFile() {
    if (handle_ >= 0) _close(handle_);
}

std::size_t InFile::read(long long offset, std::span<std::uint8_t> out, std::error_code& error) const {
    constexpr std::size_t kMost = 1U << 30U; // of one call
    error.clear();
    if (_lseeki64(handle_, offset, SEEK_SET) != offset) error = systemError();
    std::size_t done = 0;
    while (done < out.size() && !error) {
        const int count =
            _read(handle_, out.data() + done, static_cast<unsigned>(std::min(out.size() - done, kMost)));
        if (count == 0) break;
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else
            error = systemError();
    }
    return done;
}

} // namespace gatewise::files
