#pragma once

#include "platform/Binary.h"

#include <filesystem>
#include <system_error>

namespace gatewise::files {

/// What a file was at a moment: another file, or another content, has another stamp. All zero for no file.
struct Stamp {
    std::uint64_t device = 0;
    std::uint64_t file = 0;
    std::int64_t size = 0;    // bytes
    std::int64_t changed = 0; // time of the last change, in the system's finest unit

    friend bool operator==(const Stamp&, const Stamp&) = default;
};

/// The stamp of the plain file that `native` is now; all zero when there is none.
Stamp stampOf(const std::filesystem::path& native);

/// A plain file open for reading. What it says of its length is of the file that is open, whoever replaces
/// its name meanwhile. Opening never waits: a pipe, a device or a folder is an error.
class InFile {
public:
    InFile() = default;
    explicit InFile(const std::filesystem::path& native);
    ~InFile();
    InFile(InFile&& other) noexcept;
    InFile& operator=(InFile&& other) noexcept;

    [[nodiscard]] bool isOpen() const { return handle_ >= 0; }
    /// Why it is not open: no_such_file_or_directory, is_a_directory, not_supported for what is no file, or
    /// the system's word.
    [[nodiscard]] std::error_code error() const { return error_; }
    [[nodiscard]] const Stamp& stamp() const { return stamp_; }
    [[nodiscard]] long long length() const { return stamp_.size; }

    /// Fills `out` from `offset` as far as the file goes. The bytes that came, fewer only at the end.
    std::size_t read(long long offset, std::span<std::uint8_t> out, std::error_code& error) const;

    /// Everything up to the end into `buffer`, which grows as it must and keeps its size. The bytes that
    /// came; file_too_large above `most`.
    std::size_t readAll(Bytes& buffer, long long most, std::error_code& error) const;

private:
    int handle_ = -1;
    std::error_code error_;
    Stamp stamp_;
};

} // namespace gatewise::files
