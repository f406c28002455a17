#include "platform/AppFolder.h"

#include "platform/Delivered.h"
#include "platform/Files.h"
#include "platform/NativePath.h"

#include <fstream>

namespace gatewise {

namespace fs = std::filesystem;

namespace {

constexpr const char* kFolderName = "Gatewise Terminal";

/// Permission bits tell little about network drives and system folders; a file that comes into being does.
bool canWrite(const fs::path& folder) {
    const fs::path probe = folder / "gatewise-probe.tmp";
    const bool written = static_cast<bool>(std::ofstream(files::reachable(probe)) << "probe" << std::flush);
    (void)files::removeFile(probe); // where it could not be written there is none
    return written;
}

bool holdsPictures(const fs::path& folder) {
    return files::kindOf(folder / "Images") == files::Kind::Folder;
}

} // namespace

fs::path deliveredFolder(const fs::path& program) {
    if (holdsPictures(program)) return program;
    const fs::path shared = program.parent_path() / "share" / "gatewise";
    return holdsPictures(shared) ? shared : program;
}

AppFolders chooseFolders(const fs::path& program, const fs::path& userData, std::error_code& error) {
    error.clear();
    const fs::path delivered = deliveredFolder(program);
    if (delivered == program && canWrite(program)) return {files::textOf(program), program};
    const fs::path own = userData / kFolderName;
    for (const char* folder : {"Data", "Wavs"}) {
        if (!error) fs::create_directories(files::reachable(own / folder), error);
    }
    return {files::textOf(error ? delivered : own), delivered};
}

void useFolders(const AppFolders& folders) {
    files::setDelivered(folders.AppDir, folders.delivered);
}

} // namespace gatewise
