#include "platform/Files.h"
#include "platform/Delivered.h"
#include "platform/NativePath.h"
#include "platform/Text.h"

#include <algorithm>

namespace gatewise::files {

namespace fs = std::filesystem;

namespace {

std::vector<Entry> namedEntries(const fs::path& folder) {
    std::vector<Entry> out;
    for (const FolderEntry& entry : entriesOf(folder)) out.push_back({textOf(entry.name), entry.folder});
    return out;
}

} // namespace

fs::path resolve(std::string_view path) {
    fs::path own = target(path);
    if (own.empty()) return own;
    fs::path theirs = deliveredFor(path, own);
    return theirs.empty() ? own : theirs;
}

bool fileExists(std::string_view path) {
    return kindOf(resolve(path)) == Kind::File;
}

bool folderExists(std::string_view path) {
    return kindOf(resolve(path)) == Kind::Folder;
}

std::string foundName(std::string_view path) {
    const fs::path native = resolve(path);
    return kindOf(native) == Kind::File ? textOf(native.filename()) : std::string();
}

std::optional<Bytes> readAll(std::string_view path, std::error_code* error, Stamp* stamp) {
    const fs::path native = resolve(path);
    const InFile file(native);
    std::error_code failed = file.error();
    Bytes bytes;
    if (!failed) bytes.resize(file.readAll(bytes, kLongestFile, failed));
    if (error != nullptr) *error = failed;
    // What came with the program is not the file that would be replaced.
    if (stamp != nullptr) *stamp = native == target(path) ? file.stamp() : Stamp();
    if (failed) return std::nullopt;
    return bytes;
}

std::error_code rewrite(std::string_view path, const Change& change) {
    constexpr int kTries = 20;
    std::error_code error;
    for (int i = 0; i < kTries; ++i) {
        Stamp stamp;
        auto old = readAll(path, &error, &stamp);
        if (!old && error != std::errc::no_such_file_or_directory) return error;
        const auto bytes = change(old ? std::move(*old) : Bytes());
        if (!bytes) return {};
        error = replace(path, *bytes, &stamp);
        if (error != std::errc::interrupted) return error;
    }
    return error;
}

std::error_code remove(std::string_view path) {
    return removeFile(target(path));
}

std::vector<Entry> list(std::string_view path) {
    std::vector<Entry> out = namedEntries(target(path));
    const fs::path delivered = deliveredFolderOf(path);
    if (delivered.empty()) return out;
    const std::size_t own = out.size();
    for (Entry& entry : namedEntries(delivered)) {
        const auto same = [&](const Entry& other) { return equalNoCase(other.name, entry.name); };
        if (std::none_of(out.begin(), out.begin() + static_cast<std::ptrdiff_t>(own), same))
            out.push_back(std::move(entry));
    }
    return out;
}

RecordFile::RecordFile(std::string_view path) : file_(resolve(path)) {}

bool RecordFile::read(long long offset, std::span<std::uint8_t> out) const {
    const auto count = static_cast<long long>(out.size());
    if (!isOpen() || offset < 0 || offset > length() || count > length() - offset) return false;
    std::error_code error;
    return file_.read(offset, out, error) == out.size();
}

} // namespace gatewise::files
