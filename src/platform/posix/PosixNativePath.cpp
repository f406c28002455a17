#include "platform/NativePath.h"

#include <algorithm>

namespace gatewise::files {

namespace fs = std::filesystem;

Kind kindOf(const fs::path& path) {
    std::error_code error;
    switch (fs::status(path, error).type()) {
    case fs::file_type::regular:
        return Kind::File;
    case fs::file_type::directory:
        return Kind::Folder;
    case fs::file_type::none:
    case fs::file_type::not_found:
        return Kind::None;
    default:
        return Kind::Other;
    }
}

std::vector<FolderEntry> entriesOf(const fs::path& folder) {
    std::vector<FolderEntry> out;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        std::error_code ignored;
        out.push_back({it->path().filename(), it->is_directory(ignored)});
    }
    return out;
}

std::error_code removeFile(const fs::path& file) {
    std::error_code error;
    fs::remove(file, error);
    return error;
}

fs::path reachable(fs::path path) {
    return path;
}

std::vector<std::string> commandLine(int count, char** arguments) {
    return {arguments + std::min(count, 1), arguments + count};
}

} // namespace gatewise::files
