#include "platform/Text.h"
#include "scripts/Record.h"
#include "scripts/Transcript.h"
#include "scripts/Wine.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>
#include <stdexcept>

// scripts_runner GTDRIVE PROGRAM_FOLDER SCRATCH_FOLDER TRANSCRIPT
//
// Plays a transcript against the driver on a fresh copy of the program folder and tells where the answers
// differ. With --print in front the answers that came are printed as a transcript instead; with --record they
// are written into the transcript, and what changes there is printed. With --wine the driver is one for
// Windows (see Wine.h); --keep leaves the files that the program wrote where they are.

namespace gatewise::scripts {

namespace fs = std::filesystem;

namespace {

std::string quoted(const fs::path& path) {
    return "\"" + path.string() + "\"";
}

std::string contentOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

struct Played {
    int status = 0;
    std::vector<std::vector<std::string>> answers;
};

/// `driver` and `folder` as they stand in the command.
Played play(const std::string& driver, const std::string& folder, const fs::path& scratch,
            const Transcript& transcript) {
    {
        std::ofstream commands(scratch / "commands");
        for (const Step& step : transcript.steps) commands << step.command << '\n';
    }
    const std::string line =
        driver + " " + folder + " < " + quoted(scratch / "commands") + " > " + quoted(scratch / "answers");
    Played played;
    played.status = std::system(line.c_str());
    played.answers = splitAnswers(replaceAll(contentOf(scratch / "answers"), "\r\n", "\n"));
    return played;
}

void show(const char* title, const std::vector<std::string>& lines) {
    std::cout << title << '\n';
    for (const std::string& line : lines) std::cout << "    " << line << '\n';
}

using SameLine = bool (*)(const std::string& expected, const std::string& line);

bool sameAnswer(const std::vector<std::string>& expected, const std::vector<std::string>& came,
                SameLine same) {
    return std::equal(expected.begin(), expected.end(), came.begin(), came.end(), same);
}

/// Number of commands with another answer than expected.
int compare(const fs::path& file, const Transcript& transcript, const Played& played, SameLine same) {
    int wrong = 0;
    for (std::size_t i = 0; i < transcript.steps.size(); ++i) {
        const Step& step = transcript.steps[i];
        const auto came = i < played.answers.size() ? played.answers[i] : std::vector<std::string>{};
        if (sameAnswer(step.answer, came, same)) continue;
        ++wrong;
        std::cout << file.string() << ":" << step.line << ": > " << step.command << '\n';
        show("  expected", step.answer);
        show("  came", came);
    }
    if (played.answers.size() > transcript.steps.size()) {
        ++wrong;
        show("more answers than commands, first of them", played.answers[transcript.steps.size()]);
    }
    if (played.status != 0) {
        ++wrong;
        std::cout << "the driver ended with status " << played.status << '\n';
    }
    return wrong;
}

void print(const Transcript& transcript, const Played& played) {
    for (std::size_t i = 0; i < transcript.steps.size(); ++i) {
        std::cout << "> " << transcript.steps[i].command << '\n';
        if (i >= played.answers.size()) continue;
        for (const std::string& line : played.answers[i]) std::cout << line << '\n';
    }
}

int run(std::vector<std::string> arguments) {
    std::set<std::string> modes;
    while (!arguments.empty() && arguments.front().starts_with("--")) {
        modes.insert(arguments.front());
        arguments.erase(arguments.begin());
    }
    if (arguments.size() != 4)
        throw std::runtime_error("expected driver, program folder, scratch folder, transcript");
    const fs::path file = arguments[3];
    const fs::path scratch = fs::absolute(arguments[2]) / file.stem();
    const fs::path folder = scratch / "Gatewise";
    fs::remove_all(scratch);
    fs::create_directories(scratch);
    fs::copy(arguments[1], folder, fs::copy_options::recursive);

    const bool wine = modes.contains("--wine");
    const std::string appDir = wine ? wine::folderThere(folder) : folder.string();
    const Transcript transcript = readTranscript(file, appDir);
    if (transcript.steps.empty()) throw std::runtime_error(file.string() + " holds no command");
    for (const Setting& setting : transcript.settings) applySetting(setting, folder);
    const std::string driver = quoted(fs::absolute(arguments[0]));
    const Played played =
        play(wine ? "wine " + driver : driver, quoted(fs::path(appDir)), scratch, transcript);
    if (modes.contains("--print")) {
        print(transcript, played);
        return EXIT_SUCCESS;
    }
    if (modes.contains("--record")) {
        std::cout << record(file, folder.string(), played.answers) << " answers changed in " << file.string()
                  << '\n';
        return EXIT_SUCCESS;
    }
    if (compare(file, transcript, played, wine ? wine::sameLine : matches) > 0) return EXIT_FAILURE;
    std::cout << transcript.steps.size() << " commands answered as expected\n";
    if (!modes.contains("--keep")) fs::remove_all(scratch);
    return EXIT_SUCCESS;
}

} // namespace

} // namespace gatewise::scripts

int main(int count, char** arguments) {
    try {
        return gatewise::scripts::run({arguments + 1, arguments + count});
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return EXIT_FAILURE;
    }
}
