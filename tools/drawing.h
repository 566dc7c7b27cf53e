// A picture in memory: rectangles, a small set of letters, and the bytes of a PNG file at the end.
// Points are counted from the top left corner.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "colour_map.h"

namespace spectrum {

class Drawing {
public:
    Drawing(int width, int height, Colour background);

    // `fill` and `text` cut off what falls outside.
    void fill(int left, int top, int width, int height, Colour colour);
    // `left` and `top` are those of the first letter. Letters that are not in the set are left blank.
    void text(int left, int top, std::string_view letters, Colour colour);

    static int textWidth(std::string_view letters);
    static constexpr int textHeight = 14;

    int across() const { return width; }
    int down() const { return height; }
    Colour at(int x, int y) const {
        return points[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }

    std::string png() const;

private:
    int width, height;
    std::vector<Colour> points;
};

}  // namespace spectrum
