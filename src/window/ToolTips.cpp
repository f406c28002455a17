#include "window/ToolTips.h"

#include "window/Buttons.h"
#include "window/Marks.h"

#include <QHelpEvent>
#include <QToolTip>

namespace gatewise::window {

namespace {

/// What keys of the keyboard do the same.
struct KeyHint {
    const char* type;
    const char* keys;
};

constexpr KeyHint kHints[] = {{"prev1", "Page Up"}, {"next1", "Page Down"}, {"log_print", "Ctrl+P"}};

QString withKeys(const QString& words, const Control& control) {
    const auto& type = static_cast<const SkinnedButton&>(control).button_type;
    for (const KeyHint& hint : kHints) {
        if (type == hint.type) return words + " (" + hint.keys + ")";
    }
    return words;
}

} // namespace

QString tipOf(const View& view) {
    if (view.control == nullptr || !view.control->toolTip.empty()) return {};
    if (sortsTable(*view.control)) return "Double click to sort the board by this column";
    const auto* key = dynamic_cast<const ButtonView*>(&view);
    if (key == nullptr || key->wordsOnPicture()) return {};
    return withKeys(key->spokenName(), *key->control);
}

bool showTip(QObject* object, QEvent* event) {
    if (event->type() != QEvent::ToolTip) return false;
    const auto* view = dynamic_cast<View*>(object);
    const QString tip = view != nullptr ? tipOf(*view) : QString();
    if (tip.isEmpty()) return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, static_cast<QWidget*>(object));
    return true;
}

} // namespace gatewise::window
