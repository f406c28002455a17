#include "OutsideFile.h"
#include "logbook/LogBook.h"

namespace {

using namespace gatewise;

/// A folder of this process, for the store keeps a copy beside its file.
struct Folder {
    Folder() { std::filesystem::create_directories(path); }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    const std::filesystem::path path = fuzz::scratchPath("logstore");
};

LogRecord marked() {
    LogRecord record;
    record.comments = "of the fuzzer";
    return record;
}

} // namespace

// Any bytes as a log book that is added to, changed and written anew: what was there stays where it was.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder;
    constexpr std::size_t kRecord = recordSize<LogRecord>();
    const std::string book = (folder.path / "LogBook.gt1").string();
    const Bytes old(data, data + size);
    fuzz::expect(!files::replace(book, old));
    LogStore store;
    std::vector<LogRecord> entries;
    fuzz::expect(!store.load(book, 1, entries));
    fuzz::expect(entries.size() == std::min<std::size_t>(size / kRecord, kLogEntries));

    fuzz::expect(!store.add(book, marked(), 1, entries));
    auto bytes = files::readAll(book).value_or(Bytes());
    const std::size_t whole = size / kRecord * kRecord;
    fuzz::expect(bytes.size() >= whole + kRecord);
    fuzz::expect(std::equal(old.begin(), old.begin() + static_cast<std::ptrdiff_t>(whole), bytes.begin()));

    fuzz::expect(!store.load(book, 1, entries));
    const std::size_t at = size % entries.size();
    fuzz::expect(!store.put(book, at, marked(), 1, entries));
    bytes = files::readAll(book).value_or(Bytes());
    const auto changed = recordAt<LogRecord>(bytes, at * kRecord);
    fuzz::expect(changed && changed->comments == marked().comments);

    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(at));
    fuzz::expect(!store.rewrite(book, entries, 1));
    fuzz::expect(readLogBook(book).size() == entries.size());
    return 0;
}
