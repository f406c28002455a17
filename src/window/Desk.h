#pragma once

#include "forms/Forms.h"
#include "window/BoardSpeech.h"
#include "window/HeldKeys.h"
#include "window/Note.h"
#include "window/ScreenWindow.h"
#include "window/Skin.h"

#include <QPointer>

#include <map>
#include <memory>

namespace gatewise::window {

/// All windows of the program. After each event, timer and paint it compares them with the forms.
class Desk : public QObject, public Actor {
    Q_OBJECT
public:
    Desk(Forms& forms, Skin& skin);
    ~Desk() override;

    void act(const std::function<void()>& what) override;
    [[nodiscard]] const Skin& skin() const override { return skin_; }

    /// Brings the forms onto the screen.
    void sync();
    /// What looks at the forms after each of these.
    std::function<void()> afterSync;

    /// Puts the main window into the middle of the screen, in the size that it has.
    void centreMain();
    /// Sizes all windows alike; the main one keeps its middle, the others their place above it.
    void setZoom(double factor);
    /// Whether what blinks stays lit.
    void setSteady(bool steady);
    /// After a change of all colours.
    void repaintAll();
    /// Paints at once what differs; the mouse, the keyboard and the timers wait.
    void paint();
    [[nodiscard]] bool painting() const { return painting_; }

    [[nodiscard]] ScreenWindow& window(const Screen& screen) const { return *windows_.at(&screen); }
    /// The window in front, null when none is up.
    [[nodiscard]] ScreenWindow* front() const;
    [[nodiscard]] ScreenWindow& mainWindow() const { return window(forms_.MainForm); }

    /// A note in the window in front; with keys that open `file`, where there is one.
    void showNote(const QString& text, const QString& file = {});
    [[nodiscard]] QString note() const;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void syncOnce();
    void syncWindow(ScreenWindow& window);
    void showWindow(ScreenWindow& window);
    void turnTo(ScreenWindow& window);
    [[nodiscard]] QWidget* ownerOf(const Screen& screen) const;
    [[nodiscard]] bool closesBlocked(const QObject& object, const QEvent& event) const;
    Forms& forms_;
    Skin& skin_;
    std::map<const Screen*, std::unique_ptr<ScreenWindow>> windows_;
    HeldKeys heldKeys_;
    BoardSpeech speech_;
    QPointer<Note> note_;
    bool syncing_ = false;
    bool again_ = false;
    bool painting_ = false;
};

} // namespace gatewise::window
