#include "map/MapDrawing.h"
#include "window/ChartView.h"
#include "window/MapView.h"
#include "window/Skin.h"
#include "window/StageTest.h"

#include <QApplication>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPointingDevice>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>

// Maps under the hand: what moves and zooms them, what a click picks.

namespace gatewise::test {

namespace {

class Map : public StageTest {
protected:
    void SetUp() override {
        if (!dataIsThere()) GTEST_SKIP() << "built without data sets";
        StageTest::SetUp();
        then([&] { stage().doubleClick(forms().MainForm.city_LABEL(3)); });
        then([&] { stage().click(forms().MainForm.routesButton); });
    }
    forms::RoutesForm& routes() { return forms().RoutesForm; }
    window::MapView& map() { return dynamic_cast<window::MapView&>(stage().widget(routes().map)); }
    QPoint middle() { return map().rect().center(); }
    void wheel(int notches, QPoint at) {
        QWheelEvent event(at, map().mapToGlobal(QPointF(at)), {}, {0, 120 * notches}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&map(), &event);
    }
    /// A mouse without a button held, whatever was pressed before.
    void point(QPoint at) {
        QMouseEvent event(QEvent::MouseMove, at, map().mapToGlobal(QPointF(at)), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&map(), &event);
    }
    void end() {
        stage().key(Qt::Key_Escape);
        EXPECT_FALSE(routes().visible);
    }
    /// The map of now, drawn line by line onto an empty sheet.
    QImage drawn() {
        window::MapLook look;
        look.size = {map().width() - 4.0, map().height() - 4.0};
        look.corner = {2, 2};
        look.pixels = map().rect().size();
        look.font = stage().desk().skin().text("caption").font;
        look.ground = QColor(0x05, 0x07, 0x09);
        look.scene = std::make_shared<const MapScene>(routes().map.scene);
        look.chosen = routes().map.chosen;
        look.sight = map().sight();
        return window::drawnMap(look).image;
    }
    QImage shown() { return map().grab().toImage().convertToFormat(QImage::Format_RGB32); }
    QRect inner() { return map().rect().adjusted(4, 4, -4, -4); }
    bool comesToRest() {
        return QTest::qWaitFor([&] { return map().settled(); }, 60000);
    }
};

/// A view of its own, with one mark in an empty sea, that nothing but the test moves.
class Pane : public testing::Test {
protected:
    void SetUp() override {
        QFont font;
        font.setPixelSize(12);
        pane.stand({{400, 300}, {}, {400, 300}, 1, 1, font, Qt::black});
        pane.show(seaWithMark(0), -1, {{0, 0}, 1});
    }
    static std::shared_ptr<const MapScene> seaWithMark(double longitude) {
        MapScene scene;
        scene.places.push_back({{0, longitude}, Tone::Airport, "", "", 0});
        return std::make_shared<const MapScene>(scene);
    }
    QImage painted() {
        QImage image(400, 300, QImage::Format_RGB32);
        image.fill(Qt::red);
        QPainter painter(&image);
        pane.paint(painter);
        return image;
    }
    void move(double dx, double dy) { pane.look(map::panned(pane.sight(), {400, 300}, dx, dy)); }
    bool comesToRest() {
        return QTest::qWaitFor([&] { return pane.settled(); }, 60000);
    }

