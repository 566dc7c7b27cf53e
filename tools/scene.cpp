// In an SVG the cells are a small PNG picture within the file, which the viewer enlarges; the rest are lines and
// letters.
#include "scene.h"

#include <charconv>

namespace spectrum {
namespace {

std::string hexOf(Colour colour) {
    constexpr char digits[] = "0123456789abcdef";
    std::string text = "#";
    for (int byte : {colour.red, colour.green, colour.blue}) {
        text += digits[byte / 16];
        text += digits[byte % 16];
    }
    return text;
}

std::string base64(const std::string& bytes) {
    constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        unsigned group = 0;
        for (std::size_t j = 0; j < 3; ++j) {
            group = group << 8 | (j < count ? static_cast<unsigned char>(bytes[i + j]) : 0u);
        }
        for (std::size_t j = 0; j < 4; ++j) text += j <= count ? digits[group >> (18 - 6 * j) & 63] : '=';
    }
    return text;
}

std::string attribute(const char* name, int value) {
    return std::string(" ") + name + "=\"" + std::to_string(value) + "\"";
}

std::string placed(int x, int y, int width, int height) {
    return attribute("x", x) + attribute("y", y) + attribute("width", width) + attribute("height", height);
}

}  // namespace

std::string shortLabel(double value) {
    if (value == 0) return "0";
    char digits[40];
    return std::string(digits, std::to_chars(digits, digits + sizeof digits, value, std::chars_format::general, 6).ptr);
}

Scene::Scene(int pixelsAcross, int pixelsDown, Colour colour)
    : width(pixelsAcross), height(pixelsDown), background(colour) {}

void Scene::fill(int left, int top, int across, int down, Colour colour) {
    boxes.push_back({left, top, across, down, colour});
}

void Scene::text(int x, int top, Align align, const std::string& words, Colour colour) {
    texts.push_back({x, top, align, words, colour});
}

void Scene::picture(int left, int top, int cellWidth, int cellHeight, Drawing cells) {
    pictures.push_back({left, top, cellWidth, cellHeight, std::move(cells)});
}

std::string Scene::png() const {
    Drawing drawing(width, height, background);
    for (const Box& box : boxes) drawing.fill(box.left, box.top, box.width, box.height, box.colour);
    for (const Picture& one : pictures) {
        for (int y = 0; y < one.cells.down(); ++y) {
            for (int x = 0; x < one.cells.across(); ++x) {
                drawing.fill(one.left + x * one.cellWidth, one.top + y * one.cellHeight, one.cellWidth, one.cellHeight,
                             one.cells.at(x, y));
            }
        }
    }
    for (const Words& one : texts) {
        const int wide = Drawing::textWidth(one.words);
        const int left = one.align == Align::Left ? one.x : one.align == Align::Right ? one.x - wide : one.x - wide / 2;
        drawing.text(left, one.top, one.words, one.colour);
    }
    return drawing.png();
}

std::string Scene::svg() const {
    std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + std::to_string(width) + " " +
                       std::to_string(height) + "\"" + attribute("width", width) + attribute("height", height) +
                       " font-family=\"sans-serif\" font-size=\"16\">\n<rect width=\"100%\" height=\"100%\" fill=\"" +
                       hexOf(background) + "\"/>\n";
    for (const Box& box : boxes) {
        text += "<rect" + placed(box.left, box.top, box.width, box.height) + " fill=\"" + hexOf(box.colour) + "\"/>\n";
    }
    for (const Picture& one : pictures) {
        text += "<image" +
                placed(one.left, one.top, one.cells.across() * one.cellWidth, one.cells.down() * one.cellHeight) +
                " preserveAspectRatio=\"none\" style=\"image-rendering:pixelated\" href=\"data:image/png;base64," +
                base64(one.cells.png()) + "\"/>\n";
    }
    for (const Words& one : texts) {
        constexpr const char* anchors[] = {"start", "middle", "end"};
        text += "<text" + attribute("x", one.x) + attribute("y", one.top + Drawing::textHeight) + " text-anchor=\"" +
                anchors[static_cast<int>(one.align)] + "\" fill=\"" + hexOf(one.colour) + "\">" + one.words +
                "</text>\n";
    }
    return text + "</svg>\n";
}

}  // namespace spectrum
