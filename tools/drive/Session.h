#pragma once

#include "drive/SimulatedTimers.h"
#include "drive/SoundRecorder.h"
#include "platform/simulated/SimulatedMachine.h"
#include "state/Program.h"

#include <istream>
#include <ostream>

namespace gatewise::drive {

/// One run of the program on a simulated machine, driven line by line. Each command is answered with its
/// value lines and exactly one closing line; one that opens a modal screen is answered as soon as that screen
/// waits, and its remaining work runs under the command that hides the screen.
class Session {
public:
    /// `appDir` is a text of the program.
    Session(std::string appDir, std::istream& in, std::ostream& out);

    /// Reads commands to the end of input, to "quit", or until the program has shut down; then ends the
    /// process.
    [[noreturn]] void run();

    /// Prints one value line.
    void print(const JsonWriter& json);

    /// The start-up procedure.
    void start();
    [[nodiscard]] bool started() const { return started_; }

    /// Ends the process without the program's own shutdown.
    [[noreturn]] void quit();

    simulated::SimulatedMachine& machine() { return machine_; }
    SoundRecorder& sounds() { return sounds_; }
    Program& program() { return program_; }

private:
    bool readCommand();
    void handle(std::string_view line);
    void settle();
    void close(std::string_view closing);
    void runModal(const std::function<bool()>& done);
    [[noreturn]] void finish();
    [[noreturn]] void endProcess();

    std::istream& in_;
    std::ostream& out_;
    std::string appDir_;
    SoundRecorder sounds_{appDir_};
    simulated::SimulatedMachine machine_{sounds_.device};
    SimulatedTimers timers_{machine_.loop};
    Program program_;
    bool started_ = false;
    bool open_ = false; // a command waits for its closing line
};

} // namespace gatewise::drive
