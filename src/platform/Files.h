#pragma once

#include "platform/InFile.h"
#include "platform/Paths.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// Files by the system's own paths (see platform/Paths.h).

namespace gatewise::files {

/// The native path that stands for `path` now, to read from: its target, or what came with the program and is
/// found below AppDir (see platform/Delivered.h).
std::filesystem::path resolve(std::string_view path);

/// No file that the program reads whole comes near this many bytes (64 MB): what is longer is damaged.
inline constexpr long long kLongestFile = 64LL << 20U;

bool fileExists(std::string_view path);
bool folderExists(std::string_view path);

/// Name of an existing file as its folder spells it, empty when there is none.
std::string foundName(std::string_view path);

/// Whole file from one opening to its end; nothing when it cannot be read, is no plain file or is longer than
/// kLongestFile (`error` says why). `stamp` becomes that of the file that was read.
std::optional<Bytes> readAll(std::string_view path, std::error_code* error = nullptr, Stamp* stamp = nullptr);

/// Replaces the file in one step: written beside it, flushed, renamed; through a symbolic link its target is
/// replaced. On an error the old file is whole. Permissions of an old file are kept. With `old` only the file
/// that has this stamp is replaced: interrupted, when another program has changed it meanwhile.
[[nodiscard]] std::error_code replace(std::string_view path, ByteView bytes, const Stamp* old = nullptr);
[[nodiscard]] inline std::error_code replace(std::string_view path, std::string_view text) {
    return replace(path, viewOf(text));
}

/// The new bytes of a file from its old ones, of which there are none where there is no file; nothing to
/// leave it as it is.
using Change = std::function<std::optional<Bytes>(Bytes old)>;

/// Reads a file, changes it and replaces it. What another program did to the file meanwhile is read again and
/// changed in its turn. What is there but cannot be read is an error and is not written over.
[[nodiscard]] std::error_code rewrite(std::string_view path, const Change& change);

/// No error when there is no such file.
[[nodiscard]] std::error_code remove(std::string_view path);

struct Entry {
    std::string name; // text of the program
    bool folder = false;
};

/// Entries of a folder in the order that the file system gives, without "." and ".."; empty on any error.
std::vector<Entry> list(std::string_view path);

/// A file open for reading single records at byte offsets from 0. Never outlives the routine that opened it.
class RecordFile {
public:
    explicit RecordFile(std::string_view path);

    [[nodiscard]] bool isOpen() const { return file_.isOpen(); }
    [[nodiscard]] long long length() const { return file_.length(); }

    /// Fills `out` from `offset`; false, with `out` untouched, when the range does not lie wholly inside the
    /// file.
    bool read(long long offset, std::span<std::uint8_t> out) const;

    template<class Record> std::optional<Record> record(long long offset) const {
        std::uint8_t buffer[recordSize<Record>()];
        if (!read(offset, buffer)) return std::nullopt;
        Record value{};
        loadRecord(value, buffer);
        return value;
    }

    template<class T> std::optional<T> number(long long offset) const {
        std::uint8_t buffer[sizeof(T)];
        if (!read(offset, buffer)) return std::nullopt;
        return numberAt<T>(buffer, 0);
    }

    /// `count` records from `offset` in one read; nothing when they do not lie wholly inside, or are more
    /// than kLongestFile bytes.
    template<class Record>
    std::optional<std::vector<Record>> records(long long offset, long long count) const {
        constexpr auto size = static_cast<long long>(recordSize<Record>());
        if (count < 0 || offset < 0 || offset > length() || count > (length() - offset) / size)
            return std::nullopt;
        if (count > kLongestFile / size) return std::nullopt;
        Bytes block(static_cast<std::size_t>(count * size));
        if (!read(offset, block)) return std::nullopt;
        std::vector<Record> out(static_cast<std::size_t>(count));
        for (std::size_t i = 0; i < out.size(); ++i)
            loadRecord(out[i], block.data() + i * recordSize<Record>());
        return out;
    }

private:
    InFile file_;
};

} // namespace gatewise::files
