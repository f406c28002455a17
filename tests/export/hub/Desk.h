#pragma once

#include "export/ExportFlights.h"
#include "input/Bind.h"
#include "input/UserEvents.h"
#include "pages/MsgForm.h"
#include "pages/Screens.h"
#include "platform/simulated/SimulatedMachine.h"
#include "sound/DS_Engine.h"
#include "sound/SilentDevice.h"
#include "support/TempFolder.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace gatewise::test {

/// A program that stands at a selected flight, with folders of its own for itself and the simulator. Every
/// message is written down and answered at once.
class Desk : public testing::Test {
protected:
    Desk() : machine(sound), p(machine.machine, app.path()) {
        bindScreens(p);
        p.session.settings.FsPath = fs.path();
        p.session.schedule.tables = exportTables();
        p.session.settings.exportFolders["ACS"].path = p.session.settings.exportFolders["SB"].path =
            p.session.settings.exportFolders["RadarContact"].path = app.path();
        p.session.settings.exportFolders["ACS"].drive = p.session.settings.exportFolders["SB"].drive =
            p.session.settings.exportFolders["RadarContact"].drive = "/t";
        take("west");
        machine.loop.modal = [this](std::string_view screen, const std::function<bool()>& done) {
            shown.emplace_back(screen);
            if (screen == "MsgForm") {
                messages.push_back(p.forms.MsgForm.type_LABEL.text + ": " + p.forms.MsgForm.Msg_LABEL.text);
                hideScreen(p, p.forms.MsgForm);
                return;
            }
            if (atPicker) atPicker();
            if (!done()) hideScreen(p, p.forms.DirExportForm);
        };
    }

    void take(std::string_view name) {
        const ExportCase& c = exportCase(name);
        p.session.plan.plan = c.plan;
        p.session.dispatch.CurrentFlight = c.flight;
        p.session.dispatch.HaveAlternate = c.HaveAlternate ? kTrue : kFalse;
    }

    /// Presses the button of a target and does `atPicker` while the picker is up.
    void choose(const std::string& kind, std::function<void()> act = {}) {
        atPicker = std::move(act);
        auto& f = p.forms.ExportForm;
        for (const auto& button : f.exportButton) {
            if (button->button_type == kind) user::click(*button);
        }
    }
    /// The picker at a folder and a name, then its export button.
    void exportTo(const std::string& kind, const std::string& folder, const std::string& name = {}) {
        choose(kind, [&] {
            auto& f = p.forms.DirExportForm;
            if (!folder.empty()) user::path(f.Dir1, folder);
            if (!name.empty()) user::type(f.filenameTEXT, name);
            user::click(f.selectButton);
        });
    }
    [[nodiscard]] std::string lastMessage() const { return messages.empty() ? "(none)" : messages.back(); }
    [[nodiscard]] static std::vector<std::string> namesIn(const std::string& folder) {
        std::vector<std::string> names;
        for (const auto& entry : files::list(folder)) names.push_back(entry.name);
        std::sort(names.begin(), names.end());
        return names;
    }

    static constexpr const char* kStem = "Gatewise Air Lines Flight 123 SEA to LAX";

    TempFolder app, fs;
    SilentDevice sound;
    simulated::SimulatedMachine machine;
    Program p;
    std::function<void()> atPicker;
    std::vector<std::string> shown;
    std::vector<std::string> messages;
};

} // namespace gatewise::test
