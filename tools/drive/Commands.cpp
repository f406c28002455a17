#include "drive/Commands.h"

#include "drive/Controls.h"

namespace gatewise::drive {

namespace {

Outcome start(Session& session, std::string_view) {
    if (session.started()) return "already started";
    session.start();
    return kDone;
}

Outcome advance(Session& session, std::string_view rest) {
    const auto milliseconds = integerArgument(rest);
    constexpr long long kLongest = 1000LL * 365 * 24 * 60 * 60 * 1000; // a thousand years
    if (!milliseconds || *milliseconds < 0 || *milliseconds > kLongest)
        return "expected a number of milliseconds";
    session.backend().advance(*milliseconds);
    return kDone;
}

Outcome tick(Session& session, std::string_view rest) {
    Timer* timer = controlAs<Timer>(session.program().forms.control(rest));
    if (timer == nullptr) return "no timer " + std::string(rest);
    session.backend().tick(*timer);
    return kDone;
}

Outcome quit(Session& session, std::string_view) {
    session.quit();
}

/// The commands, a line each.
Outcome help(Session& session, std::string_view) {
    for (const Command* command : allCommands()) {
        const std::string words = *command->arguments == '\0' ? "" : " " + std::string(command->arguments);
        JsonWriter json;
        json.text(command->name + words + ": " + command->meaning);
        session.print(json);
    }
    return kDone;
}

constexpr Command kRunCommands[] = {
    {"start", "", "starts the program", start, true, true},
    {"advance", "MS", "moves the clock by milliseconds and runs the timers that fall due", advance},
    {"tick", "SCREEN.TIMER", "runs a timer's handler once", tick},
    {"help", "", "shows the commands", help, true, true},
    {"quit", "", "ends the tool without the program's own shutdown", quit, true, true},
};

const Command* findCommand(std::string_view name) {
    for (const Command* command : allCommands()) {
        if (command->name == name) return command;
    }
    return nullptr;
}

} // namespace

std::string unexpected(std::string_view rest) {
    return "unexpected " + std::string(rest);
}

std::span<const Command> runCommands() {
    return kRunCommands;
}

std::vector<const Command*> allCommands() {
    std::vector<const Command*> all;
    for (const auto commands :
         {machineCommands(), runCommands(), eventCommands(), lookCommands(), callCommands()}) {
        for (const Command& command : commands) all.push_back(&command);
    }
    return all;
}

Outcome runCommand(Session& session, std::string_view line) {
    const std::string_view name = takeWord(line);
    const Command* command = findCommand(name);
    if (command == nullptr) return "unknown command " + std::string(name);
    if (!command->beforeStart && !session.started()) return "not started";
    if (command->alone && !line.empty()) return unexpected(line);
    return command->run(session, line);
}

} // namespace gatewise::drive
