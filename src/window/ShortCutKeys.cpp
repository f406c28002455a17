#include "window/ShortCutKeys.h"

#include "input/ShortCuts.h"
#include "input/UserEvents.h"
#include "window/Fields.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>
#include <QWheelEvent>

#include <algorithm>

namespace gatewise::window {

namespace {

std::string nameOf(const QKeyEvent& event) {
    const auto bare = event.modifiers() & ~Qt::KeypadModifier;
    return QKeySequence(QKeyCombination(bare, static_cast<Qt::Key>(event.key())))
        .toString(QKeySequence::PortableText)
        .toStdString();
}

bool known(const std::string& keys) {
    const auto table = shortCuts();
    return std::any_of(table.begin(), table.end(),
                       [&](const ShortCut& row) { return row.run != nullptr && row.keys == keys; });
}

bool walks(const std::string& keys) {
    return keys == "PgUp" || keys == "PgDown" || keys == "Home" || keys == "End";
}

/// Text that the pilot marked, not what a field marks by itself when the window opens with it.
bool marked(const QLineEdit& line) {
    const auto* view = dynamic_cast<const LineView*>(&line);
    return view != nullptr ? view->markedByHand() : line.hasSelectedText();
}

/// Whether the widget with the focus has a use of its own for the keys.
bool keeps(const QWidget* focus, const std::string& keys) {
    if (const auto* line = qobject_cast<const QLineEdit*>(focus))
        return (keys == "Ctrl+C" && marked(*line)) || (keys == "Ctrl+Z" && line->isUndoAvailable()) ||
               keys == "Home" || keys == "End";
    if (const auto* notes = qobject_cast<const QPlainTextEdit*>(focus))
        return (keys == "Ctrl+C" && notes->textCursor().hasSelection()) ||
               (keys == "Ctrl+Z" && notes->document()->isUndoAvailable()) || walks(keys);
    const bool walked = qobject_cast<const QAbstractItemView*>(focus) != nullptr ||
                        qobject_cast<const QComboBox*>(focus) != nullptr ||
                        qobject_cast<const QSlider*>(focus) != nullptr;
    return walked && walks(keys);
}

/// Home and End go on to the row with the focus, which moves to the first or the last line of the new page.
bool goesOn(QWidget* focus, const std::string& keys) {
    const View* view = viewOf(focus);
    return (keys == "Home" || keys == "End") && view != nullptr && view->place.family > 0;
}

} // namespace

ShortCutKeys::ShortCutKeys(Program& program, Desk& desk) : program_(program), desk_(desk) {
    qApp->installEventFilter(this);
}

/// Whether the program is at work, so that input has to wait.
bool ShortCutKeys::atWork() const {
    return program_.ending || desk_.painting() || program_.session.desk.StartupDone == kFalse;
}

bool ShortCutKeys::key(const QKeyEvent& event) {
    const std::string keys = nameOf(event);
    QWidget* focus = QApplication::focusWidget();
    if (!known(keys) || keeps(focus, keys)) return false;
    bool done = false;
    desk_.act([&] { done = runShortCut(program_, keys); });
    return done && !goesOn(focus, keys);
}

bool ShortCutKeys::wheel(const QWidget& under, const QWheelEvent& event) {
    auto& f = program_.forms.MainForm;
    View* board = desk_.mainWindow().view(f.status_pic);
    if (board == nullptr || event.modifiers() != Qt::NoModifier) return false;
    const QWidget* ground = board->widget();
    if (ground != &under && !(f.status_pic.visible && ground->isAncestorOf(&under))) return false;
    if (const int notches = wheel_.take(event); notches != 0)
        desk_.act([&] { user::turn(f.status_pic, -notches); });
    return true;
}

bool ShortCutKeys::eventFilter(QObject* object, QEvent* event) {
    const bool pressed = event->type() == QEvent::KeyPress;
    if ((!pressed && event->type() != QEvent::Wheel) || !object->isWidgetType() || atWork())
        return QObject::eventFilter(object, event);
    auto* widget = static_cast<QWidget*>(object);
    if (!pressed) return wheel(*widget, *static_cast<QWheelEvent*>(event));
    // The event climbs from the focus to the window; it is asked about once, at its start.
    const QWidget* focus = QApplication::focusWidget();
    return (focus == nullptr || focus == widget) && key(*static_cast<QKeyEvent*>(event));
}

} // namespace gatewise::window
