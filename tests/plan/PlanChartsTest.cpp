#include "plan/PlanCharts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace gatewise {
namespace {

/// Two airports and a top of climb between them, `lon1` and `lon2` degrees east on one parallel.
Plan flown(float latitude, float lon1, float lon2) {
    Plan plan;
    plan.planLast = 2;
    plan.totalDistance = 600;
    plan.peakAltitude = 33000;
    plan.departureAirport.Icao = "KAAA";
    plan.departureAirport.Elevation = 1000;
    plan.destinationAirport.Icao = "KBBB";
    for (int i = 0; i <= 2; ++i) {
        plan.at(i).pointLatitude = latitude;
        plan.at(i).pointLongitude = lon1 + (lon2 - lon1) * static_cast<float>(i) / 2;
        plan.at(i).pointTotalDistance = 300 * static_cast<float>(i);
    }
    plan.at(0).pointName = "KAAA";
    plan.at(1).pointName = "*TOC*";
    plan.at(1).pointType = "TC";
    plan.at(1).pointAltitude = 33000;
    plan.at(2).pointName = "KBBB";
    return plan;
}

const DrawingLine& route(const Drawing& drawing) {
    return *std::find_if(drawing.lines.begin(), drawing.lines.end(),
                         [](const DrawingLine& line) { return line.tone == Tone::Route; });
}

TEST(ProfileDrawing, ClimbsFromTheDepartureAndEndsAtTheDestination) {
    const Drawing drawing = profileDrawing(flown(40, -80, -70));
    const auto& points = route(drawing).points;
    ASSERT_EQ(points.size(), 3U);
    EXPECT_LT(points[0].x, points[1].x);
    EXPECT_LT(points[1].x, points[2].x);
    EXPECT_LT(points[1].y, points[0].y) << "up is towards the top of the sheet";
    EXPECT_GT(points[2].y, points[0].y) << "the destination lies lower than the departure";
    EXPECT_EQ(drawing.summary,
              "Vertical profile, KAAA to KBBB, 600 nautical miles, highest altitude 33000 feet");
}

TEST(ProfileDrawing, APlanWithoutLengthIsEmpty) {
    Plan plan;
    EXPECT_TRUE(profileDrawing(plan).lines.empty());
    EXPECT_TRUE(mapDrawing(plan).lines.empty());
}

std::string textsOf(const Drawing& drawing) {
    std::string out;
    for (const auto& text : drawing.texts) out += text.text + " ";
    return out;
}

TEST(ProfileNotes, TellTimesLevelsAndEveryPoint) {
    Plan plan = flown(40, -80, -70);
    plan.at(1).pointMinutes = 40;
    plan.at(2).pointMinutes = 70;
    const Drawing notes = profileNotes(plan);
    EXPECT_EQ(textsOf(notes), "0:10 0:20 0:30 0:40 0:50 1:00 1:10 ")
        << "no level lasts: two legs, up and down";
    ASSERT_EQ(notes.marks.size(), 3U);
    EXPECT_EQ(notes.marks[1].id, 1);
    EXPECT_EQ(notes.marks[1].tone, Tone::Top);
    EXPECT_EQ(notes.marks[1].words, "*TOC*, 33000 ft, 0:40");
    EXPECT_EQ(notes.marks[0].words, "KAAA, 1000 ft, 0:00");
    // The marks lie on the profile, and 0:20 halfway to the point that is passed at 0:40.
    const auto points = route(profileDrawing(plan)).points;
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(notes.marks[i].at, points[i]);
    EXPECT_NEAR(notes.texts[1].at.x, (points[0].x + points[1].x) / 2, 1e-9);
}

TEST(ProfileNotes, ALevelIsSaidOnceForEachStretch) {
    Plan plan = flown(40, -80, -70);
    plan.planLast = 5;
    const int feet[] = {0, 31000, 31000, 31000, 35000, 0};
    for (int i = 0; i <= 5; ++i) {
        plan.at(i) = plan.at(0);
        plan.at(i).pointAltitude = feet[i];
        plan.at(i).pointTotalDistance = 120 * static_cast<float>(i);
    }
    EXPECT_EQ(textsOf(profileNotes(plan)), "FL310 ");
    plan.at(4).pointAltitude = 31000;
    plan.at(3).pointTotalDistance = 230; // the second stretch is a short one
    plan.at(2).pointTotalDistance = 225;
    EXPECT_EQ(textsOf(profileNotes(plan)), "FL310 ");
}

/// Twenty legs of one level, none of them long: it stands once, in the middle of all.
TEST(ProfileNotes, ALevelOfManyShortLegsIsSaidInTheirMiddle) {
    Plan plan = flown(40, -80, -70);
    plan.planLast = 22;
    for (int i = 0; i <= 22; ++i) {
        plan.at(i) = plan.at(0);
        plan.at(i).pointAltitude = 41000;
        plan.at(i).pointTotalDistance = 600 * static_cast<float>(i) / 22;
    }
    const Drawing notes = profileNotes(plan);
    ASSERT_EQ(textsOf(notes), "FL410 ");
    const auto points = route(profileDrawing(plan)).points;
    EXPECT_NEAR(notes.texts[0].at.x, (points[1].x + points[21].x) / 2, 1e-6);
    for (int i = 4; i < 22; ++i) plan.at(i).pointAltitude = i % 2 == 0 ? 33000 : 35000;
    EXPECT_EQ(textsOf(profileNotes(plan)), "") << "no level lasts";
}

TEST(ProfileNotes, AComputedPointHasNoFrequency) {
    Plan plan = flown(40, -80, -70);
    for (const char* type : {"TC", "TD", "SU", "SD"}) {
        plan.at(1).pointType = type;
        plan.at(1).pointFrequency = "112.70";
        EXPECT_EQ(pointWords(plan, 1), "*TOC*, 33000 ft, 0:00") << type;
    }
    plan.at(1).pointType = "V ";
    EXPECT_EQ(pointWords(plan, 1), "*TOC*, 112.70, 33000 ft, 0:00");
}

TEST(ProfileNotes, APlanWithoutLengthOrTimesHasNone) {
    EXPECT_TRUE(profileNotes(Plan()).marks.empty());
    EXPECT_EQ(textsOf(profileNotes(flown(40, -80, -70))), "");
    Plan endless = flown(40, -80, -70);
    endless.at(2).pointMinutes = 3000;
    EXPECT_EQ(textsOf(profileNotes(endless)), "");
}

TEST(MapDrawing, PositionsThatDoNotExistAreNotDrawn) {
    Plan plan = flown(40, -80, -70);
    plan.at(1).pointLatitude = std::nanf("");
    EXPECT_TRUE(mapDrawing(plan).lines.empty());
    plan.at(1).pointLatitude = 91;
    EXPECT_TRUE(mapDrawing(plan).lines.empty());
}

TEST(MapDrawing, EastIsRightAndAGreatCircleBowsToThePole) {
    const Drawing drawing = mapDrawing(flown(50, -120, -60));
    const auto& points = route(drawing).points;
    EXPECT_LT(points.front().x, points.back().x);
    const Drawing straight = mapDrawing(flown(0, -120, -60));
    const auto& line = route(straight).points;
    for (const auto& p : line) EXPECT_NEAR(p.y, 0.5, 1e-6) << "the equator is a straight line";
}

TEST(MapDrawing, CrossesTheDateLineInOnePiece) {
    Plan plan = flown(10, 170, 190);
    plan.at(2).pointLongitude = -170;
    plan.at(1).pointLongitude = 180;
    const auto drawing = mapDrawing(plan);
    const auto& points = route(drawing).points;
    for (std::size_t i = 1; i < points.size(); ++i) EXPECT_LT(std::fabs(points[i].x - points[i - 1].x), 0.1);
    for (const auto& p : points) {
        EXPECT_GE(p.x, 0.0);
        EXPECT_LE(p.x, 1.0);
    }
}

TEST(MapDrawing, APolarRouteStaysOnTheSheet) {
    Plan plan = flown(85, 10, 10);
    plan.at(2).pointLongitude = -170;
    const auto drawing = mapDrawing(plan);
    for (const auto& p : route(drawing).points) {
        EXPECT_GE(p.y, 0.0);
        EXPECT_LE(p.y, 1.0);
    }
}

/// Two airports at sea level 1,000 miles apart and two fixes between them, for the words of the marks.
Plan twoFixes(float miles1, std::int32_t feet1, float miles2, std::int32_t feet2) {
    Plan plan = flown(0, 0, 10);
    plan.departureAirport.Elevation = plan.destinationAirport.Elevation = 0;
    plan.planLast = 3;
    plan.totalDistance = 1000;
    plan.at(3) = plan.at(2);
    plan.at(3).pointTotalDistance = 1000;
    plan.at(1).pointName = "ONE";
    plan.at(2).pointName = "TWO";
    plan.at(1).pointType = plan.at(2).pointType = "V ";
    plan.at(1).pointTotalDistance = miles1;
    plan.at(2).pointTotalDistance = miles2;
    plan.at(1).pointAltitude = feet1;
    plan.at(2).pointAltitude = feet2;
    return plan;
}

std::string wordsOf(const Drawing& drawing) {
    std::string words;
    for (const DrawingMark& mark : drawing.marks) words += mark.label + "/";
    return words;
}

TEST(ProfileDrawing, AWordGivesWayToOneThatStandsClose) {
    // A sheet 0.88 wide shows 1,000 miles, one 0.8 high 44,000 feet: a word takes 125 miles and 6,600 feet.
    const auto words = [](float miles2, std::int32_t feet2) {
        return wordsOf(profileDrawing(twoFixes(400, 40000, miles2, feet2)));
    };
    EXPECT_EQ(words(524, 40000), "KAAA/KBBB/ONE//");
    EXPECT_EQ(words(526, 40000), "KAAA/KBBB/ONE/TWO/");
    EXPECT_EQ(words(276, 40000), "KAAA/KBBB/ONE//");
    EXPECT_EQ(words(274, 40000), "KAAA/KBBB/ONE/TWO/");
    EXPECT_EQ(words(400, 33450), "KAAA/KBBB/ONE//");
    EXPECT_EQ(words(400, 33350), "KAAA/KBBB/ONE/TWO/");
}

TEST(MapDrawing, AWordGivesWayToOneThatStandsClose) {
    // Ten degrees of the equator in a sheet of twelve: a word takes 2.88 of them across and 0.96 upward.
    const auto words = [](float latitude1, float latitude2, float longitude2) {
        Plan plan = twoFixes(400, 0, 500, 0);
        plan.at(1).pointLatitude = latitude1;
        plan.at(1).pointLongitude = 5;
        plan.at(2).pointLatitude = latitude2;
        plan.at(2).pointLongitude = longitude2;
        plan.at(3).pointLongitude = 10;
        return wordsOf(mapDrawing(plan));
    };
    EXPECT_EQ(words(4, 0, 2.92F), "KAAA/KBBB/ONE/TWO/");
    EXPECT_EQ(words(4, 0, 2.84F), "KAAA/KBBB/ONE//"); // the departure stands too close
    EXPECT_EQ(words(4, 0, 7.06F), "KAAA/KBBB/ONE/TWO/");
    EXPECT_EQ(words(4, 0, 7.16F), "KAAA/KBBB/ONE//");
    EXPECT_EQ(words(0, 0.94F, 5), "KAAA/KBBB/ONE//");
    EXPECT_EQ(words(0, 0.98F, 5), "KAAA/KBBB/ONE/TWO/");
    EXPECT_EQ(words(0, -0.98F, 5), "KAAA/KBBB/ONE/TWO/");
}

TEST(MapDrawing, WordsOfAirportsComeBeforeThoseOfTopsAndFixes) {
    Plan plan = twoFixes(400, 0, 500, 0);
    plan.at(1).pointLongitude = 1;
    plan.at(2).pointLongitude = 5;
    plan.at(2).pointType = "TD";
    plan.at(3).pointLongitude = 10;
    EXPECT_EQ(wordsOf(mapDrawing(plan)), "KAAA/KBBB/TWO//");
    plan.at(1).pointLongitude = 4;
    EXPECT_EQ(wordsOf(mapDrawing(plan)), "KAAA/KBBB/TWO//");
}

/// Points of the grid of one degree inside the sheet, every line looked at: azimuthal equidistant around the
/// middle, 12 degrees to either side and 4.8 up and down.
double gridPoints(double middle) {
    const double degree = std::acos(-1.0) / 180;
    const auto inside = [&](double latitude, double longitude) {
        if (std::fabs(latitude - middle) > 15) return false; // the corners are 13 degrees away
        const double phi = latitude * degree;
        const double lambda = (longitude - 4.5) * degree;
        const double cosine = std::sin(middle * degree) * std::sin(phi) +
                              std::cos(middle * degree) * std::cos(phi) * std::cos(lambda);
        const double arc = std::acos(std::clamp(cosine, -1.0, 1.0)) / degree;
        const double east = std::cos(phi) * std::sin(lambda);
        const double north = std::cos(middle * degree) * std::sin(phi) -
                             std::sin(middle * degree) * std::cos(phi) * std::cos(lambda);
        const double size = std::hypot(east, north);
        const double scale = size > 0 ? arc / size : 0;
        return std::fabs(east * scale) <= 12 && std::fabs(north * scale) <= 4.8;
    };
    double count = 0;
    for (int line = -80; line <= 80; ++line) {
        for (int tenth = -1800; tenth <= 1800; ++tenth) count += inside(line, tenth / 10.0) ? 1 : 0;
    }
    for (int line = -180; line < 180; ++line) {
        for (int tenth = -800; tenth <= 800; ++tenth) count += inside(tenth / 10.0, line) ? 1 : 0;
    }
    return count;
}

TEST(MapDrawing, TheGridFillsTheSheetAtEveryLatitude) {
    for (const float middle : {0.25F, 44.25F, -70.25F, 83.75F}) {
        Plan plan = flown(middle, 4.5F, 4.5F);
        plan.at(0).pointLatitude = middle - 4;
        plan.at(2).pointLatitude = middle + 4;
        double drawn = 0;
        for (const DrawingLine& line : mapDrawing(plan).lines)
            drawn += line.tone == Tone::Grid ? static_cast<double>(line.points.size()) : 0;
        // A piece of a single point is none; where a line meets the edge, the last digit decides.
        const double all = gridPoints(static_cast<double>(middle));
        EXPECT_GT(drawn, 100) << middle;
        EXPECT_NEAR(drawn, all, 6) << middle;
    }
}

} // namespace
} // namespace gatewise
