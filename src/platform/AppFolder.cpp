#include "platform/AppFolder.h"

#include "platform/Files.h"

#include <fstream>

namespace gatewise {

namespace fs = std::filesystem;

namespace {

constexpr const char* kFolderName = "Gatewise Terminal";

/// Permission bits tell little about network drives and system folders; a file that comes into being does.
bool canWrite(const fs::path& folder) {
    const fs::path probe = folder / "gatewise-probe.tmp";
    const bool written = static_cast<bool>(std::ofstream(probe) << "probe" << std::flush);
    std::error_code ignored;
    fs::remove(probe, ignored);
    return written;
}

/// Copies under another name first: a copy that was cut short is no folder to start from.
std::error_code fill(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::path half = to;
    half += ".part";
    fs::remove_all(half, error);
    if (!error) fs::create_directories(half, error);
    if (!error) fs::copy(from, half, fs::copy_options::recursive, error);
    if (error) return error;
    // What was protected at its source must be free to change here.
    for (fs::recursive_directory_iterator it(half, error), end; !error && it != end; it.increment(error)) {
        fs::permissions(it->path(), fs::perms::owner_write, fs::perm_options::add, error);
        if (error) break;
    }
    if (!error) fs::rename(half, to, error);
    return error;
}

} // namespace

std::string chooseAppDir(const fs::path& program, const fs::path& userData, std::error_code& error) {
    error.clear();
    if (canWrite(program)) return files::textOf(program);
    const fs::path own = userData / kFolderName;
    std::error_code missing;
    if (!fs::is_directory(own, missing)) error = fill(program, own);
    return files::textOf(error ? program : own);
}

} // namespace gatewise
