// A picture of rectangles, words and cell pictures, laid out once for PNG and SVG. Positions are in pixels from the top
// left corner.
#pragma once

#include <string>
#include <vector>

#include "drawing.h"

namespace spectrum {

enum class Align { Left, Middle, Right };

class Scene {
public:
    Scene(int width, int height, Colour background);

    void fill(int left, int top, int width, int height, Colour colour);
    // `x` is the place that the words are aligned to, `top` that of their first pixels.
    void text(int x, int top, Align align, const std::string& words, Colour colour);
    // Each point of the picture is a cell of that many pixels.
    void picture(int left, int top, int cellWidth, int cellHeight, Drawing cells);

    std::string png() const;
    std::string svg() const;

private:
    struct Box {
        int left, top, width, height;
        Colour colour;
    };
    struct Words {
        int x, top;
        Align align;
        std::string words;
        Colour colour;
    };
    struct Picture {
        int left, top, cellWidth, cellHeight;
        Drawing cells;
    };

    int width, height;
    Colour background;
    std::vector<Box> boxes;
    std::vector<Words> texts;
    std::vector<Picture> pictures;  // over the boxes
};

// Six digits at most. No minus sign in front of a zero.
std::string shortLabel(double value);

}  // namespace spectrum
