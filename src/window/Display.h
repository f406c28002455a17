#pragma once

#include "forms/Forms.h"
#include "window/Notches.h"
#include "window/SystemWishes.h"

#include <QObject>
#include <QSize>

#include <array>
#include <string>

class QMenu;
class QScreen;

namespace gatewise::window {

class Desk;

/// Sizes of the windows that can be chosen, in percent of the layout's; 0 is as large as the screen allows.
inline constexpr std::array kZoomPercent = {0, 75, 100, 125, 150, 175, 200, 225, 250, 275, 300};

enum class SkinChoice { AsComputer, Night, HighContrast };

/// The size that is proposed where nothing was chosen: the main window takes about 70 % of the screen's
/// height, more where the desk wants larger texts, and never more than there is. One of the sizes in percent.
/// `height` is the screen's, `fit` the largest factor at which the window fits, `text` the desk's scale of
/// texts.
int proposedPercent(double height, double fit, double text);

/// How the windows look: size, colours, signs that stay lit instead of blinking. Chosen in the menu of the
/// settings screen, the size also by Ctrl with the wheel, +, - and 0. What was chosen is remembered, the size
/// for each size of the screen. Without `remember` the windows have the layout's size until somebody chooses.
class Display : public QObject {
    Q_OBJECT
public:
    Display(Forms& forms, Desk& desk);
    ~Display() override;

    /// From here on: takes what GT.cfg of that folder remembers, proposes what it does not, keeps what is
    /// chosen.
    void remember(const std::string& appDir);
    /// What the desk of the computer wishes.
    void heed(const Wishes& wishes);

    /// One of the sizes.
    void choosePercent(int percent);
    void chooseSkin(SkinChoice skin);
    void chooseSteady(bool steady);

    /// The factor that the choice means on the main window's screen.
    [[nodiscard]] double factor() const;
    /// The menu of the settings screen, made anew; the caller shows it.
    QMenu* makeMenu(QWidget* owner);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void follow();
    void recall();
    void keep(const std::string& key, const std::string& value);
    void step(int by);
    [[nodiscard]] const QScreen* screen() const;
    [[nodiscard]] double fit() const;

    Forms& forms_;
    Desk& desk_;
    std::string appDir_; // empty: nothing is remembered
    Wishes wishes_;
    QSize screenSize_; // of the last recall
    int percent_ = -1; // nobody chose and nothing was proposed
    SkinChoice skin_ = SkinChoice::AsComputer;
    bool steady_ = false;
    Notches wheel_;
    bool following_ = false;
};

} // namespace gatewise::window
