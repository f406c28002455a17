#include "window/Buttons.h"

#include "input/UserEvents.h"
#include "window/Drawing.h"
#include "window/LabelText.h"
#include "window/QtText.h"
#include "window/Skin.h"
#include "window/Tone.h"

#include <QKeyEvent>

namespace gatewise::window {

namespace {

const char* folderOf(Kind kind) {
    switch (kind) {
    case Kind::FlatButton:
        return "\\Images\\Menu\\";
    case Kind::FormButton:
        return "\\Images\\Main\\";
    case Kind::boardButton:
        return "\\Images\\Status\\";
    default:
        return "\\Images\\Buttons\\";
    }
}

} // namespace

void drawKey(QPainter& painter, const QRectF& box, const QString& caption, const Skin& skin, bool lit,
             bool usable) {
    drawBox(painter, box, skin.style(lit ? "key.faceLit" : "key.face"), kSocket, 5);
    drawBox(painter, box.adjusted(1, 1, -1, -1), QColor(), skin.style(lit ? "key.rimLit" : "key.rim"), 4);
    TextStyle style = skin.text("section");
    style.color = skin.style(usable ? "key.text" : "key.disabledText");
    style.align = Qt::AlignHCenter;
    style.ellipsis = Ellipsis::Right;
    style.pad = 3;
    drawText(painter, box, caption, style);
}

ButtonView::ButtonView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : PaintedView(actor, control, place, parent) {
    setFocusPolicy(Qt::TabFocus);
}

std::string ButtonView::pictureTail() const {
    return folderOf(control->kind) + button().picture + ".bmp";
}

std::string ButtonView::paintedTail() const {
    if (!button().hasState() || button().State > 0) return pictureTail();
    struct Off {
        std::string_view on, off;
    };
    static constexpr Off kOff[] = {
        {"_regular", "_disabled"}, {"_mouse", "_disabled"}, {"_reg", "_dis"}, {"_mouse", "_dis"}};
    const std::string& name = button().picture;
    for (const Off& row : kOff) {
        if (!name.ends_with(row.on)) continue;
        const std::string stem = name.substr(0, name.size() - row.on.size());
        const std::string tail = folderOf(control->kind) + stem + std::string(row.off) + ".bmp";
        if (!actor_.skin().picture(tail, devicePixelRatioF()).isNull()) return tail;
    }
    return pictureTail();
}

void ButtonView::sync() {
    syncCommon();
    if (button().picture == shown_ && button().State == shownState_) return;
    if (button().State != shownState_) {
        QAccessible::State changed;
        changed.disabled = true;
        QAccessibleStateChangeEvent event(this, changed);
        QAccessible::updateAccessibility(&event);
    }
    shown_ = button().picture;
    shownState_ = button().State;
    update();
}

bool ButtonView::wordsOnPicture() const {
    return !actor_.skin().caption(pictureTail()).isEmpty();
}

QString ButtonView::spokenName() const {
    const QString caption = actor_.skin().caption(pictureTail());
    return caption.isEmpty() || !place.says.isEmpty() ? View::spokenName() : caption;
}

void ButtonView::byKey(const std::function<void()>& what) {
    actor_.act([&] {
        what();
        // A press lights the picture as under the mouse; without a mouse there, the ground puts it out.
        if (!underMouse()) putOut();
    });
}

/// Lit keys go out with a move over the ground that they stand on.
void ButtonView::putOut() {
    Control* ground = control->screen->find(place.container);
    if (ground != nullptr && control->screen->visible) user::move(*ground);
}

/// A fast hand leaves a key without touching the ground beside it.
void ButtonView::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    actor_.act([this] { putOut(); });
}

void ButtonView::activate() {
    byKey([&] {
        if (control->handles(Event::Enter))
            user::enter(*control);
        else
            user::click(*control);
    });
}

void ButtonView::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event) && usable()) {
        activate();
    } else if (event->key() == Qt::Key_Space && usable()) {
        byKey([&] { user::click(*control); });
    } else {
        event->ignore();
    }
}

void ButtonView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const QPixmap picture = actor_.skin().picture(paintedTail(), *this);
    if (picture.isNull()) {
        drawKey(painter, painter.whole(), spokenName(), actor_.skin(), shown_.ends_with("_mouse"), usable());
        return;
    }
    drawPicture(painter, painter.whole(), picture);
    // The black face on black shows where it ends.
    if (highContrast()) drawBox(painter, painter.whole(), QColor(), kSocket, 4);
}

PushButtonView::PushButtonView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : QPushButton(parent), View(actor, control, place) {
    setMouseTracking(true);
    connect(this, &QPushButton::clicked, this,
            [this] { actor_.act([this] { user::click(*this->control); }); });
}

void PushButtonView::sync() {
    syncCommon();
    setEnabled(control->enabled);
    const QString text = toQt(static_cast<const PushButton&>(*control).text);
    if (text != this->text()) setText(text);
}

QString PushButtonView::spokenName() const {
    return toQt(static_cast<const PushButton&>(*control).text);
}

std::span<const Event> PushButtonView::emits() const {
    static constexpr Event kEvents[] = {Event::Press, Event::Release, Event::Click, Event::Enter,
                                        Event::Focus};
    return kEvents;
}

void PushButtonView::activate() {
    pressEnter(actor_, *control);
}

void PushButtonView::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event) && usable())
        activate();
    else
        QPushButton::keyPressEvent(event);
}

void PushButtonView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    // A key that is off does not light up, nor does it learn that the mouse has left it.
    const bool lit = isEnabled() && (underMouse() || isDown());
    drawKey(painter, painter.whole(), text(), actor_.skin(), lit, isEnabled());
}

} // namespace gatewise::window
