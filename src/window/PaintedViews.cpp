#include "window/PaintedViews.h"

#include "input/UserEvents.h"
#include "window/Drawing.h"
#include "window/LabelText.h"
#include "window/LinesTable.h"
#include "window/Marks.h"
#include "window/QtText.h"
#include "window/ScreenNames.h"
#include "window/Skin.h"
#include "window/Tone.h"

#include <QPaintEvent>

#include <algorithm>

namespace gatewise::window {

namespace {

constexpr Color kNoColor{255, 255, 255}; // a label that the program has not coloured
constexpr int kHeadingRise = 8;          // of a frame's heading above its line

bool rowHandles(const Control& control) {
    return control.handles(Event::DoubleClick) || control.handles(Event::RightPress) ||
           control.handles(Event::Click);
}

} // namespace

GroundView::GroundView(Actor& actor, Control* control, const ControlLayout& place, std::string picture,
                       QWidget* parent)
    : PaintedView(actor, control, place, parent), picture_(std::move(picture)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void GroundView::paintEvent(QPaintEvent* event) {
    const QPixmap picture = actor_.skin().picture(picture_, *this);
    if (picture.isNull()) {
        QPainter(this).fillRect(event->rect(), groundOf(kPanel));
        return;
    }
    ViewPainter painter(*this, scale());
    drawPicture(painter, painter.whole(), picture);
    // Black on black, a window shows where it ends.
    if (highContrast() && parentWidget()->isWindow()) drawBox(painter, painter.whole(), QColor(), kSocket, 0);
}

/// A well has a light line below its box.
QMargins LabelView::beyond() const {
    return {0, 0, 0, place.back.isValid() ? 1 : 0};
}

TextStyle LabelView::style() const {
    const Skin& skin = actor_.skin();
    TextStyle style = skin.text(place.font);
    style.color = label().color == kNoColor ? place.color : toQt(label().color);
    if (!label().enabled) style.color = place.disabled.isValid() ? place.disabled : kDisabledText;
    style.align = place.align;
    style.top = place.top;
    style.wrap = place.wrap;
    style.lines = place.lines;
    style.ellipsis = place.ellipsis;
    style.pad = place.back.isValid() && place.align != Qt::AlignHCenter ? 8 : 0;
    return style;
}

void LabelView::sync() {
    syncCommon();
    const Label& now = label();
    if (now.text == shownText_ && now.color == shownColor_ && now.enabled == shownEnabled_ &&
        now.highlighted == shownMark_ && now.mark == shownSign_) {
        return;
    }
    if (now.text != shownText_ && !place.quiet) {
        QAccessibleEvent event(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
    shownText_ = now.text;
    shownColor_ = now.color;
    shownEnabled_ = now.enabled;
    shownMark_ = now.highlighted;
    shownSign_ = now.mark;
    update();
}

QString LabelView::spokenName() const {
    const QString text = toQt(label().text).simplified();
    if (lines != nullptr) return lines->spoken(*this, text);
    const QString words = place.says.isEmpty() ? captionWords() : place.says;
    if (words.isEmpty()) return text;
    if (isCaption(place)) return words;
    return words + ": " + (text.isEmpty() ? "none" : text);
}

QString LabelView::spokenDetails() const {
    return wordsOfRow && lines != nullptr && takesFocus() ? wordsOfRow() : View::spokenDetails();
}

QAccessible::Role LabelView::role() const {
    if (lines != nullptr) return lines->roleOf(*this);
    return isKey() ? QAccessible::Button : QAccessible::StaticText;
}

bool LabelView::isKey() const {
    return rowHandles(*control) && lines == nullptr;
}

/// Nothing to say, as of a colon between two numbers, or what the value that it names says already.
bool LabelView::silent() const {
    const auto isLabel = [](const View* view) { return view->control->kind == Kind::Label; };
    if (!named.empty() && std::all_of(named.begin(), named.end(), isLabel)) return true;
    const QString words = spokenName();
    return std::none_of(words.begin(), words.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

bool LabelView::takesFocus() const {
    if (!usable() || !rowHandles(*control)) return false;
    return place.family == 0 || !toQt(label().text).trimmed().isEmpty();
}

void LabelView::activate() {
    pressEnter(actor_, *control);
}

void LabelView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const QRect box(QPoint(0, 0), place.box.size());
    if (place.back.isValid())
        drawWell(painter, box, place.back, place.border, actor_.skin().style("well.rim"));
    if (place.highlight.isValid() && label().highlighted) {
        QColor fill = place.highlight;
        fill.setAlphaF(0.75F);
        painter.fillRect(onPixels(painter, box), fill);
        painter.fillRect(onPixels(painter, QRectF(0, 0, 3, box.height())), kMarkEdge);
    }
    if (!place.font.empty()) drawText(painter, box, toQt(label().text), style());
    drawMark(painter, box, label());
}

QString HitAreaView::spokenName() const {
    return lines != nullptr ? lines->spoken(*this, {}) : View::spokenName();
}

QString HitAreaView::spokenDetails() const {
    return wordsOfRow ? wordsOfRow() : View::spokenDetails();
}

QAccessible::Role HitAreaView::role() const {
    return lines != nullptr ? lines->roleOf(*this) : QAccessible::Grouping;
}

bool HitAreaView::takesFocus() const {
    return usable() && rowHandles(*control) && (lines == nullptr || lines->hasWords(place.row));
}

void HitAreaView::activate() {
    pressEnter(actor_, *control);
}

void PictureView::sync() {
    syncCommon();
    const auto& now = static_cast<const Picture&>(*control).picture;
    if (now == shown_) return;
    shown_ = now;
    update();
}

QString PictureView::spokenName() const {
    const QString caption = actor_.skin().caption(static_cast<const Picture&>(*control).picture);
    return caption.isEmpty() ? View::spokenName() : caption;
}

void PictureView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const QPixmap picture = actor_.skin().picture(shown_, *this);
    if (!picture.isNull()) {
        drawPicture(painter, painter.whole(), picture);
        return;
    }
    TextStyle style = actor_.skin().text("section");
    style.color = actor_.skin().style("frame.text");
    style.align = Qt::AlignHCenter;
    drawText(painter, painter.whole(), spokenName(), style);
}

QMargins FrameView::beyond() const {
    return {0, kHeadingRise, 0, 0};
}

QString FrameView::spokenName() const {
    return toQt(static_cast<const Frame&>(*control).text).trimmed();
}

void FrameView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const Skin& skin = actor_.skin();
    TextStyle style = skin.text(place.font);
    style.color = place.color;
    const QString text = toQt(static_cast<const Frame&>(*control).text);
    const double width = advance(text, style);
    drawFrame(painter, frame(), width, skin.style("frame.border"));
    drawText(painter, QRectF(13, 0, width + 2, 2 * kHeadingRise), text, style);
}

ShapeView::ShapeView(Actor& actor, const ControlLayout& place, QWidget* parent)
    : PaintedView(actor, nullptr, place, parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    drawBox(painter, painter.whole(), place.back, place.border, 5);
}

} // namespace gatewise::window
