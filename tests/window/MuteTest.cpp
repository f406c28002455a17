#include "window/StageTest.h"

#include "platform/Profile.h"
#include "work/ConfigFile.h"

#include <algorithm>

// Silence at a key, by what the sound device is told.

namespace gatewise::test {

namespace {

class Muting : public DeliveredStageTest {
protected:
    const Settings& settings() { return stage().window.program.session.settings; }
    [[nodiscard]] std::string kept(const char* key) {
        return textIn(loadProfile(configPath(files::textOf(folder()))), "Gatewise", key);
    }
    /// The volumes of all that the device holds.
    std::vector<std::int32_t> volumes() {
        std::vector<std::int32_t> all;
        for (std::uint32_t name = 1; name <= 100; ++name) {
            if (const auto volume = stage().machine.machine.sound.volume(static_cast<SoundBuffer>(name)))
                all.push_back(*volume);
        }
        return all;
    }
    bool silent() {
        const auto all = volumes();
        return !all.empty() && std::ranges::all_of(all, [](std::int32_t v) { return v == -10000; });
    }
};

} // namespace

TEST_F(Muting, CtrlMSilencesAllAndBringsItBack) {
    then([&] {
        stage().advance(1000); // the hall comes up
        const auto before = volumes();
        ASSERT_FALSE(before.empty()) << "the hall plays while the board is up";
        ASSERT_FALSE(silent());
        stage().key(Qt::Key_M, Qt::ControlModifier);
        EXPECT_TRUE(silent());
        EXPECT_EQ(settings().Muted, 1);
        EXPECT_EQ(forms().OptionsForm.muteCHECK.value, 1);
        EXPECT_EQ(stage().desk().note(), "All sounds are muted. Ctrl+M brings them back.");
        EXPECT_EQ(kept("Muted"), "1");
        stage().key(Qt::Key_M, Qt::ControlModifier);
        EXPECT_EQ(volumes(), before);
        EXPECT_EQ(stage().desk().note(), "Sounds are heard again.");
        EXPECT_EQ(kept("Muted"), "0");
    });
    play();
}

TEST_F(Muting, CtrlMWorksInADialogAndWhileAFieldHasTheKeyboard) {
    then([&] { stage().click(forms().MainForm.main_LABEL); });
    then([&] {
        stage().click(forms().MainForm.departureText);
        const std::string typed = forms().MainForm.departureText.text;
        stage().key(Qt::Key_M, Qt::ControlModifier);
        EXPECT_EQ(settings().Muted, 1);
        EXPECT_EQ(forms().MainForm.departureText.text, typed);
        stage().click(forms().MainForm.FlatButton(1));
    });
    then([&] {
        ASSERT_TRUE(forms().SettingsForm.visible);
        stage().key(Qt::Key_M, Qt::ControlModifier);
        EXPECT_EQ(settings().Muted, 0);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Muting, TheBoxOfTheOptionsDoesTheSame) {
    then([&] { stage().click(forms().MainForm.switchButton(2)); });
    then([&] {
        ASSERT_TRUE(forms().OptionsForm.visible);
        stage().click(forms().OptionsForm.muteCHECK);
        EXPECT_TRUE(silent());
        stage().click(forms().OptionsForm.muteCHECK);
        EXPECT_FALSE(silent());
        stage().click(forms().OptionsForm.annDN);
        EXPECT_EQ(forms().OptionsForm.annVol.text, "099");
        EXPECT_EQ(settings().AnnouncementVolume, -90);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Muting, TheNextStartKnowsOfIt) {
    then([&] { stage().click(forms().MainForm.switchButton(2)); });
    then([&] {
        stage().click(forms().OptionsForm.muteCHECK);
        stage().click(forms().OptionsForm.annDN);
        stage().key(Qt::Key_Escape);
    });
    then([&] { stage().click(forms().MainForm.FlatButton(4)); });
    play();
    EXPECT_EQ(kept("Muted"), "1");
    EXPECT_EQ(kept("annVolume"), "-90");
    restart();
    then([&] {
        EXPECT_EQ(forms().OptionsForm.muteCHECK.value, 1);
        EXPECT_EQ(forms().OptionsForm.annVol.text, "099");
        stage().advance(1000);
        EXPECT_TRUE(silent()) << "from the first sound on";
        stage().key(Qt::Key_M, Qt::ControlModifier);
        EXPECT_FALSE(silent());
    });
    play();
}

} // namespace gatewise::test
