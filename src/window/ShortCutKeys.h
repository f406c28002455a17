#pragma once

#include "pages/Program.h"
#include "window/Desk.h"
#include "window/Notches.h"

#include <QObject>

namespace gatewise::window {

/// The keys of the table of short cuts, and the wheel over the board, wherever the focus is. A field keeps
/// the keys by which a text is edited, a list those by which it is walked.
class ShortCutKeys : public QObject {
    Q_OBJECT
public:
    ShortCutKeys(Program& program, Desk& desk);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool key(const QKeyEvent& event);
    bool wheel(const QWidget& under, const QWheelEvent& event);
    [[nodiscard]] bool atWork() const;
    Program& program_;
    Desk& desk_;
    Notches wheel_;
};

} // namespace gatewise::window
