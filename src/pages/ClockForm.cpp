#include "pages/ClockForm.h"

#include "pages/LogEntry.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "work/LogWork.h"

namespace gatewise {

namespace {

constexpr Color kReturn{0, 128, 128};
constexpr Color kReturnHover{0, 255, 255};

/// The field LogField of the entry, here and on the entry's screen.
void ShowClockField(Program& p) {
    const ClockField* field = clockField(p.session.log);
    const LogRecord* entry = p.session.log.selected();
    if (field == nullptr || entry == nullptr) return;
    const ClockFieldTexts texts = clockFieldTexts(*field, *entry, p.session.locale.numbers);
    p.forms.ClockForm.hours_LABEL.text = texts.hours;
    p.forms.ClockForm.minutes_LABEL.text = texts.minutes;
    refreshEntry(p);
}

} // namespace

void stepLogField(Program& p, std::string_view type) {
    const ClockField* field = clockField(p.session.log);
    LogRecord* entry = p.session.log.selected();
    if (field == nullptr || entry == nullptr) return;
    stepLogField(*field, type, *entry);
    ShowClockField(p);
}

void bindClockForm(Program& p) {
    auto& f = p.forms.ClockForm;
    f.load = [&p] { placeScreen(p, p.forms.ClockForm); };
    f.activate = [&p] {
        auto& clock = p.forms.ClockForm;
        CenterOnMain(p, clock);
        clock.Label2.color = kReturn;
        if (const ClockField* field = clockField(p.session.log)) clock.Label1.text = field->title;
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
