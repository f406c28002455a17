#include "pages/CopyTexts.h"

#include "pages/MainBoard.h"

#include <utility>

namespace gatewise {

namespace {

std::string line(const std::vector<std::string>& cells) {
    std::string out;
    for (const std::string& cell : cells) out.append(trimmed(cell)).append("\t");
    if (!out.empty()) out.pop_back();
    return out + "\n";
}

std::string boardLine(const forms::MainForm& f, int row) {
    return line(
        {f.fltnum_LABEL(row).text, f.city_LABEL(row).text, f.time_LABEL(row).text, f.status_LABEL(row).text});
}

using PassField = std::pair<const char*, Label forms::MainForm::*>;

constexpr PassField kPassFields[] = {
    {"Passenger", &forms::MainForm::nameLABEL_1},  {"Flight", &forms::MainForm::fltLABEL_1},
    {"Date", &forms::MainForm::dateLABEL_1},       {"From", &forms::MainForm::originLABEL_1},
    {"To", &forms::MainForm::destLABEL_1},         {"Departs", &forms::MainForm::timeLABEL},
    {"Arrives", &forms::MainForm::arrtimeLABEL},   {"Class", &forms::MainForm::classLABEL},
    {"Seat", &forms::MainForm::seatLABEL_1},       {"Meal", &forms::MainForm::mealLABEL},
    {"Aircraft", &forms::MainForm::aircraftLABEL}, {"Airline", &forms::MainForm::carrierLABEL_2},
};

} // namespace

std::string rowText(const ListView& list) {
    const ListView::Row* row = list.selected();
    if (row == nullptr) return {};
    std::string text = line(row->cells);
    text.pop_back();
    return text;
}

std::string boardText(const forms::MainForm& f) {
    std::string text = f.header_LABEL.text + "\n" + boardLine(f, kHeadingRow);
    for (int i = 0; i < kRowsOnPage; ++i) {
        if (!trimmed(f.fltnum_LABEL(i).text).empty()) text += boardLine(f, i);
    }
    return text;
}

std::string passText(const forms::MainForm& f) {
    if (trimmed(f.fltLABEL_1.text).empty()) return {};
    std::string text;
    for (const auto& [name, label] : kPassFields) text += line({name, (f.*label).text});
    return text;
}

std::string copyText(const Forms& forms, const Screen& screen) {
    const auto& main = forms.MainForm;
    if (&screen == &main)
        return main.status_pic.visible ? boardText(main) : main.main_pic.visible ? passText(main) : "";
    for (const Control* control : screen.controls) {
        if (control->kind == Kind::ListView) return rowText(static_cast<const ListView&>(*control));
    }
    return {};
}

} // namespace gatewise
