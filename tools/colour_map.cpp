// Colour maps are computed in L*a*b* coordinates, where equal steps look equal: lightness is a straight line, the hue
// turns from one angle to another, and the colours are strongest in the middle.
#include "colour_map.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

#include "numbers.h"
#include "user_error.h"

namespace spectrum {
namespace {

// From linear light to the byte of a display.
std::uint8_t displayByte(double light) {
    const double bounded = std::clamp(light, 0.0, 1.0);
    const double curved = bounded <= 0.0031308 ? 12.92 * bounded : 1.055 * std::pow(bounded, 1 / 2.4) - 0.055;
    return static_cast<std::uint8_t>(std::lround(255 * curved));
}

double cubeOrLine(double value) {
    const double knee = 6.0 / 29;
    return value > knee ? value * value * value : 3 * knee * knee * (value - 4.0 / 29);
}

Colour fromLab(double lightness, double a, double b) {
    const double middle = (lightness + 16) / 116;
    // The white point of displays.
    const double x = 0.95047 * cubeOrLine(middle + a / 500);
    const double y = cubeOrLine(middle);
    const double z = 1.08883 * cubeOrLine(middle - b / 200);
    return {displayByte(3.2406 * x - 1.5372 * y - 0.4986 * z), displayByte(-0.9689 * x + 1.8758 * y + 0.0415 * z),
            displayByte(0.0557 * x - 0.2040 * y + 1.0570 * z)};
}

struct Map {
    const char* name;
    double dark, light;         // lightness at the levels 0 and 1
    double firstHue, lastHue;   // in degrees: 20 is red, 90 yellow, 160 green, 290 blue
    double weakest, strongest;  // strength of colour: at the ends, and what is added in the middle
};

constexpr Map maps[] = {
    {"dusk", 4, 96, 290, 460, 12, 54},  // from blue through red to yellow
    {"sea", 8, 94, 310, 105, 14, 42},   // from violet through green to yellow
    {"grey", 0, 100, 0, 0, 0, 0},       // from black to white
    {"paper", 100, 8, 0, 0, 0, 0},      // dark on white, for print
    {"ink", 98, 12, 250, 290, 2, 38},   // dark blue on white
};

Colours makeColours(const Map& map) {
    Colours made;
    for (std::size_t i = 0; i < made.map.size(); ++i) {
        const double level = static_cast<double>(i) / static_cast<double>(made.map.size() - 1);
        const double lightness = map.dark + (map.light - map.dark) * level;
        const double hue = (map.firstHue + (map.lastHue - map.firstHue) * level) * std::numbers::pi / 180;
        const double strength =
            map.weakest + map.strongest * std::pow(std::sin(std::numbers::pi * std::pow(level, 0.9)), 0.8);
        made.map[i] = fromLab(lightness, strength * std::cos(hue), strength * std::sin(hue));
    }
    const bool isLight = map.dark > map.light;
    made.background = isLight ? Colour{255, 255, 255} : Colour{20, 20, 26};
    made.ink = isLight ? Colour{30, 30, 36} : Colour{214, 214, 222};
    made.frameLine = isLight ? Colour{150, 150, 160} : Colour{96, 96, 108};
    return made;
}

}  // namespace

Colour Colours::at(double level) const {
    const double bounded = level > 0 ? std::min(level, 1.0) : 0.0;
    return map[static_cast<std::size_t>(std::lround(bounded * static_cast<double>(map.size() - 1)))];
}

const Colours& coloursOf(const std::string& name) {
    static std::map<std::string, Colours> made;
    for (const Map& map : maps) {
        if (name == map.name) return made.try_emplace(name, makeColours(map)).first->second;
    }
    throw UsageError("--colours " + shownWord(name) + ": no such map of colours; known: " + colourNames());
}

std::string colourNames() {
    std::string names;
    for (const Map& map : maps) names += (names.empty() ? "" : ", ") + std::string(map.name);
    return names;
}

}  // namespace spectrum
