#include "window/Choices.h"

#include "input/UserEvents.h"
#include "window/Drawing.h"
#include "window/LabelText.h"
#include "window/QtText.h"
#include "window/Skin.h"
#include "window/Tone.h"

#include <QMouseEvent>

#include <cmath>

namespace gatewise::window {

namespace {

constexpr int kBox = 14;
constexpr int kTextIndent = 21;
constexpr int kFirstRepeat = 400; // milliseconds until a held arrow repeats, and between its steps
constexpr int kRepeat = 90;

void drawChoiceText(QPainter& painter, const View& view, const Skin& skin, const QString& text,
                    bool enabled) {
    TextStyle style = skin.text(view.place.font);
    style.color = enabled ? view.place.color : skin.style("check.disabledText");
    const QSize size = view.place.box.size();
    drawText(painter, QRectF(kTextIndent, 0, size.width() - kTextIndent, size.height()), text, style);
}

} // namespace

CheckView::CheckView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : QCheckBox(parent), View(actor, control, place) {
    setTristate(true);
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
    connect(this, &QCheckBox::clicked, this, [this] { actor_.act([this] { user::click(*this->control); }); });
}

std::span<const Event> CheckView::emits() const {
    static constexpr Event kEvents[] = {Event::Click, Event::Focus};
    return kEvents;
}

void CheckView::sync() {
    syncCommon();
    const auto& box = static_cast<const Check&>(*control);
    if (isEnabled() != box.enabled) setEnabled(box.enabled);
    const auto state = static_cast<Qt::CheckState>(box.value == 1   ? Qt::Checked
                                                   : box.value == 2 ? Qt::PartiallyChecked
                                                                    : Qt::Unchecked);
    if (checkState() != state) setCheckState(state);
    const QString now = toQt(box.text);
    if (text() != now) setText(now);
}

QString CheckView::spokenName() const {
    return toQt(static_cast<const Check&>(*control).text);
}

void CheckView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const double height = painter.whole().height();
    const Skin& skin = actor_.skin();
    const QRectF box(0, std::floor((height - kBox) / 2), kBox, kBox);
    const bool lit = underMouse() && isEnabled();
    drawBox(painter, box, skin.style("check.back"),
            lit           ? skin.style("check.hoverBorder")
            : isEnabled() ? skin.style("check.border")
                          : skin.style("frame.border"),
            2.5);
    if (checkState() != Qt::Unchecked) {
        painter.setRenderHint(QPainter::Antialiasing);
        const bool full = checkState() == Qt::Checked && isEnabled();
        painter.setPen(QPen(inkOf(skin.style(full ? "check.mark" : "check.grey")), 2, Qt::SolidLine,
                            Qt::RoundCap, Qt::RoundJoin));
        const QPointF tick[] = {
            {box.x() + 3, box.y() + 7.2}, {box.x() + 5.8, box.y() + 10.2}, {box.x() + 11, box.y() + 3.8}};
        painter.drawPolyline(tick, 3);
    }
    drawChoiceText(painter, *this, skin, text(), isEnabled());
}

OptionView::OptionView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : QRadioButton(parent), View(actor, control, place) {
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
    connect(this, &QRadioButton::clicked, this,
            [this] { actor_.act([this] { user::click(*this->control); }); });
}

std::span<const Event> OptionView::emits() const {
    static constexpr Event kEvents[] = {Event::Click, Event::Focus, Event::Change};
    return kEvents;
}

void OptionView::sync() {
    syncCommon();
    const auto& option = static_cast<const Option&>(*control);
    if (isEnabled() != option.enabled) setEnabled(option.enabled);
    if (isChecked() != option.value) setChecked(option.value);
    const QString now = toQt(option.text);
    if (text() != now) setText(now);
}

QString OptionView::spokenName() const {
    return toQt(static_cast<const Option&>(*control).text);
}

void OptionView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const double height = painter.whole().height();
    const Skin& skin = actor_.skin();
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF middle(kBox / 2.0, height / 2);
    painter.setPen(
        QPen(edgeOf(skin.style(underMouse() && isEnabled() ? "option.hoverBorder" : "option.border")), 1));
    painter.setBrush(groundOf(skin.style("option.back")));
    painter.drawEllipse(middle, 6.5, 6.5);
    if (static_cast<const Option&>(*control).value) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(inkOf(skin.style("option.mark")));
        painter.drawEllipse(middle, 3.2, 3.2);
    }
    drawChoiceText(painter, *this, skin, text(), isEnabled());
}

SliderView::SliderView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : QSlider(Qt::Horizontal, parent), View(actor, control, place) {
    setMouseTracking(true);
    connect(this, &QSlider::valueChanged, this, [this](int value) {
        if (value != range().value) actor_.act([&] { user::slide(range(), value); });
    });
}

