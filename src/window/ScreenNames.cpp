#include "window/ScreenNames.h"

#include "window/QtText.h"

namespace gatewise::window {

namespace {

bool needsCaption(Kind kind) {
    switch (kind) {
    case Kind::TextBox:
    case Kind::Combo:
    case Kind::ListBox:
    case Kind::ListView:
    case Kind::DriveList:
    case Kind::FolderList:
    case Kind::FileList:
    case Kind::Slider:
    case Kind::UpDown:
    case Kind::Label:
        return true;
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

/// The words of the label that stands nearest to a view, empty when none is near.
QString nearestCaption(const View& view, const ScreenLayout& layout) {
    QString nearest;
    int shortest = -1;
    for (const ControlLayout& label : layout.controls) {
        if (label.kind != "label" || label.container != view.place.container || label.text.empty()) continue;
        if (label.font != "caption" && label.font != "section" && label.font != "data") continue;
        const int distance = captionDistance(label.box, view.place.box);
        if (distance < 0 || (shortest >= 0 && distance >= shortest)) continue;
        shortest = distance;
        nearest = QString::fromStdString(label.text).trimmed();
    }
    return nearest;
}

/// The texts of a table's line, as one sentence.
QString wordsOfRow(const std::vector<View*>& views, int family, int row) {
    QStringList words;
    for (const View* view : views) {
        if (view->place.family != family || view->place.row != row) continue;
        if (view->control->kind != Kind::Label || view->place.font.empty()) continue;
        const QString text = toQt(static_cast<const Label&>(*view->control).text).simplified();
        if (!text.isEmpty()) words << text;
    }
    return words.isEmpty() ? QString("Empty line") : words.join(", ");
}

} // namespace

void nameFields(const std::vector<View*>& views, const ScreenLayout& layout) {
    for (View* view : views) {
        if (view->control == nullptr) continue;
        const bool words = view->control->kind == Kind::Label && !view->place.hit;
        if (!words && needsCaption(view->control->kind)) view->captionNearby = nearestCaption(*view, layout);
        view->widget()->setAccessibleName(view->spokenName());
    }
}

void nameRows(const std::vector<View*>& views) {
    for (View* view : views) {
        if (view->place.family == 0) continue;
        const bool words = view->control->kind == Kind::Label || view->control->kind == Kind::HitArea;
        if (!words) continue;
        view->wordsOfRow = [&views, family = view->place.family, row = view->place.row] {
            return wordsOfRow(views, family, row);
        };
    }
}

} // namespace gatewise::window
