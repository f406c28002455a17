#include "pages/ClockForm.h"

#include "logbook/LogTexts.h"
#include "pages/LogEntry.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"

namespace gatewise {

namespace {

constexpr Color kReturn{0, 128, 128};
constexpr Color kReturnHover{0, 255, 255};

/// A field that the clock screen edits: its word in LogField, the screen's title, and what it holds.
struct ClockField {
    const char* word;
    const char* title;
    std::int16_t LogRecord::*time; // either this
    float LogRecord::*hours;       // or this
};

constexpr ClockField kFields[] = {
    {"dept", "Set Deptarture Time", &LogRecord::actualDeparture, nullptr},
    {"arr", "Set Arrival Time", &LogRecord::actualArrival, nullptr},
    {"day", "Set Day Hours", nullptr, &LogRecord::dayHours},
    {"night", "Set Night Hours", nullptr, &LogRecord::nightHours},
    {"inst", "Set Instrument Hours", nullptr, &LogRecord::instrumentHours},
};

const ClockField* fieldOf(const Program& p) {
    for (const auto& field : kFields) {
        if (p.g.LogField == field.word) return &field;
    }
    return nullptr;
}

} // namespace

void ShowClockField(Program& p) {
    const ClockField* field = fieldOf(p);
    const LogRecord* entry = selectedEntry(p);
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
    LogRecord* entry = selectedEntry(p);
    if (field == nullptr || entry == nullptr) return;
    if (field->time != nullptr)
        entry->*field->time = stepTime(entry->*field->time, type);
    else
        entry->*field->hours = stepHours(entry->*field->hours, type);
    ShowClockField(p);
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

} // namespace gatewise
