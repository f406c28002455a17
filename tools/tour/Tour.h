#pragma once

#include "tour/Stage.h"

#include <string>
#include <vector>

namespace gatewise::tour {

/// Which pictures a tour takes, and how their names end.
struct Album {
    std::string folder;
    std::string ending; // before ".png"
    bool whole = true;  // false: a few of them
};

/// Plays the road of one flight and every screen beside it on a stage, and takes pictures. At each of them
/// what does not stand where it should is a complaint.
class Tour {
public:
    Tour(stage::Stage& stage, Album album);
    void play();
    [[nodiscard]] const std::vector<std::string>& pictures() const { return pictures_; }
    [[nodiscard]] const std::vector<std::string>& complaints() const { return complaints_; }

private:
    void board();
    void boardDialogs();
    void search();
    void pass();
    void plan();
    void flying();
    void exports();
    void logBook();
    void career();
    void settings();
    void imports();
    void notices();

    /// A step that leads to a screen, then its picture, then the way back.
    void visit(const char* name, Screen& screen, stage::Stage::Step there, stage::Stage::Step back);
    void then(stage::Stage::Step step) { stage_.then(std::move(step)); }
    void take(const char* name);
    void takeLater(const char* name);
    void expect(const Screen& screen);
    /// Enter, Escape or a click on the key that closes the screen in front.
    void close();

    stage::Stage& stage_;
    Forms& f_;
    Album album_;
    std::vector<std::string> pictures_;
    std::vector<std::string> complaints_;
};

} // namespace gatewise::tour