    int news = 0;
    window::MapPane pane{[this] { ++news; }};
};

constexpr QRgb kMark = 0xFFFFC531;

/// Pixels that a place has moved between two looks, as the view's own figures have it.
QPointF placeOf(const window::MapView& view, const MapSpot& spot) {
    const map::View sheet(view.sight(),
                          {static_cast<double>(view.width() - 4), static_cast<double>(view.height() - 4)});
    const auto at = sheet.place(map::vectorOf(spot));
    return at ? QPointF(at->x, at->y) : QPointF(-1, -1);
}

} // namespace

TEST_F(Map, TheWheelZoomsAboutThePointer) {
    then([&] {
        ASSERT_TRUE(routes().visible);
        const double span = map().sight().span;
        const MapSpot held = routes().map.scene.places.front().at;
        const QPointF before = placeOf(map(), held);
        wheel(1, before.toPoint() + QPoint(2, 2));
        EXPECT_NEAR(map().sight().span, span / 1.3, 1e-6);
        const QPointF after = placeOf(map(), held);
        EXPECT_NEAR(after.x(), before.x(), 2);
        EXPECT_NEAR(after.y(), before.y(), 2);
        wheel(-1, before.toPoint() + QPoint(2, 2));
        EXPECT_NEAR(map().sight().span, span, 1e-6);
        end();
    });
    play();
}

TEST_F(Map, KeysMoveZoomAndFit) {
    then([&] {
        map().setFocus();
        const MapSight whole = map().sight();
        stage().key(Qt::Key_Plus);
        EXPECT_NEAR(map().sight().span, whole.span / 1.3, 1e-6);
        stage().key(Qt::Key_Minus);
        EXPECT_NEAR(map().sight().span, whole.span, 1e-6);
        const MapSpot held = map().sight().middle;
        const QPointF before = placeOf(map(), held);
        stage().key(Qt::Key_Right);
        EXPECT_LT(placeOf(map(), held).x(), before.x() - 20) << "the sight goes right, the land left";
        stage().key(Qt::Key_Down);
        EXPECT_LT(placeOf(map(), held).y(), before.y() - 10);
        stage().key(Qt::Key_F);
        EXPECT_EQ(map().sight(), whole);
        end();
    });
    play();
}

TEST_F(Map, ADragMovesTheLandWithTheHand) {
    then([&] {
        const double left = routes().left;
        const MapSpot held = map().sight().middle;
        const QPointF before = placeOf(map(), held);
        QTest::mousePress(&map(), Qt::LeftButton, {}, middle());
        QTest::mouseMove(&map(), middle() + QPoint(40, -25));
        QTest::mouseRelease(&map(), Qt::LeftButton, {}, middle() + QPoint(40, -25));
        const QPointF after = placeOf(map(), held);
        EXPECT_NEAR(after.x() - before.x(), 40, 2);
        EXPECT_NEAR(after.y() - before.y(), -25, 2);
        EXPECT_EQ(routes().left, left) << "the window stays";
        EXPECT_TRUE(routes().visible) << "a drag picks nothing";
        end();
    });
    play();
}

TEST_F(Map, ADoubleClickCentres) {
    then([&] {
        // A place where nothing can be picked.
        QPoint at = middle() + QPoint(60, 30);
        const auto free = [&] {
            point(at);
            return map().cursor().shape() == Qt::ArrowCursor;
        };
        while (at.x() < map().width() - 20 && !free()) at += QPoint(7, 2);
        const map::View sheet(
            map().sight(), {static_cast<double>(map().width() - 4), static_cast<double>(map().height() - 4)});
        const map::Spot meant = map::spotOf(sheet.spotAt({at.x() - 2.0, at.y() - 2.0}));
        QTest::mouseDClick(&map(), Qt::LeftButton, {}, at);
        EXPECT_NEAR(map().sight().middle.latitude, meant.latitude, 1e-6);
        EXPECT_NEAR(map().sight().middle.longitude, meant.longitude, 1e-6);
        end();
    });
    play();
}

TEST_F(Map, ThePointerSaysWhatIsThereAndAClickPicksIt) {
    then([&] {
        const auto at = map().pointOf(0);
        ASSERT_TRUE(at);
        point(*at);
        EXPECT_EQ(routes().map.chosen, 0);
        const auto& all = routes().map.scene.routes;
        const auto route = std::find_if(all.begin(), all.end(), [](const MapRoute& r) { return r.id == 0; });
        ASSERT_NE(route, all.end());
        EXPECT_EQ(routes().hover_LABEL.text, route->words);
        EXPECT_NE(routes().hover_LABEL.text, routes().map.scene.summary);
        EXPECT_EQ(map().cursor().shape(), Qt::PointingHandCursor);
        point({1, 1});
        EXPECT_EQ(routes().hover_LABEL.text, routes().map.scene.summary);
        QTest::mouseClick(&map(), Qt::LeftButton, {}, *at);
    });
    then([&] {
        EXPECT_FALSE(routes().visible);
        EXPECT_TRUE(forms().FlightForm.visible);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Map, AtRestItIsDrawnLineByLine) {
    then([&] {
        ASSERT_TRUE(routes().visible);
        EXPECT_EQ(shown().copy(inner()), drawn().copy(inner())) << "as it comes up";
        map().setFocus();
        stage().key(Qt::Key_Plus);
        stage().key(Qt::Key_Right);
        ASSERT_TRUE(comesToRest());
        EXPECT_EQ(shown().copy(inner()), drawn().copy(inner())) << "after a move";
        end();
    });
    play();
}

/// The fingers come through the window, as those on a screen do.
TEST_F(Map, TwoFingersZoomAboutTheirMiddle) {
    then([&] {
        static QPointingDevice* screen = QTest::createTouchDevice();
        QWidget* above = map().window();
        const QPoint about = map().mapTo(above, middle() + QPoint(30, 10));
        const MapSight before = map().sight();
        const map::SheetSize size{map().width() - 4.0, map().height() - 4.0};
        const map::Vector held = map::View(before, size).spotAt({middle().x() + 28.0, middle().y() + 8.0});
        const auto at = [&](int apart) {
            return std::pair(about - QPoint(apart, 0), about + QPoint(apart, 0));
        };
        QTest::touchEvent(above->windowHandle(), screen).press(0, at(20).first).press(1, at(20).second);
        for (const int apart : {20, 25, 30, 35, 40})
            QTest::touchEvent(above->windowHandle(), screen)
                .move(0, at(apart).first)
                .move(1, at(apart).second);
        QTest::touchEvent(above->windowHandle(), screen).release(0, at(40).first).release(1, at(40).second);
        EXPECT_NEAR(map().sight().span, before.span / 2, before.span / 20);
        const auto after = map::View(map().sight(), size).place(held);
        ASSERT_TRUE(after);
        EXPECT_NEAR(after->x, middle().x() + 28, 3) << "no finger drags";
        EXPECT_NEAR(after->y, middle().y() + 8, 3);
        EXPECT_TRUE(routes().visible) << "no finger clicks";
        end();
    });
    play();
}

TEST_F(Map, TwoFingersOnAPadZoom) {
    then([&] {
        const QPointF at = map().mapTo(map().window(), middle());
        const QPointF onDesk = map().mapToGlobal(QPointF(middle()));
        const MapSight before = map().sight();
        const auto pinch = [&](Qt::NativeGestureType type, double value) {
            QNativeGestureEvent event(type, QPointingDevice::primaryPointingDevice(), 2, at, at, onDesk,
                                      value, {});
            QApplication::sendEvent(map().window()->windowHandle(), &event);
        };
        pinch(Qt::BeginNativeGesture, 0);
        pinch(Qt::ZoomNativeGesture, 0.25);
        pinch(Qt::EndNativeGesture, 0);
        EXPECT_NEAR(map().sight().span, before.span / 1.25, 1e-6);
        EXPECT_NEAR(map().sight().middle.longitude, before.middle.longitude, 0.3) << "less than a pixel";
        end();
    });
    play();
}

TEST_F(Pane, WhatIsMovedIsSeenWhereItLiesNow) {
    EXPECT_EQ(painted().pixel(200, 150), kMark);
    EXPECT_TRUE(pane.settled());
    move(60, -40);
    EXPECT_FALSE(pane.settled()) << "nothing was drawn in between";
    const QImage moved = painted();
    EXPECT_EQ(moved.pixel(260, 110), kMark);
    EXPECT_NE(moved.pixel(200, 150), kMark);
    EXPECT_NEAR(pane.drawing().marks.front().at.x, 260 / 400.0, 1e-3) << "and is hit there";
    pane.look(map::zoomed(pane.sight(), {400, 300}, 2, {200, 150}));
    EXPECT_EQ(painted().pixel(320, 70), kMark);
}

TEST_F(Pane, ItReachesBeyondTheEdgesSoonAfterItStands) {
    pane.show(seaWithMark(0), -1, {{0, -0.75}, 1}); // 225 pixels from the middle: outside on the right
    painted();
    const int told = news;
    ASSERT_TRUE(QTest::qWaitFor([&] { return news > told; }, 60000));
    move(-50, 0);
    EXPECT_FALSE(pane.settled());
    EXPECT_EQ(painted().pixel(375, 150), kMark);
}

TEST_F(Pane, ItComesToRestAsTheMapItself) {
    painted();
    for (int i = 0; i < 5; ++i) {
        move(30, 10);
        painted();
    }
    ASSERT_TRUE(comesToRest());
    const QImage rested = painted();
    window::MapPane other{[] {}};
    QFont font;
    font.setPixelSize(12);
    other.stand({{400, 300}, {}, {400, 300}, 1, 1, font, Qt::black});
    other.show(seaWithMark(0), -1, pane.sight());
    QImage fresh(400, 300, QImage::Format_RGB32);
    QPainter painter(&fresh);
    other.paint(painter);
    painter.end();
    EXPECT_EQ(rested, fresh);
}

TEST_F(Pane, OtherPlacesAreDrawnAtOnce) {
    painted();
    move(30, 0); // a picture is on its way
    pane.show(seaWithMark(0.25), -1, {{0, 0}, 1});
    const QImage first = painted();
    EXPECT_TRUE(pane.settled());
    EXPECT_EQ(first.pixel(275, 150), kMark);
    QTest::qWait(1);
    EXPECT_EQ(painted(), first) << "what was on its way came too late";
}

TEST_F(Pane, AnotherChoiceKeepsThePictureUntilItIsDrawn) {
    painted();
    pane.show(seaWithMark(0), 0, pane.sight());
    EXPECT_EQ(painted().pixel(200, 150), kMark);
    ASSERT_TRUE(comesToRest());
    EXPECT_EQ(painted().pixel(200, 150), 0xFFFFFFFF);
}

TEST_F(Map, AScreenReaderHearsWhatItSays) {
    then([&] {
        QAccessibleInterface* said = QAccessible::queryAccessibleInterface(&map());
        ASSERT_NE(said, nullptr);
        EXPECT_EQ(said->role(), QAccessible::Chart);
        EXPECT_EQ(said->text(QAccessible::Name).toStdString(), routes().map.scene.summary);
        EXPECT_TRUE(stage().tabTo(routes().map));
        EXPECT_TRUE(stage().tabTo(routes().routesList)) << "the same as a table";
        end();
    });
    play();
}

} // namespace gatewise::test
