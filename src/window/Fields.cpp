#include "window/Fields.h"

#include "input/UserEvents.h"
#include "window/Drawing.h"
#include "window/LabelText.h"
#include "window/QtText.h"
#include "window/Sheets.h"
#include "window/Skin.h"
#include "window/Tone.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QListView>
#include <QScrollBar>
#include <QTimer>

namespace gatewise::window {

namespace {

QPalette fieldPalette(const Skin& skin, const QPalette& base) {
    QPalette palette = base;
    const auto set = [&](QPalette::ColorGroup group, QPalette::ColorRole role, const char* key) {
        palette.setColor(group, role, skin.style(key));
    };
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        set(group, QPalette::Text, "textbox.text");
        set(group, QPalette::Highlight, "textbox.select");
        set(group, QPalette::HighlightedText, "textbox.selectText");
    }
    // A selection shows where the keyboard is; elsewhere the text stands plain.
    palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::transparent);
    set(QPalette::Inactive, QPalette::HighlightedText, "textbox.text");
    set(QPalette::Disabled, QPalette::Text, "textbox.disabledText");
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setColor(group, QPalette::Base, Qt::transparent);
    }
    return palette;
}

constexpr int kItemHeight = 20; // of an open list, and what is free before its text
constexpr int kItemLeft = 5;
constexpr int kArrowField = 22; // of a combo box, at its right end

} // namespace

LineView::LineView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : QLineEdit(parent), View(actor, control, place) {
    const Skin& skin = actor.skin();
    setFrame(false);
    setPalette(fieldPalette(skin, palette()));
    setAlignment(place.align | Qt::AlignVCenter);
    setContextMenuPolicy(Qt::NoContextMenu);
    setFocusPolicy(box().readOnly ? Qt::NoFocus : Qt::StrongFocus);
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& text) { actor_.act([&] { user::type(box(), fromQt(text)); }); });
    connect(this, &QLineEdit::selectionChanged, this, [this] { byHand_ = true; });
}

std::span<const Event> LineView::emits() const {
    static constexpr Event kEvents[] = {Event::Focus, Event::Enter, Event::Change};
    return kEvents;
}

bool LineView::takesFocus() const {
    return usable() && !box().readOnly;
}

void LineView::sync() {
    syncCommon();
    if (isEnabled() != box().enabled) setEnabled(box().enabled);
    if (isReadOnly() != box().readOnly) setReadOnly(box().readOnly);
    const QString now = toQt(box().text);
    if (text() != now) {
        const int at = cursorPosition();
        setText(now);
        setCursorPosition(hasFocus() ? at : 0);
    }
    if (box().selectAll) {
        box().selectAll = false;
        selectLater_ = byMouse_;
        markAll();
    }
}

/// All of the text, which makes it no mark of the pilot.
void LineView::markAll() {
    const bool before = byHand_;
    selectAll();
    byHand_ = before;
}

void LineView::takePlace() {
    View::takePlace();
    setFont(actor_.skin().widgetFont(place.font));
    setTextMargins(scale().edge(4), 0, scale().edge(4), 0);
}

void LineView::focusInEvent(QFocusEvent* event) {
    byMouse_ = event->reason() == Qt::MouseFocusReason;
    const bool back =
        event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
    const bool before = byHand_;
    QLineEdit::focusInEvent(event);
    byHand_ = back ? before : true;
}

void LineView::mousePressEvent(QMouseEvent* event) {
    byHand_ = true;
    QLineEdit::mousePressEvent(event);
}

void LineView::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    byMouse_ = false;
    if (selectLater_ && !hasSelectedText()) selectAll();
    selectLater_ = false;
}

void LineView::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event)) {
        actor_.act([this] { user::enter(*control); });
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void LineView::paintEvent(QPaintEvent* event) {
    const Skin& skin = actor_.skin();
    {
        ViewPainter painter(*this, scale());
        drawField(painter, painter.whole(), skin.style(isEnabled() ? "textbox.back" : "textbox.disabledBack"),
                  skin.style("textbox.border"));
    }
    QLineEdit::paintEvent(event);
}

NotesView::NotesView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : QPlainTextEdit(parent), View(actor, control, place) {
    const Skin& skin = actor.skin();
    setFrameShape(QFrame::NoFrame);
    setPalette(fieldPalette(skin, palette()));
    viewport()->setAutoFillBackground(false);
    setTabChangesFocus(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { typed(); });
}

std::span<const Event> NotesView::emits() const {
    static constexpr Event kEvents[] = {Event::Focus, Event::Change};
    return kEvents;
}

void NotesView::typed() {
    if (syncing_) return;
    actor_.act([this] { user::type(box(), fromQt(toPlainText())); });
}

void NotesView::sync() {
    syncCommon();
    if (isEnabled() != box().enabled) setEnabled(box().enabled);
    if (isReadOnly() != box().readOnly) setReadOnly(box().readOnly);
    const QString now = toQt(box().text).replace("\r\n", "\n");
    if (toPlainText() == now) return;
    syncing_ = true;
    const int at = textCursor().position();
    setPlainText(now);
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::min(at, static_cast<int>(now.size())));
    setTextCursor(cursor);
    syncing_ = false;
}

