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

/// Makes folders anew and copies files, each free to change: a folder that is copied with its protection
/// would not take its own files.
std::error_code copyFree(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::create_directories(to, error);
    for (fs::directory_iterator it(from, error), end; !error && it != end; it.increment(error)) {
        const fs::path target = to / it->path().filename();
        if (it->is_directory(error)) {
            error = copyFree(it->path(), target);
        } else if (!error) {
            fs::copy_file(it->path(), target, error);
            if (!error) fs::permissions(target, fs::perms::owner_write, fs::perm_options::add, error);
        }
        if (error) break;
    }
    return error;
}

/// Copies under another name first: a copy that was cut short is no folder to start from.
std::error_code fill(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::path half = to;
    half += ".part";
    fs::remove_all(half, error);
    if (!error) error = copyFree(from, half);
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
