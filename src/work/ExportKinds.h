#pragma once

#include "plan/PlanTable.h"
#include "platform/Machine.h"
#include "platform/Numbers.h"
#include "session/Message.h"
#include "session/Settings.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace gatewise {

/// What an export is made of.
struct ExportJob {
    const Plan& plan;
    std::string stem; // names the flight in every file
    bool HaveAlternate = false;
    std::string longDate; // of the moment of writing
    DateTime now;
    const NumberLocale& numbers;
    const std::string& FsPath;
};

/// One outside format: all that the hub, the file picker, the commands and GT.cfg know of it.
struct ExportKind {
    const char* kind;             // button_type of its button on the hub; becomes ExportKind
    const char* title;            // of the picker
    const char* typeText;         // in the picker's list of types
    const char* extension;        // with its point
    const char* folder = nullptr; // below FsPath; nullptr: the one that was used last
    const char* word = nullptr;   // of the keys that remember it, word + "Path" and word + "Drive"
    bool ownName = false;         // the writer names the file: the picker's name is left as it was typed
    bool needsFolder = false;     // without its folder the picker does not open, `missing` is said instead
    Message missing = Message::Failure;
    /// Writes the file; the result is what the pilot is told.
    Notice (*write)(const ExportJob& job, const std::string& path);
};

/// In the order of the hub.
std::span<const ExportKind> exportKinds();

/// The row of a kind; nullptr for a word that is none.
const ExportKind* exportKindOf(std::string_view kind);

/// The words whose folders GT.cfg remembers, in the order in which it holds them.
std::vector<std::string> rememberedExports();

/// The simulator's own plan file.
std::error_code writeFs2000Plan(const ExportJob& job, const std::string& path);

} // namespace gatewise
