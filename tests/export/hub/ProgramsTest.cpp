#include "Desk.h"

#include "pages/ProgramsForm.h"
#include "work/ProgramChoices.h"

namespace gatewise::test {
namespace {

/// A flight is selected while some programs are ticked for every dispatch.
class OnDispatch : public Desk {
protected:
    void tick(std::size_t line, const std::string& folder) { choices.lines[line] = {true, folder}; }
    void dispatch(bool wanted = true) {
        choices.onDispatch = wanted;
        ASSERT_FALSE(writeChoices(app.path(), choices));
        exportOnDispatch(p);
    }

    programs::Choices choices = readChoices(app.path());
    TempFolder plans;
};

TEST_F(OnDispatch, WritesSilently) {
    tick(0, plans.path());
    tick(10, plans.path());
    dispatch();
    EXPECT_EQ(namesIn(plans.path()),
              (std::vector<std::string>{std::string(kStem) + ".fms", std::string(kStem) + ".txt"}));
    EXPECT_TRUE(machine.desktop.notices.empty());
    EXPECT_TRUE(shown.empty());
    EXPECT_EQ(machine.desktop.clipboard, ""); // nobody asked for it now
    EXPECT_EQ(p.forms.ProgramsForm.result_LABEL(0).text, std::string(kStem) + ".fms");
}

TEST_F(OnDispatch, TellsFailuresInOneNote) {
    tick(0, plans.path());
    tick(7, plans.path("/gone"));
    tick(8, plans.path("/gone"));
    dispatch();
    EXPECT_EQ(namesIn(plans.path()).size(), 1U);
    EXPECT_EQ(machine.desktop.notices,
              std::vector<std::string>{"Not written, the folder is gone: GPX, KML."});
    EXPECT_TRUE(shown.empty());
}

TEST_F(OnDispatch, WritesNothingUnasked) {
    tick(0, plans.path());
    dispatch(false);
    EXPECT_TRUE(namesIn(plans.path()).empty());
}

TEST_F(OnDispatch, ASettingsFileThatHasItAlreadyIsNotWritten) {
    app.write("/GT.cfg", "[Main]\nIndex=3\n");
    ASSERT_FALSE(writeChoices(app.path(), readChoices(app.path())));
    EXPECT_EQ(app.read("/GT.cfg"), "[Main]\nIndex=3\n");
}

} // namespace
} // namespace gatewise::test
