// The colours of a level from 0 to 1, and of what is around a picture of levels. Lightness rises (or, on paper, falls)
// evenly along a map, so that a stronger bin always looks brighter (or darker), also in grey and to eyes that see fewer
// colours.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace spectrum {

struct Colour {
    std::uint8_t red, green, blue;
};

struct Colours {
    // Levels outside of 0 .. 1 get the colour of the nearer end, not-a-number that of 0.
    Colour at(double level) const;

    std::array<Colour, 1024> map;
    Colour background, ink, frameLine;
};

// Throws UsageError when there is no map of that name.
const Colours& coloursOf(const std::string& name);

// For the help.
std::string colourNames();

}  // namespace spectrum
