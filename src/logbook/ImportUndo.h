#pragma once

#include "logbook/LogRecord.h"

#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

// What undoes the last import, in files beside the log book so that a later run can do it too: the log book
// as it was before, as "LogBook.before-import", and the entries that came in, as "LogBook.imported". `path`
// is that of the log book.

namespace gatewise {

/// Both files; nothing where there is none.
struct KeptImport {
    std::optional<Bytes> before, imported;
};
KeptImport keptImport(std::string_view path);

/// Keeps both before `entries` come into the log book; no log book is an empty one. An error: one of them may
/// be written already.
[[nodiscard]] std::error_code keepImport(std::string_view path, const std::vector<LogRecord>& entries);

/// Makes both files what they were, as far as they can be written: the import came to nothing.
void putBackImport(std::string_view path, const KeptImport& old);

/// The entries of the last import; none when there was none, or when it was undone.
std::vector<LogRecord> importedEntries(std::string_view path);

/// The last import is undone. The log book before it stays.
[[nodiscard]] std::error_code forgetImport(std::string_view path);

/// The log book without the entries of an import: of equal ones the last, as often as they came in. What was
/// added or changed since stays.
std::vector<LogRecord> withoutImport(const std::vector<LogRecord>& book, const std::vector<LogRecord>& taken);

} // namespace gatewise
