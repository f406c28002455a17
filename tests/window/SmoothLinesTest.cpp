#include "window/SmoothLines.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

using namespace gatewise::window;

namespace {

constexpr QRgb kInk = 0xFFFFFFFF;

/// A black sheet, onto which lines are drawn in white: a pixel's blue is its share in 255ths.
class SmoothLines : public testing::Test {
protected:
    void SetUp() override { sheet.fill(Qt::black); }
    void draw(const QPolygonF& line, double width) { drawSmoothLine(sheet, sheet.rect(), line, width, kInk); }
    [[nodiscard]] int at(int x, int y) const { return qBlue(sheet.pixel(x, y)); }
    /// Pixels' worth of ink.
    [[nodiscard]] double ink() const {
        double sum = 0;
        for (int y = 0; y < sheet.height(); ++y) {
            for (int x = 0; x < sheet.width(); ++x) sum += at(x, y) / 255.0;
        }
        return sum;
    }
    QImage sheet{100, 80, QImage::Format_RGB32};
};

TEST_F(SmoothLines, ALineThroughTheMiddlesOfARowFillsIt) {
    draw({{10, 20.5}, {30, 20.5}}, 1);
    for (int x = 10; x < 30; ++x) EXPECT_EQ(at(x, 20), 255) << x;
    EXPECT_EQ(at(20, 19), 0);
    EXPECT_EQ(at(20, 21), 0);
}

TEST_F(SmoothLines, ALineBetweenTwoRowsIsSharedByThem) {
    draw({{10, 20}, {30, 20}}, 1);
    EXPECT_EQ(at(20, 19), 127);
    EXPECT_EQ(at(20, 20), 127);
    EXPECT_EQ(at(20, 18), 0);
    EXPECT_EQ(at(20, 21), 0);
}

TEST_F(SmoothLines, AWideLineHasAFullMiddleAndSoftEdges) {
    draw({{40.25, 5}, {40.25, 60}}, 3); // from 38.75 to 41.75
    EXPECT_EQ(at(37, 30), 0);
    EXPECT_EQ(at(38, 30), 63);
    EXPECT_EQ(at(39, 30), 255);
    EXPECT_EQ(at(40, 30), 255);
    EXPECT_EQ(at(41, 30), 191);
    EXPECT_EQ(at(42, 30), 0);
}

TEST_F(SmoothLines, AThinLineTakesItsShare) {
    draw({{10, 20.5}, {30, 20.5}}, 0.5);
    EXPECT_EQ(at(20, 20), 127);
}

/// A line at any angle has as much ink as its length times its width, and its two round ends.
TEST_F(SmoothLines, EachAngleHasTheSameInk) {
    for (int angle = 0; angle < 360; angle += 7) {
        for (const double width : {1.0, 2.5, 4.0}) {
            sheet.fill(Qt::black);
            const QPointF way(std::cos(angle * M_PI / 180), std::sin(angle * M_PI / 180));
            draw({QPointF(50, 40) - 30 * way, QPointF(50, 40) + 30 * way}, width);
            EXPECT_NEAR(ink(), 60 * width + M_PI * width * width / 4, 0.03 * 60 * width + 0.8)
                << angle << " degrees, " << width;
        }
    }
}

/// As the toolkit's painter draws it, pixel by pixel but for the ends: no edge is off by a sixth.
TEST_F(SmoothLines, ItIsThePaintersLine) {
    for (const QPointF& to : {QPointF(90, 31), QPointF(70, 75), QPointF(52, 78), QPointF(95, 3)}) {
        sheet.fill(Qt::black);
        draw({{8, 6.3}, to}, 2.4);
        QImage other(sheet.size(), sheet.format());
        other.fill(Qt::black);
        QPainter painter(&other);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor::fromRgb(kInk), 2.4));
        painter.drawLine(QPointF(8, 6.3), to);
        painter.end();
        int worst = 0;
        for (int y = 12; y < 70; ++y) {
            for (int x = 14; x < 46; ++x)
                worst = std::max(worst, std::abs(at(x, y) - qBlue(other.pixel(x, y))));
        }
        EXPECT_LT(worst, 255 / 6) << to.x() << ' ' << to.y();
    }
}

