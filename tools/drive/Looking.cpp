#include "drive/Looking.h"

#include "drive/Commands.h"
#include "drive/FileText.h"
#include "drive/GlobalsTable.h"
#include "drive/Properties.h"
#include "platform/Files.h"

namespace gatewise::drive {

namespace {

Outcome different(const std::string& what) {
    return "window differs: " + what;
}

/// The first difference of a screen and all of its controls.
std::optional<std::string> differenceOf(Session& session, const Screen& screen) {
    if (auto difference = session.backend().differs(screen)) return difference;
    for (const Control* control : screen.controls) {
        if (auto difference = session.backend().differs(*control)) return difference;
    }
    return std::nullopt;
}

Outcome get(Session& session, std::string_view rest) {
    const std::string_view name = takeWord(rest);
    Forms& forms = session.program().forms;
    JsonWriter json;
    std::optional<std::string> difference;
    if (const Screen* screen = forms.find(name)) {
        if (!writeProperty(json, *screen, rest)) return "no property " + std::string(rest) + " of a screen";
        difference = session.backend().differs(*screen);
    } else if (const Control* control = forms.control(name)) {
        difference = session.backend().differs(*control);
        if (rest.empty()) {
            writeMainValue(json, *control);
        } else if (!writeProperty(json, *control, rest)) {
            return "no property " + std::string(rest) + " of " + control->fullName();
        }
    } else {
        return "no control " + std::string(name);
    }
    if (difference) return different(*difference);
    session.print(json);
    return kDone;
}

Outcome dump(Session& session, std::string_view rest) {
    const Screen* screen = session.program().forms.find(rest);
    if (screen == nullptr) return "no screen " + std::string(rest);
    if (const auto difference = differenceOf(session, *screen)) return different(*difference);
    JsonWriter json;
    writeScreen(json, *screen);
    session.print(json);
    return kDone;
}

Outcome shown(Session& session, std::string_view) {
    for (const Screen* screen : session.program().forms.all()) {
        if (const auto difference = session.backend().differs(*screen)) return different(*difference);
    }
    JsonWriter json;
    json.beginArray();
    for (const Screen* screen : session.program().forms.front) json.text(screen->name);
    json.endArray();
    session.print(json);
    return kDone;
}

Outcome global(Session& session, std::string_view rest) {
    JsonWriter json;
    if (!writeGlobal(json, session.program(), rest)) return "no global " + std::string(rest);
    session.print(json);
    return kDone;
}

Outcome assign(Session& session, std::string_view rest) {
    const std::string_view name = takeWord(rest);
    const auto value = textArgument(rest);
    if (!value) return "broken text";
    switch (assignGlobal(session.program(), name, *value)) {
    case Assigned::Done:
        return kDone;
    case Assigned::NoSuchName:
        return "no global to assign " + std::string(name);
    case Assigned::WrongValue:
        break;
    }
    return "no value for " + std::string(name);
}

Outcome plan(Session& session, std::string_view rest) {
    if (!rest.empty() && rest != "exact") return unexpected(rest);
    JsonWriter json;
    json.exactSingles = rest == "exact";
    writePlan(json, session.program().session.plan.plan);
    session.print(json);
    return kDone;
}

Outcome pointer(Session& session, std::string_view) {
    JsonWriter json;
    json.text(session.backend().busy() ? "busy" : "normal");
    session.print(json);
    return kDone;
}

template<void (*Write)(Session&, JsonWriter&)> Outcome taken(Session& session, std::string_view) {
    JsonWriter json;
    Write(session, json);
    session.print(json);
    return kDone;
}

Outcome file(Session& session, std::string_view rest) {
    const auto path = pathArgument(rest);
    if (!path) return "broken text";
    std::error_code error;
    const auto size = std::filesystem::file_size(files::resolve(*path), error);
    if (error || !files::fileExists(*path)) return "no file " + std::string(rest);
    if (size > kLongestShown) return "longer than 1 MB: " + std::string(rest);
    const auto bytes = files::readAll(*path);
    if (!bytes) return "cannot read " + std::string(rest);
    JsonWriter json;
    writeFile(json, *bytes);
    session.print(json);
    return kDone;
}

Outcome clipboard(Session& session, std::string_view) {
    JsonWriter json;
    json.text(session.backend().clipboard());
    session.print(json);
    return kDone;
}

/// What needs no screen can be looked at before the program was started.
constexpr Command kLookCommands[] = {
    {"get", "C [PROPERTY]", "shows a control's main value, or one property of a control or screen", get},
    {"dump", "SCREEN", "shows all controls of a screen", dump},
    {"shown", "", "shows the visible screens, the one in front first", shown, true, true},
    {"global", "NAME", "shows a piece of the global state", global, true},
    {"plan", "[exact]", "shows the flight plan, exact: with all digits of its numbers", plan, true},
    {"assign", "NAME VALUE", "sets a global that calls depend on", assign, true},
    {"sounds", "", "shows the sound operations since the last time", taken<writeSounds>, true, true},
    {"launches", "", "shows the programs started since the last time", taken<writeLaunches>, true, true},
    {"printed", "", "shows the texts printed since the last time", taken<writePrinted>, true, true},
    {"pointer", "", "shows the mouse pointer: normal or busy", pointer, true, true},
    {"file", "PATH", "shows a written file of at most 1 MB", file, true},
    {"clipboard", "", "shows the text that was put there last", clipboard, true, true},
};

} // namespace

std::span<const Command> lookCommands() {
    return kLookCommands;
}

void writeSounds(Session& session, JsonWriter& json) {
    json.beginArray();
    for (const std::string& operation : session.sounds().take()) json.raw(operation);
    json.endArray();
}

void writeLaunches(Session& session, JsonWriter& json) {
    json.beginArray();
    for (const auto& launch : std::exchange(session.machine().processes.launches, {})) {
        json.beginObject();
        if (launch.foreground) {
            json.key("foreground");
            json.boolean(true);
        } else {
            const std::pair<const char*, const std::string&> parts[] = {
                {"file", launch.file}, {"parameters", launch.parameters}, {"folder", launch.folder}};
            for (const auto& [name, text] : parts) {
                json.key(name);
                json.text(text);
            }
        }
        json.endObject();
    }
    json.endArray();
}

void writePrinted(Session& session, JsonWriter& json) {
    json.beginArray();
    for (const auto& page : std::exchange(session.machine().printer.printed, {})) {
        json.beginObject();
        json.key("font");
        json.text(page.font);
        json.key("size");
        json.integer(page.size);
        json.key("text");
        json.text(page.text);
        if (!page.file.empty()) {
            json.key("file");
            json.text(replaceAll(page.file, "\\", "/")); // however it was asked for
        }
        json.endObject();
    }
    json.endArray();
}

} // namespace gatewise::drive
