// Pixels, letters and the way to PNG. The letters are those that axes need, drawn on a grid of 5 by 8 cells whose last
// row is below the line; each cell is a square of 2 by 2 pixels.
#include "drawing.h"

#include <png.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "user_error.h"

namespace spectrum {
namespace {

constexpr int cell = 2, cellsAcross = 5, cellsDown = 8;

struct Glyph {
    char letter;
    std::array<std::uint8_t, cellsDown> rows;  // the highest of five bits is the left cell
};

constexpr Glyph glyphs[] = {
    {'0', {0b01110, 0b10001, 0b10001, 0b10001, 0b10001, 0b10001, 0b01110}},
    {'1', {0b00100, 0b01100, 0b00100, 0b00100, 0b00100, 0b00100, 0b01110}},
    {'2', {0b01110, 0b10001, 0b00001, 0b00110, 0b01000, 0b10000, 0b11111}},
    {'3', {0b01110, 0b10001, 0b00001, 0b00110, 0b00001, 0b10001, 0b01110}},
    {'4', {0b00010, 0b00110, 0b01010, 0b10010, 0b11111, 0b00010, 0b00010}},
    {'5', {0b11111, 0b10000, 0b11110, 0b00001, 0b00001, 0b10001, 0b01110}},
    {'6', {0b00110, 0b01000, 0b10000, 0b11110, 0b10001, 0b10001, 0b01110}},
    {'7', {0b11111, 0b00001, 0b00010, 0b00010, 0b00100, 0b00100, 0b00100}},
    {'8', {0b01110, 0b10001, 0b10001, 0b01110, 0b10001, 0b10001, 0b01110}},
    {'9', {0b01110, 0b10001, 0b10001, 0b01111, 0b00001, 0b00010, 0b01100}},
    {'.', {0b00000, 0b00000, 0b00000, 0b00000, 0b00000, 0b01100, 0b01100}},
    {'-', {0b00000, 0b00000, 0b00000, 0b11111, 0b00000, 0b00000, 0b00000}},
    {'+', {0b00000, 0b00100, 0b00100, 0b11111, 0b00100, 0b00100, 0b00000}},
    {'/', {0b00001, 0b00010, 0b00010, 0b00100, 0b01000, 0b01000, 0b10000}},
    {'B', {0b11110, 0b10001, 0b10001, 0b11110, 0b10001, 0b10001, 0b11110}},
    {'H', {0b10001, 0b10001, 0b10001, 0b11111, 0b10001, 0b10001, 0b10001}},
    {'a', {0b00000, 0b00000, 0b01110, 0b00001, 0b01111, 0b10001, 0b01111}},
    {'c', {0b00000, 0b00000, 0b01111, 0b10000, 0b10000, 0b10000, 0b01111}},
    {'d', {0b00001, 0b00001, 0b01111, 0b10001, 0b10001, 0b10001, 0b01111}},
    {'e', {0b00000, 0b00000, 0b01110, 0b10001, 0b11111, 0b10000, 0b01110}},
    {'k', {0b10000, 0b10000, 0b10010, 0b10100, 0b11000, 0b10100, 0b10010}},
    {'l', {0b01100, 0b00100, 0b00100, 0b00100, 0b00100, 0b00100, 0b01110}},
    {'m', {0b00000, 0b00000, 0b11010, 0b10101, 0b10101, 0b10101, 0b10101}},
    {'n', {0b00000, 0b00000, 0b10110, 0b11001, 0b10001, 0b10001, 0b10001}},
    {'p', {0b00000, 0b00000, 0b11110, 0b10001, 0b10001, 0b11110, 0b10000, 0b10000}},
    {'q', {0b00000, 0b00000, 0b01111, 0b10001, 0b10001, 0b01111, 0b00001, 0b00001}},
    {'s', {0b00000, 0b00000, 0b01111, 0b10000, 0b01110, 0b00001, 0b11110}},
    {'u', {0b00000, 0b00000, 0b10001, 0b10001, 0b10001, 0b10011, 0b01101}},
    {'y', {0b00000, 0b00000, 0b10001, 0b10001, 0b10001, 0b01111, 0b00001, 0b01110}},
    {'z', {0b00000, 0b00000, 0b11111, 0b00010, 0b00100, 0b01000, 0b11111}},
};

}  // namespace

Drawing::Drawing(int pixelsAcross, int pixelsDown, Colour background)
    : width(pixelsAcross),
      height(pixelsDown),
      points(static_cast<std::size_t>(pixelsAcross) * static_cast<std::size_t>(pixelsDown), background) {}

void Drawing::fill(int left, int top, int across, int down, Colour colour) {
    const int right = std::min(left + across, width), bottom = std::min(top + down, height);
    for (int y = std::max(top, 0); y < bottom; ++y) {
        Colour* const row = points.data() + static_cast<std::ptrdiff_t>(y) * width;
        for (int x = std::max(left, 0); x < right; ++x) row[x] = colour;
    }
}

void Drawing::text(int left, int top, std::string_view letters, Colour colour) {
    for (char letter : letters) {
        const auto* glyph =
            std::find_if(std::begin(glyphs), std::end(glyphs), [&](const Glyph& one) { return one.letter == letter; });
        for (int i = 0; glyph != std::end(glyphs) && i < cellsAcross * cellsDown; ++i) {
            const int x = i % cellsAcross, y = i / cellsAcross;
            if ((glyph->rows[static_cast<std::size_t>(y)] >> (cellsAcross - 1 - x) & 1) == 0) continue;
            fill(left + x * cell, top + y * cell, cell, cell, colour);
        }
        left += (cellsAcross + 1) * cell;
    }
}

int Drawing::textWidth(std::string_view letters) {
    return letters.empty() ? 0 : (static_cast<int>(letters.size()) * (cellsAcross + 1) - 1) * cell;
}

std::string Drawing::png() const {
    static_assert(sizeof(Colour) == 3, "libpng reads the points as three bytes each");
    png_image image;
    std::memset(&image, 0, sizeof image);
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_RGB;
    // The bytes go through memory, so that the file is written and checked where all files are.
    std::string bytes(PNG_IMAGE_PNG_SIZE_MAX(image), '\0');
    png_alloc_size_t size = bytes.size();
    if (png_image_write_to_memory(&image, bytes.data(), &size, 0, points.data(), 0, nullptr) == 0) {
        throw UserError(std::string("the picture cannot be made: ") + image.message);
    }
    bytes.resize(size);
    return bytes;
}

}  // namespace spectrum
