#pragma once

#include "forms/ExportForms.h"
#include "forms/ImportForms.h"
#include "forms/LogForms.h"
#include "forms/MainForm.h"
#include "forms/NoticeForms.h"
#include "forms/PickForms.h"
#include "forms/PlanForms.h"
#include "forms/ProgramsForms.h"
#include "forms/SettingsForms.h"

namespace gatewise {

/// Every screen of the program, each a single instance.
struct Forms {
    forms::MainForm MainForm;
    forms::SelectForm SelectForm;
    forms::FlightForm FlightForm;
    forms::InfoForm InfoForm;
    forms::MsgForm MsgForm;
    forms::WaitForm WaitForm;
    forms::SplashForm SplashForm;
    forms::SettingsForm SettingsForm;
    forms::OptionsForm OptionsForm;
    forms::DirForm DirForm;
    forms::ExportForm ExportForm;
    forms::DirExportForm DirExportForm;
    forms::ProgramsForm ProgramsForm;
    forms::ViewPlan ViewPlan;
    forms::PlanCharts PlanCharts;
    forms::FlyForm FlyForm;
    forms::LogEntry LogEntry;
    forms::ClockForm ClockForm;
    forms::ImportForm ImportForm;
    forms::RoutesForm RoutesForm;
    forms::CareerForm CareerForm;
    forms::MsgBox MsgBox;

    /// All screens in the order above.
    [[nodiscard]] std::vector<Screen*> all();
    [[nodiscard]] Screen* find(std::string_view name);

    /// The control of a full name, "MainForm.FlatButton(3)" or "InfoForm.FlightInfo1.origin"; nullptr when
    /// there is none.
    [[nodiscard]] Control* control(std::string_view fullName);

    /// Visible screens, the one in front first.
    std::vector<Screen*> front;

    /// The innermost screen that is shown modally, nullptr when none is.
    [[nodiscard]] Screen* modalScreen() const;

    /// Hands every timer to what runs it.
    void attachTimers(TimerHost* host);
};

} // namespace gatewise
