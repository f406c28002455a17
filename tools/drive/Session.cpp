#include "drive/Session.h"

#include "drive/Commands.h"
#include "drive/Looking.h"

#include <cstdlib>

namespace gatewise::drive {

Session::Session(Bench& bench, Backend& backend, std::istream& in, std::ostream& out)
    : bench_(bench), backend_(backend), in_(in), out_(out) {
    machine().loop.modal = [this](std::string_view, const std::function<bool()>& done) { runModal(done); };
    machine().loop.stopped = [this] { return program().ending; };
}

void Session::run() {
    while (readCommand()) settle();
    endProcess();
}

void Session::start() {
    started_ = true;
    backend_.start();
}

void Session::print(const JsonWriter& json) {
    out_ << json.line() << '\n';
}

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
    } else if (program().ending) {
        finish();
    }
}

void Session::settle() {
    if (!open_) return;
    const Screen* modal = program().forms.modalScreen();
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

void Session::endProcess() {
    out_.flush();
    backend_.leave();
    std::exit(EXIT_SUCCESS);
}

} // namespace gatewise::drive
