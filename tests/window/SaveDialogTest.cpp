#include "window/StageTest.h"

#include "window/QtText.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
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

TEST_F(SaveDialog, TheLogBookIsAskedForInTheColoursOfTheSkinWithItsKindAndEnding) {
    const auto& skin = stage().desk().skin();
    const std::string proposal = files::textOf(folder()) + "\\LogBook.csv";
    QTimer::singleShot(0, &stage().desk(), [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), "Export Log Book");
        EXPECT_EQ(dialog->nameFilters(), (QStringList{"CSV files (*.csv)", "All files (*)"}));
        EXPECT_EQ(dialog->selectedNameFilter(), "CSV files (*.csv)");
        EXPECT_EQ(dialog->defaultSuffix(), "csv");
        EXPECT_EQ(dialog->font().family(), skin.widgetFont("data").family());
        const QImage seen = dialog->grab().toImage();
        EXPECT_EQ(seen.pixelColor(2, 2), skin.style("menu.back"));
        const auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(name, nullptr);
        EXPECT_EQ(seen.pixelColor(name->mapTo(dialog, QPoint(name->width() / 2, 3))),
                  skin.style("textbox.back"));
        dialog->selectFile("Other");
        static_cast<QDialog*>(dialog)->accept();
    });
    const auto answer = stage().window.desktop.askSavePath("Export Log Book", proposal);
    ASSERT_TRUE(answer);
    EXPECT_EQ(files::resolve(*answer), folder() / "Other.csv");
}

TEST_F(SaveDialog, AFileThatIsThereIsOnlyTakenWhenThePilotSaysSo) {
    std::ofstream(folder() / "LogBook.csv") << "mine";
    bool asked = false;
    QTimer answer; // another than the one in whose turn the dialog asks
    QObject::connect(&answer, &QTimer::timeout, &answer, [&] {
        auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (question == nullptr || question->defaultButton() == nullptr) return;
        asked = true;
        EXPECT_EQ(question->buttonRole(question->defaultButton()), QMessageBox::NoRole);
        question->defaultButton()->click();
    });
    answer.start(5);
    QTimer::singleShot(0, &stage().desk(), [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        static_cast<QDialog*>(dialog)->accept(); // back when the question is answered
        EXPECT_TRUE(dialog->isVisible()) << "no was taken for yes";
        dialog->reject();
    });
    EXPECT_FALSE(stage().window.desktop.askSavePath("Save", files::textOf(folder()) + "\\LogBook.csv"));
    EXPECT_TRUE(asked);
}

TEST_F(SaveDialog, AProposalWhoseFolderIsGoneBeginsInTheDocuments) {
    const QByteArray home = qgetenv("HOME");
    const QByteArray config = qgetenv("XDG_CONFIG_HOME");
    std::filesystem::create_directories(folder() / "home" / "Documents");
    qputenv("HOME", QByteArray::fromStdString((folder() / "home").string()));
    qunsetenv("XDG_CONFIG_HOME");
    QTimer::singleShot(0, &stage().desk(), [] {
        if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()))
            static_cast<QDialog*>(dialog)->accept();
    });
    const auto answer =
        stage().window.desktop.askSavePath("Save", files::textOf(folder()) + "\\gone\\plan.pln");
    qputenv("HOME", home);
    if (!config.isNull()) qputenv("XDG_CONFIG_HOME", config);
    ASSERT_TRUE(answer);
    EXPECT_EQ(files::resolve(*answer), folder() / "home" / "Documents" / "plan.pln");
}

TEST_F(SaveDialog, GrowsWithTheWindowsAndNotBeyondTheScreen) {
    for (const int percent : {100, 200}) {
        stage().window.display.choosePercent(percent);
        QTimer::singleShot(0, &stage().desk(), [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_GE(dialog->width(), 640 * percent / 100);
            EXPECT_TRUE(dialog->screen()->availableGeometry().contains(dialog->geometry())) << percent;
            EXPECT_EQ(dialog->font().pixelSize(), stage().desk().skin().widgetFont("data").pixelSize());
            static_cast<QDialog*>(dialog)->reject();
        });
        EXPECT_FALSE(stage().window.desktop.askSavePath("Save", files::textOf(folder()) + "\\plan.pln"));
    }
}

} // namespace gatewise::test
