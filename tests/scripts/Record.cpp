#include "scripts/Record.h"

#include "platform/Text.h"

#include <fstream>
#include <iostream>
#include <stdexcept>

namespace gatewise::scripts {

namespace {

using Lines = std::vector<std::string>;

Lines linesOf(const std::filesystem::path& file) {
    std::ifstream in(file);
    Lines lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

bool fits(const std::string& written, const std::string& line, const std::string& appDir) {
    return matches(replaceAll(written, "$APP", appDir), line);
}

/// The new answer as it is written down, each line as it stood where that fits.
Lines answerLines(const Lines& before, const Lines& came, const std::string& appDir) {
    Lines out;
    for (std::size_t i = 0; i < came.size(); ++i) {
        const bool same = i < before.size() && fits(before[i], came[i], appDir);
        out.push_back(same ? before[i] : replaceAll(came[i], appDir, "$APP"));
    }
    return out;
}

void showChange(std::size_t number, const std::string& command, const Lines& before, const Lines& after) {
    std::cout << "@@ " << number << " @@ " << command << '\n';
    for (const std::string& line : before) std::cout << "-" << line << '\n';
    for (const std::string& line : after) std::cout << "+" << line << '\n';
}

bool isAnswer(const std::string& line) {
    return !line.empty() && line != "\r" && !line.starts_with('#') && !line.starts_with('>');
}

} // namespace

int record(const std::filesystem::path& file, const std::string& appDir,
           const std::vector<std::vector<std::string>>& answers) {
    const Lines lines = linesOf(file);
    Lines out;
    std::size_t command = 0;
    int changed = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        out.push_back(lines[i]);
        if (!lines[i].starts_with('>')) continue;
        const std::size_t at = i;
        Lines before;
        while (i + 1 < lines.size() && isAnswer(lines[i + 1])) before.push_back(lines[++i]);
        const Lines after =
            answerLines(before, command < answers.size() ? answers[command] : Lines(), appDir);
        ++command;
        out.insert(out.end(), after.begin(), after.end());
        if (after == before) continue;
        ++changed;
        showChange(at + 1, lines[at], before, after);
    }
    if (changed == 0) return 0;
    std::ofstream to(file, std::ios::binary | std::ios::trunc);
    for (const std::string& line : out) to << line << '\n';
    if (!to.flush()) throw std::runtime_error("cannot write " + file.string());
    return changed;
}

} // namespace gatewise::scripts
