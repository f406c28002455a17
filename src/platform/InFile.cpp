#include "platform/InFile.h"

#include <utility>

// What needs no call of one system.

namespace gatewise::files {

InFile::InFile(InFile&& other) noexcept
    : handle_(std::exchange(other.handle_, -1)), error_(other.error_), stamp_(other.stamp_) {}

InFile& InFile::operator=(InFile&& other) noexcept {
    std::swap(handle_, other.handle_);
    std::swap(error_, other.error_);
    std::swap(stamp_, other.stamp_);
    return *this;
}

std::size_t InFile::readAll(Bytes& buffer, long long most, std::error_code& error) const {
    constexpr std::size_t kStep = 65536;
    error.clear();
    const auto tooLarge = [&](long long size) {
        if (size > most) error = std::make_error_code(std::errc::file_too_large);
        return size > most;
    };
    if (tooLarge(length())) return 0;
    std::size_t size = 0;
    // Its length is a first word only: the file may grow while it is read.
    std::size_t wanted = static_cast<std::size_t>(length()) + 1;
    for (bool more = true; more; wanted = size + kStep) {
        if (buffer.size() < wanted) buffer.resize(wanted);
        const std::span<std::uint8_t> room(buffer.data() + size, buffer.size() - size);
        const std::size_t count = read(static_cast<long long>(size), room, error);
        size += count;
        more = count == room.size();
        if (error || tooLarge(static_cast<long long>(size))) return 0;
    }
    return size;
}

} // namespace gatewise::files
