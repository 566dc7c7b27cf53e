// The levels of a spectrogram: columns of time, rows of frequency or sequency. A column has the mean power of its
// frames. The number of columns is bounded. Where the number of frames is known from the start, each column but the
// last has the same number of frames; otherwise neighbours are merged whenever the bound is reached, and each column
// has twice as many frames from then on. Bins share a row where there are more of them than rows.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "family.h"

namespace spectrum {

class Levels {
public:
    Levels(const Family& family, int length, int mostRows, int mostColumns, std::optional<std::int64_t> frames);

    void add(ConstBins bins);
    // Columns that another has made of the next frames, as bytes.
    void addColumns(std::string_view bytes, std::int64_t frames);
    std::string takeColumns();
    // Columns begin at multiples of this many frames, when the number of frames is known.
    std::int64_t framesInColumn() const { return framesPerColumn; }

    // To be called once after the last frame.
    void finish();

    int columns() const { return columnCount; }
    int rows() const { return rowCount; }
    int places() const { return placeCount; }
    int placesInRow() const { return placesPerRow; }
    // Of the whole picture, with the columns that are not full counted as full.
    std::int64_t framesShown() const { return columnCount * framesPerColumn; }
    // In decibels below the strongest; silence is minus infinity.
    double decibels(int column, int row) const;
    int binAt(int place) const { return family.shownBin(place, length); }

private:
    std::size_t index(int column, int row) const {
        return static_cast<std::size_t>(column) * static_cast<std::size_t>(rowCount) + static_cast<std::size_t>(row);
    }
    void startColumn();

    const Family& family;
    int length, placeCount, placesPerRow, rowCount, mostColumns;
    int columnCount = 0;
    std::int64_t framesPerColumn = 1;
    std::int64_t framesInLast = 0;
    std::vector<double> power;   // column by column: the sum over the frames of a column
    std::vector<double> powers;  // of the bins of one frame
    double strongest = 0;
};

}  // namespace spectrum
