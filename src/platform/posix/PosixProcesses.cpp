#include "platform/Files.h"
#include "platform/Native.h"
#include "platform/Text.h"
#include "platform/posix/ProcessTable.h"
#include "platform/posix/WinePrefix.h"

#include <sstream>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ; // NOLINT(readability-redundant-declaration): unistd.h keeps it to itself

namespace gatewise::native {

namespace {

namespace fs = std::filesystem;

/// A program of that name in the search path, or empty.
fs::path installed(std::string_view name) {
    const char* search = std::getenv("PATH");
    std::stringstream folders(search != nullptr ? search : "/usr/local/bin:/usr/bin:/bin");
    for (std::string folder; std::getline(folders, folder, ':');) {
        fs::path file = fs::path(folder) / name;
        std::error_code error;
        if (fs::is_regular_file(file, error) && access(file.c_str(), X_OK) == 0) return file;
    }
    return {};
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> out;
    out.reserve(texts.size() + 1);
    for (std::string& text : texts) out.push_back(text.data());
    out.push_back(nullptr);
    return out;
}

/// Starts a program that outlives this one. Everything that needs memory is ready before the fork: other
/// threads may hold the allocator at that moment.
int spawn(std::vector<std::string> arguments, const fs::path& folder,
          const std::optional<fs::path>& winePrefix) {
    std::vector<std::string> environment;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        if (winePrefix && std::string_view(*entry).starts_with("WINEPREFIX=")) continue;
        environment.emplace_back(*entry);
    }
    if (winePrefix) environment.push_back("WINEPREFIX=" + winePrefix->string());
    const auto argv = pointers(arguments);
    const auto envp = pointers(environment);
    const pid_t process = fork();
    if (process != 0) return process;
    setsid();
    if (!folder.empty() && chdir(folder.c_str()) != 0) _exit(127);
    execve(argv[0], argv.data(), envp.data());
    _exit(127);
}

class PosixProcesses : public Processes {
public:
    explicit PosixProcesses(Notify notify) : notify_(std::move(notify)) {}

    [[nodiscard]] bool simulatorRunning() override { return simulatorRunsIn("/proc"); }

    /// Window managers take such requests through a tool of their own; without it the pilot switches by hand.
    void bringSimulatorToFront() override {
        const fs::path tool = installed("wmctrl");
        if (!tool.empty())
            spawn({tool.string(), "-x", "-a", std::string(kSimulatorProgram)}, {}, std::nullopt);
    }

    std::optional<int> start(const std::string& file, const std::string& parameter,
                             const std::string& folder) override {
        const bool whole = file.find_first_of("\\/") != std::string::npos;
        const fs::path program = files::resolve(whole || folder.empty() ? file : folder + "\\" + file);
        std::error_code error;
        if (!fs::is_regular_file(program, error)) return std::nullopt;

        std::vector<std::string> arguments;
        if (lowerCase(file).ends_with(".exe")) {
            const fs::path wine = installed("wine");
            if (wine.empty()) {
                if (notify_)
                    notify_("Wine is needed to start " + file +
                            " and is not installed; all files of the flight are in place.");
                return std::nullopt;
            }
            arguments.push_back(wine.string());
        }
        arguments.push_back(program.string());
        if (!parameter.empty()) arguments.push_back(parameter);
        const fs::path native = folder.empty() ? program.parent_path() : files::resolve(folder);
        const int process = spawn(std::move(arguments), native, prefixOf(program));
        return process >= 0 ? std::optional(process) : std::nullopt;
    }

    [[nodiscard]] bool ended(int process) override { return waitpid(process, nullptr, WNOHANG) != 0; }

private:
    Notify notify_;
};

} // namespace

std::unique_ptr<Processes> systemProcesses(Notify notify) {
    return std::make_unique<PosixProcesses>(std::move(notify));
}

void useCallersConsole() {} // it has it already

} // namespace gatewise::native
