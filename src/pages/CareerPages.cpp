#include "pages/CareerPages.h"

#include "career/CareerPictures.h"
#include "pages/CareerView.h"
#include "pages/Maps.h"
#include "pages/MsgForm.h"
#include "plan/PrintPlan.h"

namespace gatewise {

namespace {

/// "All flights", or the filters that are set.
std::string filterText(const forms::CareerForm& f) {
    std::string text;
    for (const Combo* combo : {&f.yearCOMBO, &f.aircraftCOMBO, &f.airlineCOMBO}) {
        if (combo->picked > 0) text += (text.empty() ? "" : ", ") + combo->text();
    }
    return text.empty() ? "All flights" : text;
}

/// What goes onto paper.
struct Pages {
    std::string text;
    std::vector<Drawing> drawings;
};

Pages careerPages(const Program& p) {
    constexpr std::size_t kNames = 24; // characters before the values
    const auto& f = p.forms.CareerForm;
    const Career flown = shownCareer(p);
    Pages pages;
    pages.text = "CAREER" + p.forms.MainForm.log_pilotName.text + "\n" + filterText(f) + "\n\n";
    for (const auto& [name, value] : careerRows(flown, p.session.locale.numbers)) {
        pages.text.append(name).append(name.size() < kNames ? kNames - name.size() : 1, ' ');
        pages.text.append(value).append("\n");
    }
    if (!f.map.scene.places.empty()) pages.drawings.push_back(paperMap(f.map.scene));
    if (flown.flights > 0) pages.drawings.push_back(careerBars(flown));
    return pages;
}

Waited save(Program& p, const std::string& extension) {
    const auto asked =
        p.machine.desktop.askSavePath("Save Career", p.session.appPath("\\Career" + extension));
    if (!asked || waited(p) == Waited::Ended) return waited(p);
    const std::string path = lowerCase(*asked).ends_with(extension) ? *asked : *asked + extension;
    const Pages pages = careerPages(p);
    if (const auto error =
            p.machine.printer.save(path, std::string(kPrintFont), kPrintFontSize, pages.text, pages.drawings))
        return ShowMessage(p, failure(error, "SaveCareer"));
    p.machine.desktop.notify("The Career has been saved to " + path);
    return waited(p);
}

} // namespace

void copyCareer(Program& p) {
    p.machine.desktop.copy(careerText(careerRows(shownCareer(p), p.session.locale.numbers)));
}

Waited printCareer(Program& p) {
    const Pages pages = careerPages(p);
    const auto error =
        p.machine.printer.print(std::string(kPrintFont), kPrintFontSize, pages.text, pages.drawings);
    return error ? ShowMessage(p, failure(error, "PrintCareer")) : waited(p);
}

Waited saveCareerPicture(Program& p) {
    return save(p, ".png");
}

Waited saveCareerPages(Program& p) {
    return save(p, ".pdf");
}

} // namespace gatewise
