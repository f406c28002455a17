#include "logbook/LogTexts.h"
#include "screens/LocaleFix.h"
#include "screens/LogScreens.h"
#include "screens/Screens.h"
#include "screens/SkinnedButtons.h"

namespace gatewise {

namespace {

constexpr Color kReturn{0, 128, 128};
constexpr Color kReturnHover{0, 255, 255};

/// A field that the clock screen edits: its word in LogField, the screen's title, and where it stands.
struct ClockField {
    const char* word;
    const char* title;
    Label forms::LogEntry::*label;
    std::int16_t LogRecord::*time; // either this
    float LogRecord::*hours;       // or this
};

constexpr ClockField kFields[] = {
    {"dept", "Set Deptarture Time", &forms::LogEntry::ACTdepttime_LABEL, &LogRecord::actualDeparture,
     nullptr},
    {"arr", "Set Arrival Time", &forms::LogEntry::ACTarrtime_LABEL, &LogRecord::actualArrival, nullptr},
    {"day", "Set Day Hours", &forms::LogEntry::day_LABEL, nullptr, &LogRecord::dayHours},
    {"night", "Set Night Hours", &forms::LogEntry::night_LABEL, nullptr, &LogRecord::nightHours},
    {"inst", "Set Instrument Hours", &forms::LogEntry::inst_LABEL, nullptr, &LogRecord::instrumentHours},
};

const ClockField* fieldOf(const Program& p) {
    for (const auto& field : kFields) {
        if (p.g.LogField == field.word) return &field;
    }
    return nullptr;
}

LogRecord* entryOf(Program& p) {
    if (p.g.LogSelected < 0 || p.g.LogSelected > p.g.LastLogIndex()) return nullptr;
    return &p.g.LogEntries[static_cast<std::size_t>(p.g.LogSelected)];
}

std::string place(const FixedText<4>& icao, const FixedText<35>& name) {
    return " " + std::string(icao.trimmed()) + " - " + std::string(name.trimmed());
}

/// Every label of the entry screen from its entry.
void refreshEntry(Program& p) {
    const LogRecord* entry = entryOf(p);
    if (entry == nullptr) return;
    auto& f = p.forms.LogEntry;
    const auto hours = [&](double value) { return hoursText(value, p.g.numbers); };
    f.date_LABEL.text = " " + p.machine.locale.longDate(calendarDay(entry->date).value_or(fromDaySerial(0)));
    f.dept_LABEL.text = place(entry->departureIcao, entry->departureName);
    f.dest_LABEL.text = place(entry->arrivalIcao, entry->arrivalName);
    f.aircraft_LABEL.text = std::string(entry->aircraft.trimmed());
    f.notes.text = " " + entry->comments.str();
    f.depttime_LABEL.text = hhmmText(entry->scheduledDeparture);
    f.arrtime_LABEL.text = hhmmText(entry->scheduledArrival);
    f.ACTdepttime_LABEL.text = hhmmText(entry->actualDeparture);
    f.ACTarrtime_LABEL.text = hhmmText(entry->actualArrival);
    f.DIFFdepttime_LABEL.text = differenceText(entry->scheduledDeparture, entry->actualDeparture);
    f.DIFFarrtime_LABEL.text = differenceText(entry->scheduledArrival, entry->actualArrival);
    f.day_LABEL.text = hours(static_cast<double>(entry->dayHours));
    f.night_LABEL.text = hours(static_cast<double>(entry->nightHours));
    f.inst_LABEL.text = hours(static_cast<double>(entry->instrumentHours));
    f.total_LABEL.text = hours(static_cast<double>(entry->dayHours) + static_cast<double>(entry->nightHours));
}

void takeNotes(Program& p) {
    if (LogRecord* entry = entryOf(p)) entry->comments = std::string(trimmed(p.forms.LogEntry.notes.text));
}

void bindClockForm(Program& p) {
    auto& f = p.forms.ClockForm;
    f.load = [&p] { placeScreen(p, p.forms.ClockForm); };
    f.activate = [&p] {
        auto& clock = p.forms.ClockForm;
        CenterOnMain(p, clock);
        clock.Label2.color = kReturn;
        if (const ClockField* field = fieldOf(p)) clock.Label1.text = field->title;
        ShowClockField(p);
    };
    const auto close = [&p] {
        playClick(p);
        hideScreen(p, p.forms.ClockForm);
    };
    f.Label2.on(Event::Click, close);
    f.Label2.on(Event::Enter, close);
    f.Label2.on(Event::Move, [&f] { f.Label2.color = kReturnHover; });
    f.BG.on(Event::Move, [&p] {
        p.forms.ClockForm.Label2.color = kReturn;
        RefreshClockButtons(p, "");
    });
}

} // namespace

void ShowClockField(Program& p) {
    const ClockField* field = fieldOf(p);
    const LogRecord* entry = entryOf(p);
    if (field == nullptr || entry == nullptr) return;
    auto& f = p.forms.ClockForm;
    if (field->time != nullptr) {
        const std::string text = formatInteger("0000", entry->*field->time);
        f.hours_LABEL.text = text.substr(0, 2);
        f.minutes_LABEL.text = text.substr(text.size() - 2);
    } else {
        const std::string text = p.g.numbers.formatSingle("00.0", entry->*field->hours);
        f.hours_LABEL.text = text.substr(0, 2);
        f.minutes_LABEL.text = text.empty() ? text : text.substr(text.size() - 1);
    }
    refreshEntry(p);
}

void stepLogField(Program& p, std::string_view type) {
    const ClockField* field = fieldOf(p);
    LogRecord* entry = entryOf(p);
    if (field == nullptr || entry == nullptr) return;
    if (field->time != nullptr)
        entry->*field->time = stepTime(entry->*field->time, type);
    else
        entry->*field->hours = stepHours(entry->*field->hours, type);
    ShowClockField(p);
}

void bindLogEntry(Program& p) {
    auto& f = p.forms.LogEntry;
    f.load = [&p] {
        placeScreen(p, p.forms.LogEntry);
        restorePictures(p.forms.LogEntry);
    };
    f.activate = [&p] {
        CenterOnMain(p, p.forms.LogEntry);
        refreshEntry(p);
    };
    f.BG.on(Event::Move, [&f] { restorePictures(f); });
    f.notes.on(Event::Change, [&p] { takeNotes(p); });
    for (const auto& field : kFields) {
        const auto open = [&p, &field] {
            p.g.LogField = field.word;
            showModal(p, p.forms.ClockForm);
        };
        Label& label = f.*field.label;
        label.on(Event::Click, open);
        label.on(Event::Enter, open);
    }
    bindClockForm(p);
}

} // namespace gatewise
