#include "window/Accessible.h"

#include "window/AccessFields.h"
#include "window/AccessOf.h"
#include "window/AccessTables.h"
#include "window/AccessViews.h"
#include "window/Buttons.h"
#include "window/Fields.h"
#include "window/ScreenWindow.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSlider>

namespace gatewise::window {

namespace {

/// What was last announced in a window.
class Announcement : public QObject {
    Q_OBJECT
public:
    explicit Announcement(QWidget* window) : QObject(window) {}
    QString words;
};

class AnnouncementAccess : public QAccessibleObject {
public:
    explicit AnnouncementAccess(Announcement& what) : QAccessibleObject(&what), what_(what) {}
    QAccessibleInterface* parent() const override { return accessOf(what_.parent()); }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? what_.words : QString();
    }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }

private:
    Announcement& what_;
};

QAccessibleInterface* makeView(View& view) {
    QWidget* widget = view.widget();
    if (auto* box = qobject_cast<QComboBox*>(widget)) return new ComboAccess(box, view);
    if (auto* line = qobject_cast<QLineEdit*>(widget)) return new LineAccess(line, view);
    if (auto* slider = qobject_cast<QSlider*>(widget)) return new RangeAccess(slider, view);
    const bool ours =
        dynamic_cast<PaintedView*>(widget) != nullptr || dynamic_cast<PushButtonView*>(widget) != nullptr;
    return ours ? new ViewAccess(widget, view) : nullptr; // the toolkit describes the rest well
}

QAccessibleInterface* make(const QString&, QObject* object) {
    if (auto* window = dynamic_cast<ScreenWindow*>(object)) {
        const bool main = window->screen().name == "MainForm";
        return new WindowAccess(window, main ? QAccessible::Window : QAccessible::Dialog);
    }
    if (auto* view = dynamic_cast<View*>(object)) return makeView(*view);
    if (auto* table = dynamic_cast<LinesTable*>(object)) return new LinesTableAccess(*table);
    if (auto* head = dynamic_cast<LinesHead*>(object)) return new LinesHeadAccess(*head);
    if (auto* said = dynamic_cast<Announcement*>(object)) return new AnnouncementAccess(*said);
    const bool part = object->isWidgetType() && dynamic_cast<NotesView*>(object->parent()) != nullptr;
    // The insides of a field of several lines would stand there as empty fillers.
    return part ? new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Grouping) : nullptr;
}

} // namespace

void installAccessibility() {
    static const bool once = [] {
        QAccessible::installFactory(make);
        return true;
    }();
    static_cast<void>(once);
}

void announce(QWidget& window, const QString& words) {
    if (words.isEmpty() || !QAccessible::isActive()) return;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(&window, words);
#else
    auto* said = window.findChild<Announcement*>(QString(), Qt::FindDirectChildrenOnly);
    if (said == nullptr) said = new Announcement(&window);
    said->words = words;
    QAccessibleEvent event(said, QAccessible::ObjectShow);
#endif
    QAccessible::updateAccessibility(&event);
}

} // namespace gatewise::window

#include "Accessible.moc"
