#include "window/StageTest.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <map>
#include <random>
#include <set>

// The loop, the timers and the desktop that ship, on the computer's own time.

namespace gatewise::test {

namespace {

constexpr int kPatience = 30000; // milliseconds for what a timer does; a busy machine needs less

class Shipped : public StageTest {
protected:
    void SetUp() override {
        if (!dataIsThere()) GTEST_SKIP() << "built without data sets";
        makeStage(GATEWISE_PROGRAM_DIR, stage::Time::Real);
    }
    forms::MainForm& main() { return forms().MainForm; }
    /// Lets the clock of the main screen tick so often.
    void awaitTicks(int ticks) {
        for (int i = 0; i < ticks; ++i) {
            const bool before = main().gt_sepLABEL.visible;
            ASSERT_TRUE(QTest::qWaitFor([&] { return main().gt_sepLABEL.visible != before; }, kPatience));
        }
    }
};

/// Takes the addresses that the program opens.
class Opened : public QObject {
    Q_OBJECT
public:
    Opened() { QDesktopServices::setUrlHandler("file", this, "take"); }
    ~Opened() override { QDesktopServices::unsetUrlHandler("file"); }
    QList<QUrl> urls;
public slots:
    void take(const QUrl& url) { urls << url; }
};

} // namespace

TEST_F(Shipped, TheColonOfTheClockBlinksByItself) {
    then([&] {
        awaitTicks(2);
        EXPECT_EQ(stage().widget(main().gt_sepLABEL).isVisible(), main().gt_sepLABEL.visible);
    });
    play();
}

TEST_F(Shipped, AHeldKeyOfTheClockCountsAndStopsWithTheHand) {
    then([&] {
        const auto minutes = [&] { return std::stoi(main().gt_minutesLABEL.text); };
        const int before = minutes();
        QWidget& key = stage().widget(main().gt_minupButton);
        QWindow* at = key.window()->windowHandle();
        const QPoint middle = key.mapTo(key.window(), key.rect().center());
        QTest::mousePress(at, Qt::LeftButton, {}, middle);
        EXPECT_TRUE(QTest::qWaitFor([&] { return (minutes() - before + 60) % 60 >= 3; }, kPatience));
        EXPECT_TRUE(main().gt_minupButton.Timer1->enabled);
        QTest::mouseRelease(at, Qt::LeftButton, {}, middle);
        EXPECT_FALSE(main().gt_minupButton.Timer1->enabled);
        awaitTicks(2); // the label shows it with the next tick of the clock
        const int let = minutes();
        awaitTicks(2);
        EXPECT_EQ(minutes(), let);
    });
    play();
}

TEST_F(Shipped, AWaitLastsAsLongAsItSaysAndRunsTheTimersMeanwhile) {
    then([&] {
        int ticks = 0;
        QTimer beside;
        QObject::connect(&beside, &QTimer::timeout, [&] { ++ticks; });
        beside.start(20);
        bool over = false; // a time that no wait of ours takes
        QTimer::singleShot(10 * kPatience, &beside, [&] { over = true; });
        QElapsedTimer clock;
        clock.start();
        stage().window.program.machine.loop.wait(300);
        EXPECT_GE(clock.elapsed(), 299);
        EXPECT_FALSE(over);
        // Where the machine had no time for the timer either, the next wait runs it.
        for (int i = 0; ticks <= 2 && i < 20; ++i) stage().window.program.machine.loop.wait(300);
        EXPECT_GT(ticks, 2);
    });
    play();
}

TEST_F(Shipped, ThePointerIsBusyWhileTheProgramIs) {
    then([&] {
        auto& desktop = stage().window.desktop;
        desktop.setPointer(true);
        desktop.setPointer(true);
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        desktop.setPointer(false);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    });
    play();
}

TEST_F(Shipped, TheMinimiseKeyPutsTheWindowAway) {
    then([&] { stage().click(main().min_button); });
    then([&] {
        EXPECT_TRUE(stage().desk().mainWindow().isMinimized());
        stage().desk().mainWindow().showNormal();
    });
    play();
}

TEST_F(Shipped, TheHelpKeyOpensAPageThatIsThere) {
    Opened opened;
    then([&] { stage().click(main().FlatButton(2)); });
    then([&] {
        ASSERT_EQ(opened.urls.size(), 1);
        const QString file = opened.urls[0].toLocalFile();
        EXPECT_TRUE(file.endsWith(".htm")) << file.toStdString();
        EXPECT_TRUE(QFile::exists(file)) << file.toStdString();
    });
    play();
}

/// The window manager moves the main window: its form goes along, and the dialogs that keep to its middle.
TEST_F(Shipped, AWindowThatTheManagerMovesTakesItsFormAndItsDialogsAlong) {
    then([&] { stage().click(main().FlatButton(1)); });
    then([&] {
        auto& window = stage().desk().mainWindow();
        auto& dialog = stage().desk().window(forms().SettingsForm);
        const QPoint between = dialog.pos() - window.pos();
        const QPoint to = window.pos() + QPoint(-60, 45);
        window.windowHandle()->setPosition(to);
        QCoreApplication::processEvents();
        EXPECT_EQ(QPoint(static_cast<int>(main().left), static_cast<int>(main().top)), to);
        EXPECT_EQ(dialog.pos() - to, between);
        stage().key(Qt::Key_Escape);
    });
    play();
}

/// What the program plays, prints or writes goes into its own folder: the delivered one stays as it is.
TEST_F(Shipped, TheDeliveredFolderIsNeverWritten) {
    namespace fs = std::filesystem;
    const auto look = [] {
        std::map<fs::path, fs::file_time_type> files;
        for (const auto& entry : fs::recursive_directory_iterator(GATEWISE_PROGRAM_DIR)) {
            if (entry.is_regular_file()) files[entry.path()] = entry.last_write_time();
        }
        return files;
    };
    const auto before = look();
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().FlatButton(0)); });
    then([&] { stage().click(main().sendlogButton); });
    then([&] { stage().key(Qt::Key_Return); });
    play();
    EXPECT_EQ(look(), before);
    EXPECT_TRUE(fs::exists(folder() / "Wavs" / "tmp.wav")) << "the welcome was not made at all";
}

