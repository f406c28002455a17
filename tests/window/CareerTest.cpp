#include "window/StageTest.h"

#include "window/Accessible.h"
#include "window/View.h"

#include <QAccessible>
#include <QApplication>
#include <QFileDialog>
#include <QImage>
#include <QProcess>
#include <QTimer>

#include <fstream>

// A pilot's career, as a person at the window meets it.

namespace gatewise::test {

namespace {

class CareerWindow : public StageTest {
protected:
    void SetUp() override {
        if (!dataIsThere()) GTEST_SKIP() << "built without data sets";
        makeStage(GATEWISE_PROGRAM_DIR, stage::Time::Real);
        std::ofstream(folder() / "flown.csv")
            << "date,from,to,aircraft,airline,flight,total\n"
               "2001-03-05,KATL,KJFK,Boeing 737-800,Quillmark Air Lines,7,2.1\n"
               "2002-06-15,KJFK,EGLL,Boeing 767-300,Quillmark Air Lines,8,7\n"
               "2002-06-16,KJFK,QQQQ,Glider,,,1\n";
        then([&] { stage().click(forms().MainForm.log_LABEL); });
        then([&] { stage().click(forms().MainForm.careerButton); });
    }
    forms::CareerForm& form() { return forms().CareerForm; }
    void lookAt(const char* file) {
        then([&, file] {
            stage().click(form().sourceTEXT);
            stage().type(QString::fromStdString((folder() / file).string()));
            stage().key(Qt::Key_Return);
        });
    }
    /// Answers the dialog that asks for a file, as soon as it is up.
    void answerDialog(const char* file) {
        auto* timer = new QTimer(&stage().desk());
        const QString name = QString::fromStdString((folder() / file).string());
        QObject::connect(timer, &QTimer::timeout, timer, [timer, name] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            timer->stop();
            timer->deleteLater();
            dialog->selectFile(name);
            static_cast<QDialog*>(dialog)->accept();
        });
        timer->start(5);
    }
    /// A desk without a window manager gives nobody the keyboard when a dialog has closed.
    void comeBack() {
        then([&] { stage().desk().front()->activateWindow(); });
    }
    void leave() {
        comeBack();
        then([&] { stage().key(Qt::Key_Escape); });
        play();
    }
};

/// What another program finds in a file.
QString readBack(const char* program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0) return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString spoken(QWidget& widget, QAccessible::Text which) {
    auto* one = QAccessible::queryAccessibleInterface(&widget);
    return one == nullptr ? QString() : one->text(which);
}

} // namespace

TEST_F(CareerWindow, IsFilledByKeysAloneAndSaysWhatItShows) {
    then([&] { EXPECT_TRUE(stage().tabTo(form().sourceTEXT)); });
    then([&] {
        stage().type(QString::fromStdString((folder() / "flown.csv").string()));
        stage().key(Qt::Key_Return);
    });
    then([&] {
        EXPECT_TRUE(stage().widget(form().previewList).isVisible());
        EXPECT_FALSE(stage().widget(form().totals).isVisible());
        EXPECT_EQ(form().preview_LABEL.text, "3 new flights.");
        EXPECT_TRUE(stage().tabTo(form().takeButton));
    });
    then([&] { stage().key(Qt::Key_Space); });
    then([&] {
        EXPECT_FALSE(stage().widget(form().previewList).isVisible());
        EXPECT_TRUE(stage().widget(form().totals).isVisible());
        EXPECT_EQ(spoken(stage().widget(form().map), QAccessible::Name),
                  "Map of 2 routes, 3 airports; 1 entry of unknown airports");
        EXPECT_EQ(spoken(stage().widget(form().bars), QAccessible::Name),
                  "Flights by year: 2001 1, 2002 2; by month: March 1, June 2.");
        for (const Control* control : std::initializer_list<const Control*>{
                 &form().totals, &form().map, &form().yearCOMBO, &form().undoButton, &form().pdfButton})
            EXPECT_TRUE(stage().tabTo(*control)) << control->name;
    });
    leave();
}

TEST_F(CareerWindow, EscapeLeavesThePreviewFirst) {
    lookAt("flown.csv");
    then([&] { stage().key(Qt::Key_Escape); });
    then([&] {
        EXPECT_TRUE(form().visible);
        EXPECT_FALSE(stage().widget(form().previewList).isVisible());
        EXPECT_TRUE(stage().window.program.session.log.LogEntries.empty());
    });
    leave();
    EXPECT_FALSE(form().visible);
}

TEST_F(CareerWindow, AnEmptyFieldAsksForTheFile) {
    then([&] {
        answerDialog("flown.csv");
        stage().click(form().importButton);
    });
    then([&] { EXPECT_EQ(form().preview_LABEL.text, "3 new flights."); });
    comeBack();
    then([&] { stage().key(Qt::Key_Escape); });
    leave();
}

/// What is saved stands on white, as sharp as paper, with the words of the map and the bars.
TEST_F(CareerWindow, IsSavedAsPictureAndPages) {
    lookAt("flown.csv");
    then([&] { stage().click(form().takeButton); });
    for (const char* name : {"Mine.png", "Mine.pdf"}) {
        then([&, name] {
            answerDialog(name);
            stage().click(std::string_view(name).ends_with("png") ? form().pngButton : form().pdfButton);
        });
    }
    leave();
    const QImage picture(QString::fromStdString((folder() / "Mine.png").string()));
    EXPECT_EQ(picture.width(), 2480);
    EXPECT_EQ(picture.pixelColor(3, 3), QColor(Qt::white));
    const QString pdf = QString::fromStdString((folder() / "Mine.pdf").string());
    const QString words = readBack("pdftotext", {"-layout", pdf, "-"});
    for (const char* word : {"CAREER", "All flights", "Flights", "Total hours", "10.1", "KATL", "KJFK",
                             "EGLL", "2001", "2002", "of unknown airports", "Page 1 of 2", "Page 2 of 2"})
        EXPECT_TRUE(words.contains(word)) << word << " is not in\n" << words.toStdString();
    EXPECT_LE(readBack("pdfimages", {"-list", pdf}).count('\n'), 2) << "the map is a picture, not lines";
}

} // namespace gatewise::test
