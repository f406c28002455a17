#include "tour/Structure.h"

#include <QScreen>

namespace gatewise::stage {

namespace {

std::string text(const QRect& box) {
    return std::to_string(box.width()) + "x" + std::to_string(box.height()) + " at " +
           std::to_string(box.x()) + "," + std::to_string(box.y());
}

QRect inWindow(const QWidget& widget) {
    return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

/// Edges are rounded where they lie, and a well has a light line below it.
bool holds(const QRect& room, const QRect& box, int slack) {
    return room.adjusted(0, 0, slack, slack).contains(box);
}

void lookAt(const Screen& screen, const window::ScreenWindow& window, int slack,
            std::vector<std::string>& out) {
    const QRect desk = window.QWidget::screen()->availableGeometry();
    if (!desk.contains(window.geometry()))
        out.push_back(screen.name + ": " + text(window.geometry()) + " reaches over the screen of " +
                      text(desk));
    for (window::View* view : window.views()) {
        QWidget& widget = *view->widget();
        if (!widget.isVisible()) continue;
        const QRect box = inWindow(widget);
        const std::string name = screen.name + "." + view->place.name;
        if (!holds(window.rect(), box, 0))
            out.push_back(name + ": " + text(box) + " reaches over its window");
        else if (!holds(widget.parentWidget()->rect(), widget.geometry(), slack))
            out.push_back(name + ": " + text(box) + " is cut by what is around it");
    }
    for (const QWidget* note : window.findChildren<window::Note*>()) {
        if (note->isVisible() && !window.rect().contains(note->geometry()))
            out.push_back(screen.name + ": its note reaches over it");
    }
}

} // namespace

std::vector<std::string> misplaced(const Forms& forms, const window::Desk& desk) {
    std::vector<std::string> out;
    for (const Screen* screen : forms.front) {
        const auto& window = desk.window(*screen);
        if (window.isVisible()) lookAt(*screen, window, desk.skin().zoom().edge(1), out);
    }
    return out;
}

} // namespace gatewise::stage
