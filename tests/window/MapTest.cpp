#include "map/MapDrawing.h"
#include "window/MapView.h"
#include "window/StageTest.h"

#include <QApplication>
#include <QMouseEvent>
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
};

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
