#include "scripts/Transcript.h"

#include "platform/Profile.h"
#include "platform/Text.h"
#include "support/Wave.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace gatewise::scripts {

namespace fs = std::filesystem;

namespace {

bool isClosing(std::string_view line) {
    return line == "ok" || line == "ended" || line.starts_with("modal ") || line.starts_with("error: ");
}

void writeSilence(const fs::path& file, std::uint32_t samples) {
    const Bytes wave = test::waveOf(Bytes(samples, 0x80));
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(wave.data()), static_cast<std::streamsize>(wave.size()));
}

void writeVoice(const fs::path& folder, std::uint32_t samples) {
    for (int i = 1; i <= 11; ++i) writeSilence(folder / ("ann" + std::to_string(i) + ".wav"), samples);
    for (int i = 0; i <= 99; ++i) {
        writeSilence(folder / (std::to_string(i) + ".wav"), samples);
        if (i < 10) writeSilence(folder / ("0" + std::to_string(i) + ".wav"), samples);
    }
}

/// A cell of a magnetic table, the table itself with no variation anywhere when there is none yet.
void setMagnetic(const fs::path& file, long longitude, long latitude, std::int16_t value) {
    constexpr long kHeader = 136;
    constexpr long kRows = 181;
    if (!fs::exists(file)) {
        fs::create_directories(file.parent_path());
        const std::string empty(static_cast<std::size_t>(kHeader + 2 * 360 * kRows), '\0');
        std::ofstream(file, std::ios::binary) << empty;
    }
    Bytes cell;
    appendField(cell, value);
    std::fstream table(file, std::ios::binary | std::ios::in | std::ios::out);
    table.seekp(kHeader + 2 * (longitude * kRows + latitude + 90));
    table.write(reinterpret_cast<const char*>(cell.data()), static_cast<std::streamsize>(cell.size()));
}

std::string restOf(std::istringstream& words) {
    std::string rest;
    std::getline(words >> std::ws, rest);
    return rest;
}

} // namespace

Transcript readTranscript(const fs::path& file, const std::string& appDir) {
    std::ifstream in(file);
    if (!in) throw std::runtime_error("cannot read " + file.string());
    Transcript transcript;
    std::size_t number = 0;
    for (std::string line; std::getline(in, line);) {
        ++number;
        if (line.ends_with('\r')) line.pop_back();
        line = replaceAll(line, "$APP", appDir);
        if (line.empty() || line.starts_with('#')) continue;
        if (line.starts_with('>')) {
            transcript.steps.push_back({number, line.substr(line.starts_with("> ") ? 2 : 1), {}});
        } else if (!transcript.steps.empty()) {
            transcript.steps.back().answer.push_back(line);
        } else if (line.starts_with('@')) {
            transcript.settings.push_back({number, line.substr(1)});
        } else {
            throw std::runtime_error("line " + std::to_string(number) + ": an answer to no command");
        }
    }
    return transcript;
}

void applySetting(const Setting& setting, const fs::path& folder) {
    std::istringstream words(setting.text);
    std::string word;
    std::string target;
    words >> word >> target;
    const fs::path path = folder / target;
    if (word == "config") {
        std::string key;
        words >> key;
        (void)WriteValue(target, key, restOf(words), (folder / "GT.cfg").string());
    } else if (word == "file") {
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::app | std::ios::binary) << restOf(words) << "\r\n";
    } else if (word == "wave" || word == "voice") {
        std::uint32_t samples = 0;
        words >> samples;
        word == "wave" ? writeSilence(path, samples) : writeVoice(path, samples);
    } else if (word == "magnetic") {
        long longitude = 0;
        long latitude = 0;
        std::int16_t value = 0;
        words >> longitude >> latitude >> value;
        setMagnetic(path, longitude, latitude, value);
    } else if (word == "folder") {
        fs::create_directories(path);
    } else if (word == "remove") {
        fs::remove_all(path);
    } else {
        throw std::runtime_error("line " + std::to_string(setting.line) + ": unknown setting " + word);
    }
}

std::vector<std::vector<std::string>> splitAnswers(const std::string& output) {
    std::vector<std::vector<std::string>> answers(1);
    std::istringstream in(output);
    for (std::string line; std::getline(in, line);) {
        answers.back().push_back(line);
        if (isClosing(line)) answers.emplace_back();
    }
    if (answers.back().empty()) answers.pop_back();
    return answers;
}

bool matches(const std::string& expected, const std::string& line) {
    constexpr std::string_view kAny = "<*>";
    std::string_view pattern = expected;
    std::string_view rest = line;
    bool first = true;
    while (true) {
        const auto any = pattern.find(kAny);
        const std::string_view piece = pattern.substr(0, any);
        if (any == std::string_view::npos) {
            return first ? rest == piece : rest.size() >= piece.size() && rest.ends_with(piece);
        }
        const auto at = rest.find(piece);
        if (at == std::string_view::npos || (first && at != 0)) return false;
        rest.remove_prefix(at + piece.size());
        pattern.remove_prefix(any + kAny.size());
        first = false;
    }
}

} // namespace gatewise::scripts
