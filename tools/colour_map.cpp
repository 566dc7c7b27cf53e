// The colour map is computed in L*a*b* coordinates, where equal steps look equal: lightness is a straight line, the
// hue turns from blue through red to yellow, and the colours are strongest in the middle.
#include "colour_map.h"

#include <algorithm>
#include <cmath>
#include <numbers>

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

}  // namespace

Colour colourOf(double level) {
    const double bounded = level > 0 ? std::min(level, 1.0) : 0.0;
    const double lightness = 4 + 92 * bounded;
    const double hue = (290 + 170 * bounded) * std::numbers::pi / 180;
    const double strength = 12 + 54 * std::pow(std::sin(std::numbers::pi * std::pow(bounded, 0.9)), 0.8);
    return fromLab(lightness, strength * std::cos(hue), strength * std::sin(hue));
}

}  // namespace spectrum