std::span<const Event> SliderView::emits() const {
    static constexpr Event kEvents[] = {Event::Change, Event::Focus};
    return kEvents;
}

void SliderView::sync() {
    syncCommon();
    const QSignalBlocker quiet(this);
    if (isEnabled() != control->enabled) setEnabled(control->enabled);
    setRange(range().min, range().max);
    setSingleStep(range().step);
    setPageStep(std::max(range().page, 1));
    if (value() == range().value) return;
    setValue(range().value);
    update();
}

void SliderView::moveTo(double x) {
    const double share = (x / scale().factor - 8) / std::max(1.0, span().width() - 16);
    setValue(static_cast<int>(std::lround(minimum() + share * (maximum() - minimum()))));
}

void SliderView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) moveTo(event->position().x());
}

void SliderView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) moveTo(event->position().x());
    update();
}

void SliderView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const Skin& skin = actor_.skin();
    const double share = static_cast<double>(value() - minimum()) / std::max(1, maximum() - minimum());
    const double left = 8;
    const double length = painter.whole().width() - 16;
    const double middle = 14;
    drawBox(painter, {left - 4, middle - 3, length + 8, 6}, skin.style("slider.groove"),
            highContrast() ? kSocket : QColor(), 3); // black in black shows where it ends
    drawBox(painter, {left - 4, middle - 1.5, length * share + 4, 3}, skin.style("slider.fill"), QColor(),
            1.5);
    for (int i = 0; i <= 20; ++i) {
        painter.fillRect(QRectF(std::round(left + length * i / 20), 24, 1, i % 5 == 0 ? 7 : 4),
                         inkOf(skin.style("slider.tick")));
    }
    const double x = left + length * share;
    drawBox(painter, {x - 6, middle - 10, 12, 20}, kSocket, QColor(), 3);
    drawBox(painter, {x - 5, middle - 9, 10, 18},
            skin.style(underMouse() ? "slider.thumbHover" : "slider.thumb"), QColor(), 2);
    painter.fillRect(QRectF(x - 1, middle - 5, 2, 10), skin.style("slider.thumbLine"));
}

UpDownView::UpDownView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : QSlider(Qt::Vertical, parent), View(actor, control, place) {
    setMouseTracking(true);
    connect(this, &QSlider::valueChanged, this, [this](int value) {
        if (value != range().value) actor_.act([&] { user::slide(range(), value); });
    });
}

std::span<const Event> UpDownView::emits() const {
    static constexpr Event kEvents[] = {Event::Change, Event::Focus};
    return kEvents;
}

void UpDownView::sync() {
    syncCommon();
    const QSignalBlocker quiet(this);
    if (isEnabled() != control->enabled) setEnabled(control->enabled);
    setRange(range().min, range().max);
    setSingleStep(range().step);
    setPageStep(range().step);
    if (value() != range().value) setValue(range().value);
}

void UpDownView::step() {
    setValue(value() + direction_ * range().step);
}

void UpDownView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    direction_ = event->position().y() < height() / 2.0 ? 1 : -1;
    held_.start(kFirstRepeat, this);
    step();
}

void UpDownView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != held_.timerId()) {
        QSlider::timerEvent(event);
        return;
    }
    held_.start(kRepeat, this);
    step();
}

/// A hand that holds an arrow lets go of one that goes away or takes no input any more.
void UpDownView::hideEvent(QHideEvent* event) {
    held_.stop();
    QSlider::hideEvent(event);
}

void UpDownView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled()) held_.stop();
    QSlider::changeEvent(event);
}

void UpDownView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const double width = painter.whole().width();
    const double height = painter.whole().height();
    const Skin& skin = actor_.skin();
    const double half = height / 2;
    const double mouse = underMouse() ? inLayout(mapFromGlobal(QCursor::pos())).y() : -1;
    const QColor face = skin.style("updown.face");
    const QColor hover = skin.style("updown.hover");
    drawBox(painter, {0, 0, width, half}, mouse >= 0 && mouse < half ? hover : face, kSocket, 2);
    drawBox(painter, {0, half, width, half}, mouse >= half ? hover : face, kSocket, 2);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(inkOf(skin.style("updown.arrow")));
    const double x = width / 2;
    const QPointF up[] = {{x - 3.5, 8}, {x, 4}, {x + 3.5, 8}};
    const QPointF down[] = {{x - 3.5, height - 8}, {x, height - 4}, {x + 3.5, height - 8}};
    painter.drawPolygon(up, 3);
    painter.drawPolygon(down, 3);
}

} // namespace gatewise::window
