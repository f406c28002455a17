#include "unpack/Packing.h"

#include "platform/Files.h"

#ifdef GATEWISE_HAS_ARCHIVE
#include <archive.h>
#include <archive_entry.h>
#endif

namespace gatewise::unpack {

namespace {

using importer::SourceBytes;

/// A source that only says why it cannot be read.
class Unreadable : public SourceBytes {
public:
    explicit Unreadable(std::string why) : why_(std::move(why)) {}
    std::size_t read(std::span<char>) override { return 0; }
    [[nodiscard]] std::string error() const override { return why_; }

private:
    std::string why_;
};

#ifdef GATEWISE_HAS_ARCHIVE

struct Closes {
    void operator()(archive* a) const { archive_read_free(a); }
};
using Handle = std::unique_ptr<archive, Closes>;

std::string wordOf(archive* a) {
    const char* text = archive_error_string(a);
    return std::string("cannot be unpacked: ") + (text != nullptr ? text : "damaged");
}

/// Opens a file with the one form that it is packed in; nothing else is tried.
Handle openArchive(const std::filesystem::path& file, Packing packing, std::string& error) {
    Handle out(archive_read_new());
    if (packing == Packing::Gz) archive_read_support_filter_gzip(out.get());
    if (packing == Packing::Xz) archive_read_support_filter_xz(out.get());
    if (packing == Packing::Zip)
        archive_read_support_format_zip(out.get());
    else
        archive_read_support_format_raw(out.get());
    constexpr std::size_t block = 65536;
    if (archive_read_open_filename(out.get(), file.string().c_str(), block) == ARCHIVE_OK) return out;
    error = wordOf(out.get());
    return nullptr;
}

/// Goes to the next plain file; false at the end.
bool nextFile(archive* a, archive_entry*& entry, std::string& error) {
    for (;;) {
        const int result = archive_read_next_header(a, &entry);
        if (result == ARCHIVE_EOF) return false;
        if (result != ARCHIVE_OK && result != ARCHIVE_WARN) {
            error = wordOf(a);
            return false;
        }
        if (archive_entry_filetype(entry) == AE_IFREG || archive_entry_filetype(entry) == 0) return true;
    }
}

class Unpacked : public SourceBytes {
public:
    Unpacked(Handle handle, std::string error) : handle_(std::move(handle)), error_(std::move(error)) {}

    std::size_t read(std::span<char> out) override {
        if (!error_.empty()) return 0;
        const auto count = archive_read_data(handle_.get(), out.data(), out.size());
        if (count >= 0) return static_cast<std::size_t>(count);
        error_ = wordOf(handle_.get());
        return 0;
    }
    [[nodiscard]] std::string error() const override { return error_; }

private:
    Handle handle_;
    std::string error_;
};

#endif

} // namespace

#ifdef GATEWISE_HAS_ARCHIVE

std::vector<std::string> entriesOf(const std::filesystem::path& zip, std::string& error) {
    std::vector<std::string> out;
    const Handle handle = openArchive(zip, Packing::Zip, error);
    archive_entry* entry = nullptr;
    while (handle != nullptr && nextFile(handle.get(), entry, error)) {
        const char* name = archive_entry_pathname_utf8(entry);
        if (name == nullptr) name = archive_entry_pathname(entry);
        out.emplace_back(name != nullptr ? name : "a file");
    }
    return out;
}

std::unique_ptr<SourceBytes> openPacked(const std::filesystem::path& file, Packing packing,
                                        std::size_t entry) {
    std::string error;
    Handle handle = openArchive(file, packing, error);
    archive_entry* header = nullptr;
    if (handle == nullptr) return std::make_unique<Unreadable>(error);
    for (std::size_t i = 0; i <= entry; ++i)
        if (!nextFile(handle.get(), header, error))
            return std::make_unique<Unreadable>(error.empty() ? "cannot be unpacked: empty" : error);
    return std::make_unique<Unpacked>(std::move(handle), "");
}

#else

namespace {

std::string lacking(Packing packing) {
    return "is packed as ." + nameOf(packing) + ", which this build cannot unpack; unpack it first";
}

} // namespace

std::vector<std::string> entriesOf(const std::filesystem::path&, std::string& error) {
    error = lacking(Packing::Zip);
    return {};
}

std::unique_ptr<SourceBytes> openPacked(const std::filesystem::path&, Packing packing, std::size_t) {
    return std::make_unique<Unreadable>(lacking(packing));
}

#endif

} // namespace gatewise::unpack
