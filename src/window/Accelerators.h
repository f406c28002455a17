#pragma once

#include "window/Desk.h"

#include <QPointer>

#include <map>

namespace gatewise::window {

/// While Alt is held each key, box and field of the window in front shows a letter, and that letter with Alt
/// presses it or goes there.
class Accelerators : public QObject {
    Q_OBJECT
public:
    explicit Accelerators(Desk& desk);
    ~Accelerators() override;

    /// The letters of a window: for each control the first letter of its words that no other one before it
    /// has, in the order of the Tab key.
    [[nodiscard]] static std::map<QChar, View*> lettersOf(const ScreenWindow& window);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool press(const QKeyEvent& event);
    void show();
    void hide();
    Desk& desk_;
    QPointer<QWidget> letters_; // that are shown now
};

} // namespace gatewise::window
