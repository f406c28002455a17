#include "pages/ButtonPictures.h"

#include <array>

namespace gatewise {

namespace {

struct FormRow {
    const char* type;
    const char* stem;
    int repeat; // milliseconds
};

constexpr int kUsualRepeat = 500;

constexpr FormRow kFormRows[] = {
    {"close", "close", kUsualRepeat},
    {"charts", "charts", kUsualRepeat},
    {"routes", "map", kUsualRepeat},
    {"career", "career", kUsualRepeat},
    {"career_copy", "copy", kUsualRepeat},
    {"career_png", "image", kUsualRepeat},
    {"career_pdf", "file", kUsualRepeat},
    {"career_print", "sheet", kUsualRepeat},
    {"log_csv", "csv", kUsualRepeat},
    {"log_print", "paper", kUsualRepeat},
    {"min", "min", kUsualRepeat},
    {"enter", "enter", kUsualRepeat},
    {"time", "switch", kUsualRepeat},
    {"vol_up", "plus", 100},
    {"ann_up", "plus", 100},
    {"min_up", "plus", 100},
    {"hr_up", "plus", 200},
    {"timeMin_up", "plus", 100},
    {"timeHr_up", "plus", 200},
    {"vol_dn", "minus", 100},
    {"ann_dn", "minus", 100},
    {"min_dn", "minus", 100},
    {"hr_dn", "minus", 200},
    {"timeMin_dn", "minus", 100},
    {"timeHr_dn", "minus", 200},
};

/// What closes a screen ("close_export") looks alike on all of them.
const FormRow* formRow(std::string_view type) {
    const std::string_view looks = type.starts_with("close_") ? "close" : type;
    for (const auto& row : kFormRows) {
        if (row.type == looks) return &row;
    }
    return nullptr;
}

enum class Test { None, Enabled, Always };

struct SwitchRow {
    const char* type;
    const char* stem;
    Test test; // None: hover without a test; Enabled: only with State 1; Always: disabled picture at State 0
};

constexpr SwitchRow kSwitchRows[] = {
    {"home", "home", Test::None},
    {"print_plan", "print", Test::None},
    {"air_search", "selair", Test::None},
    {"path", "path", Test::None},
    {"export", "export", Test::None},
    {"programs", "programs", Test::None},
    {"send_programs", "export", Test::None},
    {"browse", "path", Test::None},
    {"continue_opt", "cont", Test::Enabled},
    {"continue_fly", "cont", Test::Enabled},
    {"continue", "cont", Test::Enabled},
    {"close_msg", "bclose", Test::Enabled},
    {"continue_view", "bclose", Test::Enabled},
    {"close_log", "bclose", Test::Enabled},
    {"continue_set", "bclose", Test::Enabled},
    {"save_log", "save", Test::Enabled},
    {"select", "select", Test::Always},
    {"selflt", "selflt", Test::Always},
    {"info", "info", Test::Always},
    {"close", "bclose", Test::Always},
};

struct MidRow {
    const char* type;
    const char* regular;
    const char* mouse;
};

constexpr MidRow kMidRows[] = {
    {"fly", "fly_regular", "fly_mouse"},
    {"cancel", "cancel_regular", "cancel_mouse"},
    {"ok", "ok_regular", "ok_mouse"},
    {"continue_view", "sml_close_regular", "sml_close_mouse"},
    {"print_plan", "sml_print_regular", "sml_print_mouse"},
    {"recalc_fltplan", "sml_recalc_regular", "sml_recalc_mouse"},
    {"remove_point", "sml_remove_regular", "sml_remove_mouse"},
};

} // namespace

const char* formStem(std::string_view type) {
    const FormRow* row = formRow(type);
    return row != nullptr ? row->stem : nullptr;
}

bool releasesToMouse(std::string_view type) {
    // These two keep their down picture: nobody sees it, their screens go away.
    return type != "close_log" && type != "close_select";
}

int repeatInterval(std::string_view type) {
    const FormRow* row = formRow(type);
    return row != nullptr ? row->repeat : kUsualRepeat;
}

std::string switchHover(std::string_view type, int state) {
    for (const auto& row : kSwitchRows) {
        if (row.type != type) continue;
        if (row.test == Test::None || state == 1) return std::string(row.stem) + "_mouse";
        if (row.test == Test::Always) return std::string(row.stem) + "_disabled";
    }
    return {};
}

std::string restingPicture(const SkinnedButton& button) {
    if (button.kind == Kind::FormButton) {
        const char* stem = formStem(button.button_type);
        return stem != nullptr ? std::string(stem) + "_regular" : std::string();
    }
    if (button.kind == Kind::midButton) {
        for (const auto& row : kMidRows) {
            if (row.type == button.button_type) return row.regular;
        }
    }
    if (button.kind != Kind::switchButton) return {};
    const char* ending = button.State == 1 ? "_regular" : "_disabled";
    if (button.button_type == "select_dir") return std::string("select") + ending;
    for (const auto& row : kSwitchRows) {
        if (row.type == button.button_type) {
            return std::string(row.stem) + (row.test == Test::Always ? ending : "_regular");
        }
    }
    return {};
}

const char* midHover(std::string_view type) {
    for (const auto& row : kMidRows) {
        if (row.type == type) return row.mouse;
    }
    return "";
}

} // namespace gatewise
