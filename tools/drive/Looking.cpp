#include "drive/Looking.h"

#include "drive/Commands.h"
#include "drive/GlobalsTable.h"
#include "drive/Properties.h"

namespace gatewise::drive {

namespace {

Outcome get(Session& session, std::string_view rest) {
    const std::string_view name = takeWord(rest);
    Forms& forms = session.program().forms;
    JsonWriter json;
    if (const Screen* screen = forms.find(name)) {
        if (!writeProperty(json, *screen, rest)) return "no property " + std::string(rest) + " of a screen";
    } else if (const Control* control = forms.control(name)) {
        if (rest.empty()) {
            writeMainValue(json, *control);
        } else if (!writeProperty(json, *control, rest)) {
            return "no property " + std::string(rest) + " of " + control->fullName();
        }
    } else {
        return "no control " + std::string(name);
    }
    session.print(json);
    return kDone;
}

Outcome dump(Session& session, std::string_view rest) {
    const Screen* screen = session.program().forms.find(rest);
    if (screen == nullptr) return "no screen " + std::string(rest);
    JsonWriter json;
    writeScreen(json, *screen);
    session.print(json);
    return kDone;
}

Outcome shown(Session& session, std::string_view) {
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

Outcome plan(Session& session, std::string_view) {
    JsonWriter json;
    writePlan(json, session.program().g.plan);
    session.print(json);
    return kDone;
}

Outcome pointer(Session& session, std::string_view) {
    JsonWriter json;
    json.text(session.machine().desktop.busy ? "busy" : "normal");
    session.print(json);
    return kDone;
}

template<void (*Write)(Session&, JsonWriter&)> Outcome taken(Session& session, std::string_view) {
    JsonWriter json;
    Write(session, json);
    session.print(json);
    return kDone;
}

/// What needs no screen can be looked at before the program was started.
constexpr Command kLookCommands[] = {
    {"get", get},
    {"dump", dump},
    {"shown", shown, true, true},
    {"global", global, true},
    {"plan", plan, true, true},
    {"assign", assign, true},
    {"sounds", taken<writeSounds>, true, true},
    {"launches", taken<writeLaunches>, true, true},
    {"printed", taken<writePrinted>, true, true},
    {"pointer", pointer, true, true},
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
        json.endObject();
    }
    json.endArray();
}

} // namespace gatewise::drive
