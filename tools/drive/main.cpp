#include "drive/FormBackend.h"
#include "drive/Session.h"

#include "platform/Files.h"

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
    fs::path folder = fs::absolute(arguments[1], error).lexically_normal();
    if (!folder.has_filename()) folder = folder.parent_path();
    if (!fs::is_directory(folder, error)) {
        std::cerr << "gtdrive: no folder " << arguments[1] << '\n';
        return EXIT_FAILURE;
    }
    std::ios::sync_with_stdio(false);
    gatewise::drive::Bench bench(gatewise::files::textOf(folder));
    gatewise::drive::FormBackend backend(bench);
    gatewise::drive::Session session(bench, backend, std::cin, std::cout);
    session.run();
}