TEST_F(SmoothLines, PointsOnALineChangeNothing) {
    draw({{10, 20.25}, {70, 20.25}}, 2);
    const QImage whole = sheet;
    sheet.fill(Qt::black);
    QPolygonF line;
    for (int i = 0; i <= 60; ++i) line << QPointF(10 + i, 20.25);
    draw(line, 2);
    EXPECT_EQ(sheet, whole);
}

TEST_F(SmoothLines, ABendHasNoGap) {
    draw({{20, 60}, {50, 20}, {80, 60}}, 5);
    EXPECT_EQ(at(50, 20), 255);
    EXPECT_EQ(at(49, 19), 255);
    sheet.fill(Qt::black);
    draw({{20, 20}, {60, 20}, {60, 60}}, 6);
    EXPECT_EQ(at(61, 19), 255) << "outside of the corner";
    EXPECT_EQ(at(58, 21), 255);
}

TEST_F(SmoothLines, APointIsADot) {
    draw({{30.5, 30.5}, {30.5, 30.5}}, 3);
    EXPECT_EQ(at(30, 30), 255);
    EXPECT_EQ(at(29, 30), 255);
    EXPECT_NEAR(ink(), M_PI * 1.5 * 1.5, 0.3);
}

TEST_F(SmoothLines, InkMixesWithWhatLiesBelow) {
    sheet.fill(QColor(0x20, 0x40, 0x60));
    drawSmoothLine(sheet, sheet.rect(), {{10, 20}, {30, 20}}, 1, 0xFFE00080);
    EXPECT_EQ(sheet.pixel(20, 20), 0xFF802070U);
    EXPECT_EQ(sheet.pixel(20, 25), 0xFF204060U);
}

TEST_F(SmoothLines, NothingIsDrawnBeyondTheClip) {
    const QRect clip(20, 10, 30, 20);
    drawSmoothLine(sheet, clip, {{-1e7, -1e7}, {1e7, 1e7}}, 4, kInk);
    drawSmoothLine(sheet, clip, {{-50, 10}, {300, 10.2}}, 4, kInk);
    drawSmoothLine(sheet, clip, {{20.1, -500}, {20, 9000}, {49.9, 9000}, {49.8, -500}}, 4, kInk);
    for (int y = 0; y < sheet.height(); ++y) {
        for (int x = 0; x < sheet.width(); ++x) {
            if (clip.contains(x, y)) continue;
            ASSERT_EQ(at(x, y), 0) << x << ' ' << y;
        }
    }
    EXPECT_EQ(at(25, 25), 255);
    EXPECT_EQ(at(20, 15), 255);
    EXPECT_EQ(at(49, 15), 255);
    EXPECT_EQ(at(30, 10), 255);
}

TEST_F(SmoothLines, WhatIsNoLineIsNotDrawn) {
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    draw({}, 3);
    draw({{10, 10}, {nothing, 20}}, 3);
    draw({{10, 10}, {std::numeric_limits<double>::infinity(), 20}}, 3);
    draw({{10, 10}, {20, 20}}, 0);
    draw({{10, 10}, {20, 20}}, nothing);
    drawSmoothLine(sheet, {}, {{10, 10}, {20, 20}}, 3, kInk);
    drawSmoothLine(sheet, {200, 200, 10, 10}, {{10, 10}, {20, 20}}, 3, kInk);
    EXPECT_EQ(ink(), 0);
    draw({{1e300, 10}, {-1e300, 10}}, 2);
    EXPECT_EQ(ink(), 0);
    draw({{9e8, 10}, {-9e8, 10}}, 2);
    draw({{10, 9e8}, {10, -9e8}}, 2);
    EXPECT_EQ(at(50, 10), 255);
    QImage none;
    drawSmoothLine(none, {0, 0, 10, 10}, {{1, 1}, {5, 5}}, 1, kInk);
    EXPECT_TRUE(none.isNull());
}

} // namespace
