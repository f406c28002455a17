#pragma once

#include "drive/Backend.h"
#include "drive/SimulatedTimers.h"

namespace gatewise::drive {

/// Hands every event straight to the form; what is shown is what the form holds.
class FormBackend : public Backend {
public:
    explicit FormBackend(Bench& bench);

    Program& program() override { return program_; }
    void start() override;
    void advance(std::int64_t milliseconds) override { bench_.machine.loop.advance(milliseconds); }
    void tick(Timer& timer) override;

    void click(Control& control) override;
    void doubleClick(Control& control) override;
    void press(Control& control) override;
    void release(Control& control) override;
    void rightPress(Control& control) override;
    void move(Control& control) override;
    void drag(Control& ground, int dx, int dy) override;
    void focus(Control& control) override;
    /// A held key does what one press does, whatever the number of its repeats.
    void key(Control& control, Key key, int repeats) override;
    void escape(Screen& screen) override;
    void close(Screen& screen) override;
    void type(TextBox& box, std::string text) override;
    void choose(Control& list, int place) override;
    void hover(Chart& chart, int id) override;
    void check(Control& box, int value) override;
    void slide(RangeControl& range, int value) override;
    void column(ListView& list, int column) override;
    void path(PathList& list, std::string path) override;

    [[nodiscard]] bool busy() const override { return bench_.machine.desktop.busy; }
    [[nodiscard]] std::string clipboard() const override { return bench_.machine.desktop.clipboard; }
    [[nodiscard]] std::optional<std::string> differs(const Control&) override { return std::nullopt; }
    [[nodiscard]] std::optional<std::string> differs(const Screen&) override { return std::nullopt; }

private:
    Bench& bench_;
    SimulatedTimers timers_{bench_.machine.loop};
    Program program_;
};

} // namespace gatewise::drive
