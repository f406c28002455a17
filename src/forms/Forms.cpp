#include "forms/Forms.h"

#include <algorithm>
#include <charconv>

namespace gatewise {

std::vector<Screen*> Forms::all() {
    return {&MainForm,     &SelectForm,   &FlightForm,  &InfoForm, &MsgForm,    &WaitForm,
            &SplashForm,   &SettingsForm, &OptionsForm, &DirForm,  &ExportForm, &DirExportForm,
            &ProgramsForm, &ViewPlan,     &PlanCharts,  &FlyForm,  &LogEntry,   &ClockForm,
            &ImportForm,   &RoutesForm,   &CareerForm,  &MsgBox};
}

Screen* Forms::find(std::string_view name) {
    for (Screen* screen : all()) {
        if (screen->name == name) return screen;
    }
    return nullptr;
}

Control* Forms::control(std::string_view fullName) {
    const auto dot = fullName.find('.');
    if (dot == std::string_view::npos) return nullptr;
    const Screen* screen = find(fullName.substr(0, dot));
    if (screen == nullptr) return nullptr;
    std::string_view name = fullName.substr(dot + 1);
    int index = -1;
    const auto open = name.find('(');
    if (open != std::string_view::npos) {
        const auto* last = name.data() + name.size();
        const auto [end, error] = std::from_chars(name.data() + open + 1, last, index);
        if (error != std::errc() || end == last || *end != ')' || index < 0) return nullptr;
        const std::string_view rest(end + 1, static_cast<std::size_t>(last - end - 1));
        if (!rest.empty()) return nullptr;
        name = name.substr(0, open);
    }
    return screen->find(name, index);
}

Screen* Forms::modalScreen() const {
    const auto at = std::find_if(front.begin(), front.end(), [](const Screen* s) { return s->modal; });
    return at == front.end() ? nullptr : *at;
}

void Forms::attachTimers(TimerHost* host) {
    for (Screen* screen : all()) {
        for (Control* control : screen->controls) {
            if (control->kind == Kind::Timer) static_cast<Timer*>(control)->attach(host);
        }
    }
}

} // namespace gatewise
