#include "window/ScreenNames.h"

#include "window/LinesTable.h"
#include "window/QtText.h"

#include <algorithm>
#include <map>

namespace gatewise::window {

namespace {

bool needsCaption(const View& view) {
    switch (view.control->kind) {
    case Kind::TextBox:
    case Kind::Combo:
    case Kind::ListBox:
    case Kind::ListView:
    case Kind::DriveList:
    case Kind::FolderList:
    case Kind::FileList:
    case Kind::Slider:
    case Kind::UpDown:
        return true;
    case Kind::Label:
        return view.place.family == 0 && !isCaption(view.place) &&
               (view.place.hit || view.place.quiet || view.place.text.empty());
    default:
        return false;
    }
}

/// How far a label stands from the field that it names: above or to the left. Negative: it names another one.
int captionDistance(const QRect& label, const QRect& field) {
    const int above = field.top() - label.bottom() - 1;
    const bool sameColumn = std::abs(label.left() - field.left()) <= 8;
    if (sameColumn && above >= -2 && above <= 8) return above + 2;
    const int left = field.left() - label.right() - 1;
    const bool sameLine = std::abs(label.center().y() - field.center().y()) <= 4;
    if (sameLine && left >= -2 && left <= 60) return left + 12;
    return -1;
}

/// The label that stands nearest to a view, null when none is near.
View* nearestCaption(const View& view, const std::vector<View*>& views) {
    View* nearest = nullptr;
    int shortest = -1;
    for (View* label : views) {
        if (label->control == nullptr || label == &view || !isCaption(label->place)) continue;
        if (label->place.container != view.place.container) continue;
        const int distance = captionDistance(label->place.box, view.place.box);
        if (distance < 0 || (shortest >= 0 && distance >= shortest)) continue;
        shortest = distance;
        nearest = label;
    }
    return nearest;
}

/// The texts of a table's line, as one sentence.
QString wordsOfRow(const std::vector<View*>& views, int family, int row) {
    QStringList words;
    for (const View* view : views) {
        if (view->place.family != family || view->place.row != row) continue;
        if (view->control->kind != Kind::Label || view->place.font.empty()) continue;
        const QString text = view->spokenName();
        if (!text.isEmpty()) words << text;
    }
    return words.isEmpty() ? QString("Empty line") : words.join(", ");
}

/// The head of a control array's column: the element of its name that stands in no line.
View* headOf(const std::vector<View*>& views, const View& cell) {
    const auto at = std::find_if(views.begin(), views.end(), [&](const View* view) {
        return view->control != nullptr && view->place.family == 0 && view->place.name == cell.place.name;
    });
    return at == views.end() ? nullptr : *at;
}

using Columns = std::vector<LinesTable::Column>;

void addCell(Columns& columns, const std::vector<View*>& views, View& cell) {
    const bool more = !columns.empty() && columns.back().cells.back()->place.name == cell.place.name;
    if (!more) columns.push_back({cell.place.says, headOf(views, cell), {}});
    columns.back().cells.push_back(&cell);
}

} // namespace

bool isCaption(const ControlLayout& place) {
    if (place.kind != "label" || place.hit || place.back.isValid()) return false;
    if (place.font == "city") return true; // its words change
    return !place.text.empty() &&
           (place.font == "caption" || place.font == "section" || place.font == "data" ||
            place.font == "pass-print" || place.font == "pass-band-small");
}

void nameFields(const std::vector<View*>& views) {
    for (View* view : views) {
        if (view->control == nullptr) continue;
        if (needsCaption(*view)) view->caption = nearestCaption(*view, views);
        if (view->caption != nullptr) view->caption->named.push_back(view);
        view->widget()->setAccessibleName(view->spokenName());
    }
}

void nameRows(const std::vector<View*>& views) {
    std::map<int, Columns> tables;
    for (View* view : views) {
        if (view->place.family == 0) continue;
        const bool pressed = view->control->kind == Kind::HitArea;
        if (view->control->kind != Kind::Label && !pressed) continue;
        view->wordsOfRow = [&views, family = view->place.family, row = view->place.row] {
            return wordsOfRow(views, family, row);
        };
        if (pressed || !view->place.font.empty()) addCell(tables[view->place.family], views, *view);
    }
    for (auto& [family, columns] : tables) new LinesTable(std::move(columns));
}

} // namespace gatewise::window