void NotesView::takePlace() {
    View::takePlace();
    setFont(actor_.skin().widgetFont(place.font));
    verticalScrollBar()->setStyleSheet(scrollBarSheet(actor_.skin()));
    document()->setDocumentMargin(5 * scale().factor);
}

void NotesView::paintEvent(QPaintEvent* event) {
    const Skin& skin = actor_.skin();
    {
        QPainter painter(viewport());
        painter.translate(-viewport()->pos());
        painter.scale(scale().factor, scale().factor);
        drawField(painter, QRectF(QPointF(0, 0), span()),
                  skin.style(isEnabled() ? "textbox.back" : "textbox.disabledBack"),
                  skin.style("textbox.border"));
    }
    QPlainTextEdit::paintEvent(event);
}

ComboView::ComboView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : QComboBox(parent), View(actor, control, place) {
    setView(new QListView(this));
    setMaxVisibleItems(12);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(1);
    view()->setTextElideMode(Qt::ElideRight);
    connect(this, &QComboBox::activated, this, [this](int at) { actor_.act([&] { pick(at); }); });
}

std::span<const Event> ComboView::emits() const {
    static constexpr Event kEvents[] = {Event::Click, Event::Focus, Event::Change};
    return std::span(kEvents).first(control->kind == Kind::DriveList ? 3 : 2);
}

void ComboView::takePlace() {
    View::takePlace();
    const Skin& skin = actor_.skin();
    setFont(skin.widgetFont(place.font));
    view()->setStyleSheet(QString("QListView{background:%1;color:%2;border:1px solid %3;outline:0}"
                                  "QListView::item{height:%6px;padding-left:%7px;border:0}"
                                  "QListView::item:selected{background:%4;color:%5}")
                              .arg(skin.style("combo.popupBack").name(), skin.style("combo.text").name(),
                                   skin.style("combo.border").name(), skin.style("combo.popupSelect").name(),
                                   skin.style("combo.popupSelectText").name())
                              .arg(scale().edge(kItemHeight))
                              .arg(scale().edge(kItemLeft)));
    view()->verticalScrollBar()->setStyleSheet(scrollBarSheet(skin));
}

void ComboView::pick(int at) {
    if (list().locked) return;
    const std::string before = list().text();
    user::choose(*control, at);
    if (control->kind == Kind::DriveList && list().text() != before) {
        user::path(static_cast<PathList&>(*control), list().text());
    }
}

void ComboView::sync() {
    syncCommon();
    const bool open = list().enabled && !list().locked;
    if (isEnabled() != open) setEnabled(open);
    const QSignalBlocker quiet(this);
    if (shown_ != list().items) {
        shown_ = list().items;
        clear();
        for (const auto& item : shown_) addItem(toQt(item));
    }
    if (currentIndex() != list().picked) setCurrentIndex(list().picked);
}

void ComboView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const double width = painter.whole().width();
    const double height = painter.whole().height();
    const Skin& skin = actor_.skin();
    QColor back = skin.style("combo.back");
    if (control->kind == Kind::Combo) back = toQt(static_cast<const Combo&>(*control).back);
    if (!isEnabled()) back = skin.style("combo.disabledBack");
    drawField(painter, painter.whole(), back, skin.style("combo.border"));
    const QRectF arrow(width - kArrowField, 1, kArrowField - 1, height - 2);
    drawBox(painter, arrow, isEnabled() ? skin.style("combo.arrowField") : back, QColor(), 1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(inkOf(skin.style("combo.arrow")), 2));
    const double x = width - 16;
    const double y = height / 2 - 2;
    const QPointF tip[] = {{x, y}, {x + 4.5, y + 5}, {x + 9, y}};
    painter.drawPolyline(tip, 3);
    TextStyle style = skin.text(place.font);
    style.color = skin.style(isEnabled() ? "combo.text" : "combo.disabledText");
    style.ellipsis = control->kind == Kind::DriveList ? Ellipsis::Left : Ellipsis::Right;
    drawText(painter, QRectF(8, 0, width - 8 - kArrowField - 4, height), currentText(), style);
}

} // namespace gatewise::window
