#include "logbook/ImportUndo.h"

#include "logbook/BesideBook.h"
#include "logbook/LogBook.h"
#include "platform/Files.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace gatewise {

namespace {

std::string beforePath(std::string_view path) {
    return besideBook(path, "LogBook.before-import");
}

std::string importedPath(std::string_view path) {
    return besideBook(path, "LogBook.imported");
}

std::string textOf(const LogRecord& entry) {
    Bytes bytes;
    appendRecord(bytes, entry);
    return std::string(asText(bytes));
}

void putBack(const std::string& file, const std::optional<Bytes>& old) {
    // Nobody can be told more than that the import failed, and that is said already.
    (void)(old ? files::replace(file, ByteView(*old)) : files::remove(file));
}

} // namespace

KeptImport keptImport(std::string_view path) {
    return {files::readAll(beforePath(path)), files::readAll(importedPath(path))};
}

std::error_code keepImport(std::string_view path, const std::vector<LogRecord>& entries) {
    std::error_code error;
    const auto book = files::readAll(path, &error);
    if (!book && error != std::errc::no_such_file_or_directory) return error;
    Bytes imported;
    for (const LogRecord& entry : entries) appendRecord(imported, entry);
    error = files::replace(importedPath(path), ByteView(imported));
    return error ? error : files::replace(beforePath(path), ByteView(book.value_or(Bytes())));
}

void putBackImport(std::string_view path, const KeptImport& old) {
    putBack(beforePath(path), old.before);
    putBack(importedPath(path), old.imported);
}

std::vector<LogRecord> importedEntries(std::string_view path) {
    return readLogBook(importedPath(path));
}

std::error_code forgetImport(std::string_view path) {
    return files::remove(importedPath(path));
}

std::vector<LogRecord> withoutImport(const std::vector<LogRecord>& book,
                                     const std::vector<LogRecord>& taken) {
    std::unordered_map<std::string, int> out;
    for (const LogRecord& entry : taken) ++out[textOf(entry)];
    std::vector<LogRecord> left;
    for (auto entry = book.rbegin(); entry != book.rend(); ++entry) {
        const auto found = out.find(textOf(*entry));
        if (found != out.end() && found->second > 0)
            --found->second;
        else
            left.push_back(*entry);
    }
    std::reverse(left.begin(), left.end());
    return left;
}

} // namespace gatewise
