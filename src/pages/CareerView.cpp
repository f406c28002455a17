#include "pages/CareerView.h"

#include "career/CareerPictures.h"
#include "pages/Maps.h"

namespace gatewise {

namespace {

constexpr const char* kAll = "All";

std::string chosenName(const Combo& combo) {
    return combo.picked > 0 ? combo.text() : std::string();
}

/// Filled without a click on it: the first item stands for all.
void fillCombo(Combo& combo, const std::vector<std::string>& names) {
    combo.clear();
    combo.add(kAll);
    for (const auto& name : names) combo.add(name);
    combo.picked = 0;
}

void fillChoices(Program& p) {
    auto& f = p.forms.CareerForm;
    const CareerChoices choices = careerChoices(p.session.log.LogEntries);
    fillCombo(f.yearCOMBO, {});
    for (const int year : choices.years) f.yearCOMBO.add(std::to_string(year), year);
    fillCombo(f.aircraftCOMBO, choices.aircraft);
    fillCombo(f.airlineCOMBO, choices.airlines);
}

} // namespace

Career shownCareer(const Program& p) {
    const auto& f = p.forms.CareerForm;
    return careerOf(p.session.log.LogEntries, p.session.schedule.tables,
                    {f.yearCOMBO.data(), chosenName(f.aircraftCOMBO), chosenName(f.airlineCOMBO)});
}

void fillCareer(Program& p) {
    auto& f = p.forms.CareerForm;
    const Career flown = shownCareer(p);
    f.totals.clear();
    for (const auto& [name, value] : careerRows(flown, p.session.locale.numbers))
        f.totals.rows.push_back({{}, {name, value}, false});
    f.bars.drawing = careerBars(flown);
    setScene(f.map, careerScene(flown, shownLand(p)));
    f.hover_LABEL.text = f.map.scene.summary;
}

void refreshCareer(Program& p) {
    fillChoices(p);
    fillCareer(p);
}

void chooseOnCareerMap(Program& p, int id) {
    auto& f = p.forms.CareerForm;
    f.map.chosen = id;
    f.hover_LABEL.text = f.map.scene.summary;
    const auto say = [&](const auto& all) {
        for (const auto& one : all) {
            if (id >= 0 && one.id == id) f.hover_LABEL.text = one.words;
        }
    };
    say(f.map.scene.places);
    say(f.map.scene.routes);
}

} // namespace gatewise
