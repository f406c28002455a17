#include "window/Note.h"

#include "window/NoteKeys.h"
#include "window/ScreenWindow.h"
#include "window/Skin.h"

#include <QAccessible>
#include <QHideEvent>
#include <QTimer>

#include <algorithm>

namespace gatewise::window {

namespace {

constexpr int kTime = 15000; // milliseconds
constexpr int kWidest = 480;
constexpr int kEdge = 12; // free on all sides
constexpr int kStep = 4;
constexpr int kMargin = 10; // around the words

/// Whether a person may want to reach the view while a note is up: keys and fields, not texts and lists,
/// which show enough beside it.
bool isKey(const View& view) {
    if (view.control == nullptr) return false;
    switch (view.control->kind) {
    case Kind::Label:
        return view.place.hit || (view.place.family == 0 && view.takesFocus());
    case Kind::Container:
    case Kind::HitArea:
    case Kind::Frame:
    case Kind::Picture:
    case Kind::Chart:
    case Kind::FlightInfo:
    case Kind::ListBox:
    case Kind::ListView:
    case Kind::FolderList:
    case Kind::FileList:
        return false;
    default:
        return true;
    }
}

/// The lowest place in the middle of the window where a note covers no key; at the foot when there is none.
QPoint freePlace(const ScreenWindow& window, QSize size) {
    std::vector<QRect> keys;
    for (View* view : window.views()) {
        const QWidget* widget = view->widget();
        if (widget->isVisible() && isKey(*view))
            keys.emplace_back(widget->mapTo(&window, QPoint(0, 0)), widget->size());
    }
    const int x = (window.width() - size.width()) / 2;
    const int foot = window.height() - size.height() - kEdge;
    for (int y = foot; y >= kEdge; y -= kStep) {
        const QRect box = QRect(QPoint(x, y), size).adjusted(-kStep, -kStep, kStep, kStep);
        if (std::none_of(keys.begin(), keys.end(), [&](const QRect& key) { return key.intersects(box); }))
            return {x, y};
    }
    return {x, foot};
}

} // namespace

Note::Note(const QString& text, const QString& file, ScreenWindow& window, const Skin& skin)
    : QLabel(text, &window) {
    setWordWrap(true);
    setFont(skin.widgetFont("data"));
    setTextFormat(Qt::PlainText);
    setMargin(skin.zoom().edge(kMargin));
    setStyleSheet(QString("background:%1;color:%2;border-radius:4px")
                      .arg(skin.style("tooltip.back").name(), skin.style("tooltip.text").name()));
    setAccessibleName(text);
    setFixedWidth(std::min(window.width() - 2 * kEdge, skin.zoom().edge(kWidest)));
    adjustSize();
    if (QWidget* keys = makeOpenKeys(file, width() - 2 * margin(), skin, this)) {
        setAlignment(Qt::AlignTop);
        keys->move(margin(), height());
        setFixedHeight(height() + keys->height() + margin());
    }
    move(freePlace(window, size()));
    show();
    raise();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
    auto* end = new QTimer(this);
    end->setSingleShot(true);
    connect(end, &QTimer::timeout, this, &QObject::deleteLater);
    end->start(kTime);
}

void Note::mousePressEvent(QMouseEvent*) {
    deleteLater();
}

/// A window that is put away into the task bar keeps its note.
void Note::hideEvent(QHideEvent* event) {
    QLabel::hideEvent(event);
    if (!event->spontaneous()) deleteLater();
}

} // namespace gatewise::window
