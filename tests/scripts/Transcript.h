#pragma once

#include <filesystem>
#include <string>
#include <vector>

// A transcript says in the words of the text driver what the program does:
//
//     # why this is so                     a comment
//     @config Main StatusBoard 0           before the first command: what the program folder looks like
//     > start                              a command
//     ok                                   its answer, line by line
//
// In commands and answers $APP stands for the program folder; <*> in an answer stands for any text.

namespace gatewise::scripts {

struct Step {
    std::size_t line = 0; // in the transcript, from 1
    std::string command;
    std::vector<std::string> answer;
};

struct Setting {
    std::size_t line = 0;
    std::string text; // without the "@"
};

struct Transcript {
    std::vector<Setting> settings;
    std::vector<Step> steps;
};

/// Reads a transcript, "$APP" replaced. Throws std::runtime_error for a line that has no place.
Transcript readTranscript(const std::filesystem::path& file, const std::string& appDir);

/// Brings a program folder into the shape that a transcript asks for:
///   @config SECTION KEY VALUE     a value of GT.cfg
///   @file PATH LINE               adds a line to a text file
///   @wave PATH SAMPLES            a wave file of silence
///   @voice PATH SAMPLES           all phrases and numbers of an announcer's folder, likewise
///   @magnetic PATH LONGITUDE LATITUDE VALUE   a cell of a magnetic table, longitudes 0 to 359
///   @folder PATH                  an empty folder
///   @remove PATH                  a file or folder that goes
/// Paths lie below the folder. Throws std::runtime_error for any other word.
void applySetting(const Setting& setting, const std::filesystem::path& folder);

/// The driver's output as one list of lines for each command, its closing line last.
std::vector<std::vector<std::string>> splitAnswers(const std::string& output);

/// Whether a line is what was expected.
bool matches(const std::string& expected, const std::string& line);

} // namespace gatewise::scripts
