#include "window/SmoothLines.h"

#include <algorithm>
#include <cmath>

namespace gatewise::window {

namespace {

constexpr double kFar = 1e9;  // pixels, beyond which no part of a line is sought
constexpr double kThin = 1.5; // pixels, up to which no bend shows a gap

/// No for what is no number, too.
bool isNear(const QPointF& p) {
    return std::fabs(p.x()) < kFar && std::fabs(p.y()) < kFar;
}

/// Whether a line runs rather to the side than up or down.
bool lies(const QPointF& way) {
    return std::fabs(way.x()) >= std::fabs(way.y());
}

/// A line is drawn as columns of pixels where it rather lies and as rows where it rather stands: each column
/// takes the ink between the line's two edges, and belongs to one stretch between two points.
class Pen {
public:
    Pen(QImage& picture, const QRect& clip, double width, QRgb ink)
        : clip_(clip & picture.rect()), pixels_(reinterpret_cast<QRgb*>(picture.bits())),
          row_(picture.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb))), half_(width / 2), ink_(ink) {}

    void stretch(const QPointF& from, const QPointF& to) const {
        const QPointF way = to - from;
        if (lies(way))
            columns({from.x(), from.y(), to.x(), to.y()},
                    {clip_.left(), clip_.right(), clip_.top(), clip_.bottom()}, 1, row_);
        else
            columns({from.y(), from.x(), to.y(), to.x()},
                    {clip_.top(), clip_.bottom(), clip_.left(), clip_.right()}, row_, 1);
    }

    /// Round, at an end of the line and where it bends.
    void dot(const QPointF& at) const {
        const double reach = half_ + 0.5;
        const int right = within(std::ceil(at.x() + reach), clip_.left(), clip_.right() + 1);
        const int bottom = within(std::ceil(at.y() + reach), clip_.top(), clip_.bottom() + 1);
        for (int y = within(std::floor(at.y() - reach), clip_.top(), clip_.bottom() + 1); y < bottom; ++y) {
            for (int x = within(std::floor(at.x() - reach), clip_.left(), clip_.right() + 1); x < right;
                 ++x) {
                const QPointF way = QPointF(x + 0.5, y + 0.5) - at;
                const double distance = std::sqrt(QPointF::dotProduct(way, way));
                mix(pixels_[y * row_ + x],
                    std::min(distance + 0.5, half_) - std::max(distance - 0.5, -half_));
            }
        }
    }

    [[nodiscard]] bool bends(const QPointF& way, const QPointF& next) const {
        return 2 * half_ > kThin && (lies(way) != lies(next) || QPointF::dotProduct(way, next) <= 0);
    }

private:
    struct Way {
        double from, fromAside, to, toAside;
    };
    struct Bounds {
        int first, last, firstAside, lastAside;
    };

    static int within(double place, int least, int most) {
        return static_cast<int>(std::clamp(place, static_cast<double>(least), static_cast<double>(most)));
    }

    /// Those whose middle lies between the ends. `step` and `aside` are the pixels from one to the next along
    /// the way and across it.
    void columns(const Way& way, const Bounds& bounds, qsizetype step, qsizetype aside) const {
        const double length = way.to - way.from;
        if (length == 0) return;
        const double slope = (way.toAside - way.fromAside) / length;
        const double half = half_ * std::sqrt(1 + slope * slope);
        const int from = within(std::ceil(std::min(way.from, way.to) - 0.5), bounds.first, bounds.last + 1);
        const int to = within(std::ceil(std::max(way.from, way.to) - 0.5), bounds.first, bounds.last + 1);
        for (int i = from; i < to; ++i) {
            const double middle = way.fromAside + slope * (i + 0.5 - way.from);
            column(pixels_ + i * step, aside, bounds, middle - half, middle + half);
        }
    }
    void column(QRgb* column, qsizetype aside, const Bounds& bounds, double from, double to) const {
        const int first = within(from, bounds.firstAside, bounds.lastAside + 1);
        const int last = within(to, bounds.firstAside - 1, bounds.lastAside);
        if (first > last) return;
        mix(column[first * aside], std::min(first + 1.0, to) - std::max<double>(first, from));
        if (first == last) return;
        for (int i = first + 1; i < last; ++i) column[i * aside] = ink_;
        mix(column[last * aside], to - last);
    }
    void mix(QRgb& pixel, double share) const {
        if (share <= 0) return;
        const auto part = static_cast<unsigned>(std::min(share, 1.0) * 256 + 0.5);
        const auto mixed = [&](unsigned mask) {
            return (((pixel & mask) * (256 - part) + (ink_ & mask) * part) >> 8) & mask;
        };
        pixel = 0xFF000000 | mixed(0x00FF00FF) | mixed(0x0000FF00);
    }

    QRect clip_;
    QRgb* pixels_;
    qsizetype row_; // pixels
    double half_;
    QRgb ink_;
};

} // namespace

void drawSmoothLine(QImage& picture, const QRect& clip, const QPolygonF& line, double width, QRgb ink) {
    if (picture.format() != QImage::Format_RGB32 || !(width > 0) || line.isEmpty()) return;
    if (!std::all_of(line.begin(), line.end(), isNear)) return;
    const Pen pen(picture, clip, width, ink);
    for (qsizetype i = 1; i < line.size(); ++i) {
        pen.stretch(line[i - 1], line[i]);
        if (i + 1 < line.size() && pen.bends(line[i] - line[i - 1], line[i + 1] - line[i])) pen.dot(line[i]);
    }
    pen.dot(line.first());
    if (line.last() != line.first()) pen.dot(line.last());
}

} // namespace gatewise::window
