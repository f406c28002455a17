#include "drive/Session.h"

#include "app/StartUp.h"
#include "drive/Commands.h"
#include "drive/Looking.h"
#include "screens/Screens.h"
#include "screens/UserEvents.h"

#include <cstdlib>

namespace gatewise::drive {

Session::Session(std::string appDir, std::istream& in, std::ostream& out)
    : in_(in), out_(out), appDir_(std::move(appDir)), program_(machine_.machine, appDir_) {
    machine_.loop.tick = [](void* timer) { user::tick(*static_cast<Timer*>(timer)); };
    machine_.loop.modal = [this](std::string_view, const std::function<bool()>& done) { runModal(done); };
    machine_.loop.stopped = [this] { return program_.ending; };
}

void Session::run() {
    while (readCommand()) settle();
    endProcess();
}

void Session::start() {
    started_ = true;
    bindScreens(program_);
    program_.forms.attachTimers(&timers_);
    startUp(program_);
}

void Session::print(const JsonWriter& json) {
    out_ << json.line() << '\n';
}

/// Reads and carries out one command; false at the end of input. Where its remaining work goes on behind a
/// modal screen, the command stays open.
bool Session::readCommand() {
    std::string line;
    do {
        if (!std::getline(in_, line)) return false;
        if (line.ends_with('\r')) line.pop_back();
    } while (line.empty() || line.starts_with('#'));
    handle(line);
    return true;
}

void Session::handle(std::string_view line) {
    open_ = true;
    const Outcome refused = runCommand(*this, line);
    if (refused) {
        // What was typed is echoed, and need not be UTF-8.
        close("error: " + utf8FromText(textFromUtf8(*refused)));
    } else if (program_.ending) {
        finish();
    }
}

/// Answers the command that is still open.
void Session::settle() {
    if (!open_) return;
    const Screen* modal = program_.forms.modalScreen();
    close(modal != nullptr ? "modal " + modal->name : "ok");
}

void Session::close(std::string_view closing) {
    open_ = false;
    out_ << closing << std::endl;
}

void Session::runModal(const std::function<bool()>& done) {
    while (!done()) {
        settle();
        if (!readCommand()) endProcess();
    }
}

void Session::quit() {
    close("ok");
    endProcess();
}

void Session::finish() {
    JsonWriter json;
    json.beginObject();
    json.key("sounds");
    writeSounds(*this, json);
    json.key("launches");
    writeLaunches(*this, json);
    json.key("printed");
    writePrinted(*this, json);
    json.endObject();
    print(json);
    close("ended");
    endProcess();
}

/// Work may still stand behind a modal screen; the process ends over its head, as that of the program does.
void Session::endProcess() {
    out_.flush();
    std::exit(EXIT_SUCCESS);
}

} // namespace gatewise::drive
