#include "pages/LogEntry.h"

#include "logbook/LogTexts.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"

namespace gatewise {

namespace {

std::string place(const FixedText<4>& icao, const FixedText<35>& name) {
    return " " + std::string(icao.trimmed()) + " - " + std::string(name.trimmed());
}

void takeNotes(Program& p) {
    if (LogRecord* entry = p.session.log.selected())
        entry->comments = std::string(trimmed(p.forms.LogEntry.notes.text));
}

/// A label that opens the clock screen, with the field's word in LogField.
struct FieldLabel {
    Label forms::LogEntry::*label;
    const char* word;
};

constexpr FieldLabel kFieldLabels[] = {
    {&forms::LogEntry::ACTdepttime_LABEL, "dept"}, {&forms::LogEntry::ACTarrtime_LABEL, "arr"},
    {&forms::LogEntry::day_LABEL, "day"},          {&forms::LogEntry::night_LABEL, "night"},
    {&forms::LogEntry::inst_LABEL, "inst"},
};

} // namespace

void refreshEntry(Program& p) {
    const LogRecord* entry = p.session.log.selected();
    if (entry == nullptr) return;
    auto& f = p.forms.LogEntry;
    const auto hours = [&](double value) { return hoursText(value, p.session.locale.numbers); };
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
    for (const auto& field : kFieldLabels) {
        const auto open = [&p, &field] {
            p.session.log.LogField = field.word;
            return showModal(p, p.forms.ClockForm);
        };
        Label& label = f.*field.label;
        label.on(Event::Click, open);
        label.on(Event::Enter, open);
    }
}

} // namespace gatewise
