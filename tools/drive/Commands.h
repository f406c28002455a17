#pragma once

#include "drive/Arguments.h"
#include "drive/Session.h"

#include <span>
#include <vector>

namespace gatewise::drive {

/// Why a command was refused; nothing when it was carried out.
using Outcome = std::optional<std::string>;
inline constexpr std::nullopt_t kDone = std::nullopt;

/// A command's word, what stands behind it and what it does in words, and what carries it out, given the rest
/// of the line.
struct Command {
    const char* name;
    const char* arguments;
    const char* meaning;
    Outcome (*run)(Session& session, std::string_view rest);
    bool beforeStart = false; // can be given before the program was started
    bool alone = false;       // a word of its own, nothing comes behind it
};

/// The refusal of words that are too many.
std::string unexpected(std::string_view rest);

/// The commands by subject.
std::span<const Command> machineCommands();
std::span<const Command> runCommands();
std::span<const Command> eventCommands();
std::span<const Command> lookCommands();
std::span<const Command> callCommands();

/// Every command, in the order of the lists above.
std::vector<const Command*> allCommands();

/// Carries out one line.
Outcome runCommand(Session& session, std::string_view line);

} // namespace gatewise::drive
