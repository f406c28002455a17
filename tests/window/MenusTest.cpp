#include "window/StageTest.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

// Menus of the right button and of the menu key.

namespace gatewise::test {

namespace {

class Menus : public DeliveredStageTest {};

} // namespace

TEST_F(Menus, TheRightButtonHasAMenuInAField) {
    then([&] {
        auto& line = dynamic_cast<QLineEdit&>(stage().widget(main().departureText));
        line.setFocus();
        line.selectAll();
        QContextMenuEvent ask(QContextMenuEvent::Mouse, {5, 5}, line.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&line, &ask);
        auto* menu = line.findChild<QMenu*>();
        ASSERT_NE(menu, nullptr);
        QStringList words;
        for (const QAction* action : menu->actions()) {
            if (!action->isSeparator()) words << action->text();
        }
        EXPECT_EQ(words, QStringList({"Undo", "Cut", "Copy", "Paste", "Select All"}));
        for (QAction* action : menu->actions()) {
            if (action->text() == "Cut") action->trigger();
        }
        menu->close();
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "KATL");
        EXPECT_EQ(main().departureText.text, "");
    });
    play();
}

/// By the mouse from the Status Board, where the key beside the schedule sets is not in sight.
TEST_F(Menus, TheHelpKeyOffersTheImportToTheMouse) {
    then([&] { stage().click(main().statusboard_LABEL); });
    then([&] { stage().rightClick(main().FlatButton(2)); });
    then([&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        ASSERT_EQ(menu->actions().size(), 2);
        EXPECT_EQ(menu->actions()[0]->text(), "Help");
        QAction* import = menu->actions()[1];
        EXPECT_EQ(import->text(), "Import schedules...");
        QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, menu->actionGeometry(import).center());
    });
    then([&] {
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_TRUE(forms().ImportForm.visible);
        stage().key(Qt::Key_Escape);
    });
    then([&] {
        EXPECT_FALSE(forms().ImportForm.visible);
        EXPECT_TRUE(stage().machine.desktop.helpPages.empty());
    });
    play();
}

TEST_F(Menus, TheHelpKeyOffersTheImportToTheKeyboard) {
    struct Row {
        Qt::Key key;
        Qt::KeyboardModifiers held;
    };
    for (const Row& row : {Row{Qt::Key_Menu, Qt::NoModifier}, Row{Qt::Key_F10, Qt::ShiftModifier}}) {
        then([this, row] {
            ASSERT_TRUE(stage().tabTo(main().FlatButton(2)));
            stage().key(row.key, row.held);
        });
        then([this] {
            ASSERT_NE(qobject_cast<QMenu*>(QApplication::activePopupWidget()), nullptr);
            stage().key(Qt::Key_Down);
            stage().key(Qt::Key_Down);
            stage().key(Qt::Key_Return);
        });
        then([this] {
            EXPECT_TRUE(forms().ImportForm.visible);
            stage().key(Qt::Key_Escape);
        });
        then([this] { EXPECT_FALSE(forms().ImportForm.visible); });
    }
    play();
}

} // namespace gatewise::test
