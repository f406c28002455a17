#pragma once

#include "drive/Backend.h"

#include <istream>
#include <ostream>

namespace gatewise::drive {

/// One run of the program on a simulated machine, driven line by line. Each command is answered with its
/// value lines and exactly one closing line; one that opens a modal screen is answered as soon as that screen
/// waits, and its remaining work runs under the command that hides the screen.
class Session {
public:
    /// Modal waits of the bench's own loop read further commands.
    Session(Bench& bench, Backend& backend, std::istream& in, std::ostream& out);

    /// Reads commands to the end of input, to "quit", or until the program has shut down; then ends the
    /// process.
    [[noreturn]] void run();

    // One turn of that, for a back end whose own loop runs between commands.

    /// Answers the command that is still open.
    void settle();
    /// Reads and carries out one command; false at the end of input. Where its remaining work goes on behind
    /// a modal screen, the command stays open.
    bool readCommand();
    /// Work may still stand behind a modal screen; the process ends over its head, as that of the program
    /// does.
    [[noreturn]] void endProcess();

    /// Prints one value line.
    void print(const JsonWriter& json);

    /// The start-up procedure.
    void start();
    [[nodiscard]] bool started() const { return started_; }

    /// Ends the process without the program's own shutdown.
    [[noreturn]] void quit();

    simulated::SimulatedMachine& machine() { return bench_.machine; }
    SoundRecorder& sounds() { return bench_.sounds; }
    Program& program() { return backend_.program(); }
    Backend& backend() { return backend_; }

private:
    void handle(std::string_view line);
    void close(std::string_view closing);
    void runModal(const std::function<bool()>& done);
    [[noreturn]] void finish();

    Bench& bench_;
    Backend& backend_;
    std::istream& in_;
    std::ostream& out_;
    bool started_ = false;
    bool open_ = false; // a command waits for its closing line
};

} // namespace gatewise::drive
