#include "window/StageTest.h"

#include "window/QtText.h"

#include <QFileDialog>
#include <QTest>
#include <QTimer>

#include <fstream>

// The dialogs of the toolkit itself: where a plan is to be saved, which file is to be read.

namespace gatewise::test {

namespace {

using SaveDialog = StageTest;

} // namespace

TEST_F(SaveDialog, FoldersWithForeignNamesArriveAndComeBackWhole) {
    const std::filesystem::path place = folder() / std::filesystem::path(u8"Zürich Flüge 東京");
    std::filesystem::create_directories(place);
    const std::string proposal = files::textOf(place) + "\\plan.pln";
    QString shownFolder, shownFile;
    QTimer::singleShot(0, &stage().desk(), [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        shownFolder = dialog->directory().absolutePath();
        shownFile = dialog->selectedFiles().value(0);
        static_cast<QDialog*>(dialog)->accept();
    });
    const auto answer = stage().window.desktop.askSavePath("Save", proposal);
    EXPECT_EQ(shownFolder, QString::fromStdU16String(place.u16string()));
    EXPECT_EQ(shownFile, QString::fromStdU16String((place / "plan.pln").u16string()));
    ASSERT_TRUE(answer);
    EXPECT_EQ(files::resolve(*answer), place / "plan.pln");
}

TEST_F(SaveDialog, CancelIsNoName) {
    const auto giveUp = [&] {
        QTimer::singleShot(0, &stage().desk(), [] {
            if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()))
                dialog->reject();
        });
    };
    giveUp();
    EXPECT_FALSE(stage().window.desktop.askSavePath("Save", files::textOf(folder()) + "\\plan.pln"));
    giveUp();
    EXPECT_FALSE(stage().window.desktop.askOpenPath("Open", files::textOf(folder()) + "\\log.csv"));
}

TEST_F(SaveDialog, AFileIsOpenedWhereItWasProposed) {
    std::ofstream(folder() / "log.csv") << "date";
    QTimer::singleShot(0, &stage().desk(), [] {
        if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()))
            static_cast<QDialog*>(dialog)->accept();
    });
    const auto answer = stage().window.desktop.askOpenPath("Open", files::textOf(folder()) + "\\log.csv");
    ASSERT_TRUE(answer);
    EXPECT_EQ(files::resolve(*answer), folder() / "log.csv");
}

} // namespace gatewise::test
