#include "platform/FileSet.h"

#include "platform/FileNames.h"
#include "platform/Files.h"
#include "platform/Text.h"

namespace gatewise::files {

namespace fs = std::filesystem;

namespace {

constexpr const char* kJournal = "set.journal";

fs::path beside(const fs::path& folder, const std::string& name, const char* ending) {
    return folder / (name + ending);
}
fs::path newFile(const fs::path& folder, const std::string& name) {
    return beside(folder, name, ".part");
}
fs::path oldFile(const fs::path& folder, const std::string& name) {
    return beside(folder, name, ".old~");
}

bool isThere(const fs::path& path, std::error_code& error) {
    const fs::file_type type = fs::symlink_status(path, error).type();
    if (type == fs::file_type::not_found) error.clear();
    return type != fs::file_type::not_found;
}

std::vector<std::string> namesIn(std::string_view journal) {
    std::vector<std::string> out;
    for (std::size_t at = 0; at < journal.size();) {
        const auto end = journal.find('\n', at);
        if (end == std::string_view::npos) break;
        const std::string_view name = journal.substr(at, end - at);
        if (isFileName(name)) out.emplace_back(name);
        at = end + 1;
    }
    return out;
}

/// Old files of an earlier exchange; one that stayed would be taken for the way back of the next.
std::error_code dropRest(const fs::path& folder, const std::vector<std::string>& names) {
    std::error_code error;
    for (const std::string& name : names) {
        if (!error) fs::remove(oldFile(folder, name), error);
    }
    return error;
}

/// Moves the new file of a name into its place.
std::error_code advance(const fs::path& folder, const std::string& name) {
    std::error_code error;
    if (!isThere(newFile(folder, name), error) || error) return error;
    fs::rename(newFile(folder, name), folder / name, error);
    return error;
}

/// The same, and keeps the old file for a way back.
std::error_code exchange(const fs::path& folder, const std::string& name) {
    std::error_code error;
    const bool old = isThere(folder / name, error);
    if (old && !error) fs::rename(folder / name, oldFile(folder, name), error);
    return error ? error : advance(folder, name);
}

/// The way back of a file whose exchange began; what cannot go it is finished forward by the next run.
bool takeBack(const fs::path& folder, const std::string& name) {
    std::error_code error;
    if (isThere(oldFile(folder, name), error)) {
        fs::rename(oldFile(folder, name), folder / name, error);
    } else if (!error && !isThere(newFile(folder, name), error) && !error) {
        fs::remove(folder / name, error); // there was none before
    }
    return !error;
}

/// Exchanges all files; when one of them fails, those before it go back. `back` tells whether all of them
/// did.
SetFailure exchangeAll(const fs::path& folder, const std::vector<std::string>& names, bool& back) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto error = exchange(folder, names[i]);
        if (!error) continue;
        for (std::size_t k = 0; k <= i; ++k) back = takeBack(folder, names[k]) && back;
        return {error, names[i]};
    }
    return {};
}

SetFailure writeNew(const fs::path& folder, const std::vector<NamedBytes>& set) {
    for (const NamedBytes& file : set) {
        if (const auto error = replace(textOf(newFile(folder, file.name)), ByteView(file.bytes)))
            return {error, file.name};
    }
    return {};
}

void dropNew(const fs::path& folder, const std::vector<NamedBytes>& set) {
    std::error_code ignored;
    for (const NamedBytes& file : set) fs::remove(newFile(folder, file.name), ignored);
}

} // namespace

SetFailure replaceSet(const fs::path& folder, const std::vector<NamedBytes>& set) {
    if (SetFailure left = finishSet(folder); left.error) return left;
    std::vector<std::string> names;
    std::string journal;
    for (const NamedBytes& file : set) {
        names.push_back(file.name);
        journal += file.name + "\n";
    }
    const std::string journalPath = textOf(folder / kJournal);
    if (const auto error = dropRest(folder, names)) return {error, names.front()};
    SetFailure failure = writeNew(folder, set);
    if (!failure.error) failure = {replace(journalPath, journal), kJournal};
    bool back = true;
    if (!failure.error) failure = exchangeAll(folder, names, back);
    if (failure.error) {
        if (back && !remove(journalPath)) dropNew(folder, set);
        return failure;
    }
    (void)remove(journalPath);     // an old journal without new files is nothing to finish
    (void)dropRest(folder, names); // the next exchange drops it
    return {};
}

SetFailure finishSet(const fs::path& folder) {
    const std::string journalPath = textOf(folder / kJournal);
    std::error_code error;
    const auto journal = readAll(journalPath, &error);
    if (error == std::errc::no_such_file_or_directory) return {};
    if (error) return {error, kJournal};
    const auto names = namesIn(asText(*journal));
    for (const std::string& name : names) {
        if (const auto failed = advance(folder, name)) return {failed, name};
    }
    (void)dropRest(folder, names);
    return {remove(journalPath), kJournal};
}

} // namespace gatewise::files
