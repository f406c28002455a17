#include "window/Accelerators.h"

#include "input/UserEvents.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace gatewise::window {

namespace {

constexpr QSize kBadge(15, 15);

/// All letters of the window in front, over everything else.
class Letters : public QWidget {
public:
    Letters(ScreenWindow& window, const Skin& skin)
        : QWidget(&window), font_(skin.widgetFont("section")), back_(skin.style("tooltip.back")),
          ink_(skin.style("tooltip.text")) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(window.rect());
        for (const auto& [letter, view] : Accelerators::lettersOf(window)) {
            const QPoint at = skin.zoom().point(view->boxInWindow().topLeft() + QPoint(1, 1));
            places_.emplace_back(letter, QRect(at, skin.zoom().size(kBadge)));
        }
        font_.setUnderline(true);
        raise();
        QWidget::show();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setFont(font_);
        for (const auto& [letter, box] : places_) {
            painter.fillRect(box, ink_);
            painter.fillRect(box.adjusted(1, 1, -1, -1), back_);
            painter.setPen(ink_);
            painter.drawText(box, Qt::AlignCenter, QString(letter));
        }
    }

private:
    QFont font_;
    QColor back_, ink_;
    std::vector<std::pair<QChar, QRect>> places_;
};

QChar freeLetter(const QString& words, const std::map<QChar, View*>& taken) {
    const auto isFree = [&](QChar c) { return taken.find(c) == taken.end(); };
    const auto isPlain = [](QChar c) { return c >= 'A' && c <= 'Z'; };
    bool begins = true;
    const QString upper = words.toUpper();
    for (const QChar c : upper) {
        if (begins && isPlain(c) && isFree(c)) return c;
        begins = !c.isLetterOrNumber();
    }
    for (const QChar c : upper) {
        if (isPlain(c) && isFree(c)) return c;
    }
    for (char digit = '1'; digit <= '9'; ++digit) {
        if (isFree(QChar(digit))) return QChar(digit);
    }
    return {};
}

/// Fields and lists are gone to, boxes are turned, keys are pressed.
void use(View& view, Desk& desk) {
    view.widget()->setFocus(Qt::ShortcutFocusReason);
    if (view.control == nullptr) return view.activate(); // a key of the window's own
    Control& control = *view.control;
    switch (control.kind) {
    case Kind::Check:
    case Kind::Option:
        desk.act([&] { user::click(control); });
        break;
    case Kind::TextBox:
    case Kind::Combo:
    case Kind::DriveList:
    case Kind::ListBox:
    case Kind::ListView:
    case Kind::FolderList:
    case Kind::FileList:
    case Kind::Slider:
    case Kind::UpDown:
        break;
    default:
        view.activate();
    }
}

} // namespace

Accelerators::Accelerators(Desk& desk) : desk_(desk) {
    qApp->installEventFilter(this);
}

Accelerators::~Accelerators() {
    hide();
}

std::map<QChar, View*> Accelerators::lettersOf(const ScreenWindow& window) {
    std::map<QChar, View*> letters;
    for (View* view : window.stops()) {
        if (view->place.family > 0) continue; // the rows of a table are walked by arrows
        const QChar letter = freeLetter(view->spokenName(), letters);
        if (!letter.isNull()) letters[letter] = view;
    }
    return letters;
}

void Accelerators::show() {
    ScreenWindow* window = desk_.front();
    if (letters_ == nullptr && window != nullptr) letters_ = new Letters(*window, desk_.skin());
}

void Accelerators::hide() {
    delete letters_;
}

bool Accelerators::press(const QKeyEvent& event) {
    const auto held = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    ScreenWindow* window = desk_.front();
    if (held != Qt::AltModifier || window == nullptr || desk_.painting()) return false;
    const auto letters = lettersOf(*window);
    const auto at = letters.find(QChar(event.key()).toUpper());
    if (event.key() > 0xFF || at == letters.end()) return false;
    hide();
    if (!event.isAutoRepeat()) use(*at->second, desk_);
    return true;
}

bool Accelerators::eventFilter(QObject* object, QEvent* event) {
    const auto type = event->type();
    if (type == QEvent::WindowDeactivate || type == QEvent::MouseButtonPress) hide();
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease) return QObject::eventFilter(object, event);
    if (!object->isWidgetType()) return QObject::eventFilter(object, event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (key.key() == Qt::Key_Alt) {
        type == QEvent::KeyPress ? show() : hide();
        return QObject::eventFilter(object, event);
    }
    return type == QEvent::KeyPress && press(key);
}

} // namespace gatewise::window
