#include "window/OneInstance.h"
#include "support/TempFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSysInfo>

#include <gtest/gtest.h>

// Two programs on one folder would write one log book. Two locks of one process are two programs here: the
// lock is a file that the first makes.

namespace gatewise::window {
namespace {

QString native(const test::TempFolder& folder) {
    return QString::fromStdString(folder.path());
}

/// Whether it comes true while the loop turns; a busy machine takes its time.
bool comes(const bool& told) {
    constexpr int kPatience = 60'000;
    QElapsedTimer since;
    since.start();
    while (!told && since.elapsed() < kPatience) QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    return told;
}

TEST(OneInstance, TheSecondStartShowsTheFirst) {
    const test::TempFolder folder;
    OneInstance first(native(folder));
    bool shown = false;
    first.onCall([&shown] { shown = true; });
    const OneInstance second(native(folder));
    EXPECT_TRUE(first.first());
    EXPECT_FALSE(second.first());
    EXPECT_FALSE(shown);
    second.callFirst();
    EXPECT_TRUE(comes(shown));
    EXPECT_FALSE(std::filesystem::exists(folder / "gatewise.show")) << "the call is taken";
    shown = false;
    second.callFirst();
    EXPECT_TRUE(comes(shown)) << "and each further call";
}

TEST(OneInstance, AnotherFolderIsAnotherProgram) {
    const test::TempFolder here;
    const test::TempFolder there;
    const OneInstance first(native(here));
    const OneInstance other(native(there));
    EXPECT_TRUE(first.first());
    EXPECT_TRUE(other.first());
}

TEST(OneInstance, WhenTheFirstEndsTheNextIsFirst) {
    const test::TempFolder folder;
    { const OneInstance first(native(folder)); }
    EXPECT_TRUE(OneInstance(native(folder)).first());
}

/// A sandbox counts its processes from the beginning: the next start has the number of the one that was
/// killed.
TEST(OneInstance, ALockWithItsOwnNumberIsThatOfAProgramThatHasEnded) {
    const test::TempFolder folder;
    const std::string own = std::to_string(QCoreApplication::applicationPid());
    const std::string name = QCoreApplication::applicationName().toStdString();
    const std::string here = QSysInfo::machineHostName().toStdString();
    folder.write("/gatewise.lock", own + "\n" + name + "\n" + here + "\n");
    EXPECT_TRUE(OneInstance(native(folder)).first());
    folder.write("/gatewise.lock", own + "\n" + name + "\nanother-computer\n");
    EXPECT_FALSE(OneInstance(native(folder)).first()) << "there it may be alive";
}

TEST(OneInstance, ACallThatNobodyHeardIsNoneForTheNext) {
    const test::TempFolder folder;
    folder.write("/gatewise.show", "");
    const OneInstance first(native(folder));
    EXPECT_TRUE(first.first());
    EXPECT_FALSE(std::filesystem::exists(folder / "gatewise.show"));
}

TEST(OneInstance, AFolderThatTakesNoLockHasNoFirst) {
    const test::TempFolder folder;
    const OneInstance first(native(folder) + "/missing");
    EXPECT_TRUE(first.first());
}

} // namespace
} // namespace gatewise::window
