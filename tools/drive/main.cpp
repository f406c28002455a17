#include "drive/FormBackend.h"
#include "drive/Session.h"

#include "platform/Files.h"
#include "platform/NativePath.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>

int main(int count, char** arguments) {
    namespace fs = std::filesystem;
    if (count != 2) {
        std::cerr << "usage: gtdrive PROGRAM_FOLDER\n";
        return EXIT_FAILURE;
    }
    std::error_code error;
    const std::string named = gatewise::files::commandLine(count, arguments).at(0);
    fs::path folder = fs::absolute(gatewise::files::pathOfUtf8(named), error).lexically_normal();
    if (!folder.has_filename()) folder = folder.parent_path();
    if (gatewise::files::kindOf(folder) != gatewise::files::Kind::Folder) {
        std::cerr << "gtdrive: no folder " << named << '\n';
        return EXIT_FAILURE;
    }
    std::ios::sync_with_stdio(false);
    gatewise::drive::Bench bench(gatewise::files::textOf(folder));
    gatewise::drive::FormBackend backend(bench);
    gatewise::drive::Session session(bench, backend, std::cin, std::cout);
    session.run();
}