/// After a thousand random moves, presses and keys there are as many timers and widgets as at the start.
TEST_F(Shipped, NothingOutlivesItsCause) {
    // A window that belongs to another is among its children too: each is counted once.
    const auto living = [] {
        std::set<const QTimer*> timers;
        for (const QWidget* top : QApplication::topLevelWidgets()) {
            const auto held = top->findChildren<QTimer*>();
            timers.insert(held.begin(), held.end());
        }
        return std::map<std::string, std::size_t>{
            {"widgets", static_cast<std::size_t>(QApplication::allWidgets().size())},
            {"timers", timers.size()}};
    };
    // A menu or a dialog that closes leaves the keyboard to nobody here: no window manager gives it back.
    // Where a notice or a screen on its way out is in front, a key goes nowhere.
    const auto press = [&](Qt::Key key) {
        if (QGuiApplication::focusWindow() == nullptr) stage().desk().front()->activateWindow();
        if (QGuiApplication::focusWindow() != nullptr) stage().key(key);
    };
    const auto leave = [&] {
        if (forms().front.front() != &main()) press(Qt::Key_Escape);
    };
    const auto settle = [&] {
        while (forms().front.front() != &main()) {
            leave();
            QCoreApplication::processEvents();
            if (forms().front.front() != &main() && forms().modalScreen() != nullptr) break;
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    // A dialog of the desktop waits in a loop of its own: nobody answers it here.
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) dialog->reject();
    });
    answer.start(20);
    std::mt19937 random(2002);
    std::map<std::string, std::size_t> before;
    int done = 0;
    const auto act = [&] {
        window::ScreenWindow* front = stage().desk().front();
        if (front == nullptr) return;
        QWindow* at = front->windowHandle();
        const QPoint place(static_cast<int>(random() % static_cast<unsigned>(front->width())),
                           static_cast<int>(random() % static_cast<unsigned>(front->height())));
        // The strip at the top of the main window ends the program or puts it away.
        if (front == &stage().desk().mainWindow() && (place.y() < 30 || place.x() < 155)) return;
        switch (random() % 6) {
        case 0:
            QTest::mouseClick(at, Qt::RightButton, {}, place);
            break;
        case 1:
        case 2:
            QTest::mouseClick(at, Qt::LeftButton, {}, place);
            break;
        case 3:
            press(random() % 2 == 0 ? Qt::Key_Tab : Qt::Key_Down);
            break;
        case 4:
            stage().window.desktop.notify("A line of news");
            break;
        default:
            QTest::mouseMove(at, place);
        }
        ++done;
    };
    then([&] {
        stage().click(main().main_LABEL);
        settle();
        before = living();
    });
    for (int i = 0; i < 200; ++i) {
        then([&] {
            for (int k = 0; k < 5; ++k) act();
            leave();
        });
    }
    for (int i = 0; i < 5; ++i) then(leave);
    then([&] {
        settle();
        if (stage().desk().note() != "") {
            QTest::mouseClick(stage().desk().front()->findChild<QLabel*>(), Qt::LeftButton);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        const auto after = living();
        EXPECT_EQ(after.at("timers"), before.at("timers"));
        // The list of a combo box is made when it first opens and is kept.
        EXPECT_LE(after.at("widgets"), before.at("widgets") + 40);
        EXPECT_GT(done, 500);
    });
    play();
}

} // namespace gatewise::test

#include "ShippedTest.moc"
