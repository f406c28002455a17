#include "window/Accessible.h"

#include "window/View.h"

#include <QAccessibleWidget>

namespace gatewise::window {

namespace {

class ViewAccess : public QAccessibleWidget {
public:
    ViewAccess(QWidget* widget, View& view) : QAccessibleWidget(widget, view.role()), view_(view) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name) return view_.spokenName();
        return QAccessibleWidget::text(kind);
    }

    QAccessible::Role role() const override { return view_.role(); }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const bool stop = view_.takesFocus();
        state.focusable = stop;
        const bool pressable = view_.role() == QAccessible::Button || view_.role() == QAccessible::ListItem;
        if (pressable && !view_.usable()) state.disabled = true;
        return state;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (view_.takesFocus()) names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override {
        if (name == pressAction() && view_.takesFocus())
            view_.activate();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    View& view_;
};

QAccessibleInterface* make(const QString&, QObject* object) {
    auto* painted = dynamic_cast<PaintedView*>(object);
    return painted == nullptr ? nullptr : new ViewAccess(painted, *painted);
}

} // namespace

void installAccessibility() {
    static const bool once = [] {
        QAccessible::installFactory(make);
        return true;
    }();
    static_cast<void>(once);
}

} // namespace gatewise::window
