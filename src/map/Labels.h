#pragma once

#include <optional>
#include <string_view>
#include <vector>

// Words on a picture that do not lie on each other.

namespace gatewise::map {

struct Box {
    double left = 0, top = 0, width = 0, height = 0;
    [[nodiscard]] bool meets(const Box& other) const {
        return left < other.left + other.width && other.left < left + width &&
               top < other.top + other.height && other.top < top + height;
    }
};

/// Finds room for words beside their points on a sheet of `width` by `height` pixels. Who asks first gets the
/// better place.
class Labels {
public:
    Labels(double width, double height);

    /// Room that is taken already, by a mark or another word.
    void keepOff(const Box& box);
    /// An edge that words leave free where they can.
    void keepOffLine(double x1, double y1, double x2, double y2);

    /// The box for a word beside a mark of `radius` at (x, y): above, below, right, left, then the corners;
    /// off the lines where it can be; nothing when there is no free place inside the sheet.
    std::optional<Box> place(double x, double y, double radius, double wordWidth, double wordHeight);
    /// The same, but nothing where it would lie upon a line.
    std::optional<Box> placeOffLines(double x, double y, double radius, double wordWidth, double wordHeight);

private:
    struct Edge {
        double x1, y1, x2, y2;
    };
    [[nodiscard]] bool isFree(const Box& box) const;
    [[nodiscard]] bool crosses(const Box& box) const;
    template<class Visit> void cells(const Box& box, Visit visit) const;

    double width_, height_;
    int columns_, rows_;
    std::vector<std::vector<Box>> taken_; // of each cell of a raster
    std::vector<std::vector<Edge>> edges_;
};

} // namespace gatewise::map
