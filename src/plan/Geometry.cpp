#include "plan/Geometry.h"

#include "platform/Files.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

namespace gatewise {

namespace {

constexpr double kPi = 3.14159265358979;
constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();

double radians(double degrees) {
    return degrees * kPi / 180;
}
double degrees(double radians) {
    return radians * 180 / kPi;
}
double half(double degrees) {
    return radians(degrees / 2);
}

/// Napier's analogies divide by the sides: none of them may be 0.
double keptFromZero(double side) {
    return side >= -0.0002777 && side <= 0.0002777 ? side + 0.0005554 : side;
}

/// The arc cosine in degrees; not a number from -1 and 1 outward.
double arcCosine(double c) {
    const double root = std::sqrt(1 - c * c);
    if (!(root > 0)) return kNothing;
    return degrees(std::atan(-c / root) + 2 * std::atan(1.0));
}

} // namespace

float Distance(float lat1, float lon1, float lat2, float lon2, float& lastCourse) {
    const double phi1 = lat1;
    const double phi2 = lat2;
    const double halfD = half(keptFromZero(phi2 - phi1));
    const double halfL = half(keptFromZero(static_cast<double>(lon2) - static_cast<double>(lon1)));
    const double halfS = half(keptFromZero(std::fabs(phi1 + phi2)));

    const double tanL = std::tan(halfL);
    const double a = degrees(std::atan(std::cos(halfD) / std::sin(halfS) / tanL));
    const double b = degrees(std::atan(std::sin(halfD) / std::cos(halfS) / tanL));
    if (!std::isfinite(a - b)) return std::numeric_limits<float>::quiet_NaN();
    lastCourse = static_cast<float>(a - b);
    const double arc = std::atan(std::tan(halfD) * std::sin(radians(a)) / std::sin(radians(b)));
    return static_cast<float>(2 * degrees(arc) * 60);
}

double offsetLatitude(std::int32_t offsetDistance, double lat1, double course) {
    const double co = radians(90 - lat1);
    const double d = radians(offsetDistance / 60.0);
    const double c = std::cos(d) * std::cos(co) + std::sin(d) * std::sin(co) * std::cos(radians(course));
    return 90 - arcCosine(c);
}

float offsetLongitude(std::int32_t offsetDistance, double lat1, double lon1, double course, double lat2) {
    const double co1 = radians(90 - lat1);
    const double co2 = radians(90 - lat2);
    const double d = radians(offsetDistance / 60.0);
    const double sine = std::sin(radians(course == 0 ? 1E-8 : course));

    auto q =
        static_cast<float>((std::cos(d) - std::cos(co1) * std::cos(co2)) / (std::sin(co1) * std::sin(co2)));
    if (q > 0.9999999 && q < 1.0000001) q = 0.9999999F;
    if (q > -1.0000001 && q < -0.9999999) q = -0.9999999F;
    auto result = static_cast<float>(lon1 + arcCosine(static_cast<double>(q)) * (sine / std::fabs(sine)));
    if (result <= -180)
        result += 360;
    else if (result > 180)
        result -= 360;
    return result;
}

namespace {

// 360 columns of longitude, each of 181 rows of latitude from -90 to 90, behind a header.
constexpr long long kMagneticHeader = 136;
constexpr long long kMagneticRows = 181;
constexpr long long kMagneticLength = kMagneticHeader + 2LL * 360 * kMagneticRows;

} // namespace

MagneticTable::MagneticTable(std::string_view FsPath) {
    if (FsPath.empty()) return;
    const files::RecordFile file(std::string(FsPath) + "\\SCENERY\\magdec.bgl");
    file_.resize(static_cast<std::size_t>(std::min(file.length(), kMagneticLength)));
    if (!file.read(0, file_)) file_.clear();
}

float MagneticTable::magneticHeading(float lat, float lon, float trueHeading) const {
    constexpr float kFarOff = 1000; // no position on a globe; its whole part would not be one either
    if (!(std::fabs(lat) < kFarOff && std::fabs(lon) < kFarOff)) return trueHeading;
    const auto latitude = static_cast<long long>(lat);
    auto longitude = static_cast<long long>(lon);
    if (longitude < 0) longitude += 360;
    const long long offset = kMagneticHeader + 2 * (longitude * kMagneticRows + latitude + 90);
    if (offset < 0) return trueHeading;
    const auto value = numberAt<std::int16_t>(file_, static_cast<std::size_t>(offset));
    if (!value) return trueHeading;

    double magnetic = static_cast<double>(trueHeading) - *value * 0.0055;
    if (magnetic < 0)
        magnetic += 360;
    else if (magnetic >= 360)
        magnetic -= 360;
    const auto heading = static_cast<float>(magnetic);
    return heading == 360.0F ? 0.0F : heading; // a hair below 360 is no longer below it as a 32-bit float
}

} // namespace gatewise
