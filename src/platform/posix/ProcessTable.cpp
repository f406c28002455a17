#include "platform/posix/ProcessTable.h"

#include "platform/Text.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace gatewise::native {

namespace {

namespace fs = std::filesystem;

bool namesSimulator(std::string_view commandLine) {
    for (int i = 0; i < 3 && !commandLine.empty(); ++i) {
        const auto end = commandLine.find('\0');
        const std::string_view argument = commandLine.substr(0, end);
        const auto slash = argument.find_last_of("/\\");
        if (equalNoCase(slash == std::string_view::npos ? argument : argument.substr(slash + 1),
                        kSimulatorProgram))
            return true;
        commandLine.remove_prefix(end == std::string_view::npos ? commandLine.size() : end + 1);
    }
    return false;
}

} // namespace

bool simulatorRunsIn(const fs::path& table) {
    std::error_code error;
    for (fs::directory_iterator it(table, error), end; !error && it != end; it.increment(error)) {
        const std::string name = it->path().filename().string();
        if (!std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; })) continue;
        std::ifstream file(it->path() / "cmdline", std::ios::binary);
        const std::string commandLine{std::istreambuf_iterator<char>(file), {}};
        if (namesSimulator(commandLine)) return true;
    }
    return false;
}

} // namespace gatewise::native
