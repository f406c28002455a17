#include "window/Tone.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>

namespace gatewise::window {

namespace {

std::atomic<bool> strong = false; // maps are drawn on a thread of their own, too

constexpr double kBlack = 0.27; // what is darker than a key's face becomes black
constexpr double kWhite = 0.80; // what is lighter than a caption becomes white
constexpr double kLit = 0.70;   // an edge that is lighter is lit
// Darker than the night shade of a clock: ink on paper.
constexpr double kInk = 0.41;
constexpr double kLeast = 7; // contrast of a text to black

double stretched(double value) {
    return std::clamp((value - kBlack) / (kWhite - kBlack), 0.0, 1.0);
}

double linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

/// Contrast to black, 1 to 21.
double contrast(const QColor& color) {
    const double light =
        0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    return (light + 0.05) / 0.05;
}

QColor mixed(const QColor& color, const QColor& other, double share) {
    const auto part = [share](float a, float b) { return static_cast<float>(a * (1 - share) + b * share); };
    return QColor::fromRgbF(part(color.redF(), other.redF()), part(color.greenF(), other.greenF()),
                            part(color.blueF(), other.blueF()), color.alphaF());
}

} // namespace

bool highContrast() {
    return strong;
}

void setHighContrast(bool on) {
    strong = on;
}

QColor groundOf(const QColor& color) {
    if (!strong || !color.isValid()) return color;
    const double most = std::max({color.redF(), color.greenF(), color.blueF()});
    if (most <= 0) return color;
    return mixed(Qt::black, color, std::min(1.0, stretched(most) / most));
}

QColor inkOf(const QColor& color) {
    if (!strong || !color.isValid()) return color;
    if (std::max({color.redF(), color.greenF(), color.blueF()}) < kInk) return Qt::black;
    QColor ink = color;
    for (double share = 0.1; contrast(ink) < kLeast && share <= 1; share += 0.1)
        ink = mixed(color, Qt::white, share);
    return ink;
}

QColor edgeOf(const QColor& color) {
    if (!strong || !color.isValid()) return color;
    // What is lit, as the ring of the keyboard or of a key under the mouse, stays lit.
    if (std::max({color.redF(), color.greenF(), color.blueF()}) > kLit) return color;
    return {0xC5, 0xD0, 0xDA};
}

void setTones(QImage& picture) {
    std::array<double, 256> factors{};
    for (int i = 1; i < 256; ++i) factors[static_cast<std::size_t>(i)] = stretched(i / 255.0) * 255.0 / i;
    picture = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb c = line[x];
            const double f = factors[static_cast<std::size_t>(std::max({qRed(c), qGreen(c), qBlue(c)}))];
            const auto part = [f](int value) {
                return std::min(255, static_cast<int>(std::lround(value * f)));
            };
            line[x] = qRgb(part(qRed(c)), part(qGreen(c)), part(qBlue(c)));
        }
    }
}

} // namespace gatewise::window
