// The colours of a level from 0 to 1. Lightness rises evenly along the map, so that a stronger bin always looks
// brighter, also in grey and to eyes that see fewer colours.
#pragma once

#include <cstdint>

namespace spectrum {

struct Colour {
    std::uint8_t red, green, blue;
};

// Levels outside of 0 .. 1 get the colour of the nearer end, not-a-number that of 0.
Colour colourOf(double level);

}  // namespace spectrum
