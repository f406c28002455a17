#pragma once

#include "forms/Control.h"

namespace gatewise::forms {

/// Lines that the screen has room for: one for each program that takes a plan.
inline constexpr int kProgramLines = 11;

struct ProgramsForm : Screen {
    ProgramsForm();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Other Programs"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_programs", "close_regular"};
    Label Label2{*this, "Label2", "Program"};
    Label Label3{*this, "Label3", "Folder"};
    Label Label4{*this, "Label4", "Last written"};
    ControlArray<Check> programCHECK{0, kProgramLines - 1, [this](int i) {
                                         return std::make_unique<Check>(*this, "programCHECK", "", i);
                                     }};
    ControlArray<TextBox> folderTEXT{0, kProgramLines - 1, [this](int i) {
                                         return std::make_unique<TextBox>(*this, "folderTEXT", "", i);
                                     }};
    ControlArray<SkinnedButton> browseButton =
        buttons(*this, "browseButton", Kind::switchButton,
                std::vector<ButtonRow>(kProgramLines, {"browse", "path_regular", 1}));
    ControlArray<Label> result_LABEL = labels(*this, "result_LABEL", kProgramLines - 1);
    Check computedCHECK{*this, "computedCHECK", "With computed points (top of climb, top of descent, steps)"};
    Check alwaysCHECK{*this, "alwaysCHECK", "Export again on each dispatch"};
    SkinnedButton exportButton{*this, "exportButton", Kind::switchButton, "send_programs", "export_regular"};
};

} // namespace gatewise::forms
