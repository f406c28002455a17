#pragma once

#include "drive/Backend.h"
#include "gtwindow/Keyboard.h"
#include "gtwindow/Pointer.h"
#include "gtwindow/Pump.h"
#include "gtwindow/SimulatedTime.h"
#include "window/WindowProgram.h"

#include <QDialog>

namespace gatewise::gtwindow {

/// The real window between the words and the program: events are input to its widgets, and what is looked at
/// is what they show. Time, printer, programs and sound are those of the bench.
class WindowBackend : public QObject, public drive::Backend {
    Q_OBJECT
public:
    explicit WindowBackend(drive::Bench& bench);

    /// Who hears of modal waits; needed before the program is started.
    void attach(Pump& pump) { loop_.pump = &pump; }
    window::Desk& desk() { return window_.desk; }

    Program& program() override { return window_.program; }
    void start() override;
    void advance(std::int64_t milliseconds) override;
    void tick(Timer& timer) override;

    void click(Control& control) override;
    void doubleClick(Control& control) override;
    void press(Control& control) override;
    void release(Control& control) override;
    void rightPress(Control& control) override;
    void move(Control& control) override;
    void drag(Control& ground, int dx, int dy) override;
    void focus(Control& control) override;
    void key(Control& control, drive::Key key, int repeats) override;
    void escape(Screen& screen) override;
    void close(Screen& screen) override;
    void type(TextBox& box, std::string text) override;
    void choose(Control& list, int place) override;
    void hover(Chart& chart, int id) override;
    void check(Control& box, int value) override;
    void slide(RangeControl& range, int value) override;
    void column(ListView& list, int column) override;
    void path(PathList& list, std::string path) override;

    [[nodiscard]] bool busy() const override;
    [[nodiscard]] std::string clipboard() const override;
    [[nodiscard]] std::optional<std::string> differs(const Control& control) override;
    [[nodiscard]] std::optional<std::string> differs(const Screen& screen) override;
    void leave() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    [[nodiscard]] std::optional<Spot> spotOf(const Control& control);
    [[nodiscard]] std::optional<Spot> spotOf(const Control& chart, int id);
    static void answerDialog(QDialog& dialog);
    Q_INVOKABLE void openHelp(const QUrl& page);

    drive::Bench& bench_;
    SimulatedTime time_{bench_.machine.loop};
    PumpedLoop loop_{time_};
    window::WindowProgram window_;
    Pointer pointer_{window_.desk, window_.program.forms};
    Keyboard keyboard_{window_.desk};
};

} // namespace gatewise::gtwindow
