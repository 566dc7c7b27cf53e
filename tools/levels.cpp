// Sums of powers. Within a column the frames are added in their order, so that pieces that begin with a column give the
// same sums as one run over all.
#include "levels.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace spectrum {

Levels::Levels(const Family& given, int points, int mostRows, int most, std::optional<std::int64_t> frames)
    : family(given),
      length(points),
      placeCount(given.shownCount(points)),
      placesPerRow((placeCount + mostRows - 1) / mostRows),
      rowCount((placeCount + placesPerRow - 1) / placesPerRow),
      mostColumns(most),
      powers(static_cast<std::size_t>(given.binCount(points))) {
    if (frames) framesPerColumn = std::max<std::int64_t>(1, (*frames + most - 1) / most);
}

void Levels::add(ConstBins bins) {
    if (framesInLast == framesPerColumn || columnCount == 0) startColumn();
    ++framesInLast;
    family.powers(bins, powers);
    double* const column = power.data() + index(columnCount - 1, 0);
    for (int place = 0; place < placeCount; ++place) {
        const int row = place / placesPerRow;
        const double value = powers[static_cast<std::size_t>(binAt(place))];
        column[row] += placesPerRow == 1 ? value : value / std::min(placesPerRow, placeCount - row * placesPerRow);
    }
}

void Levels::startColumn() {
    if (columnCount == mostColumns) {
        // An odd column at the end stays half full.
        const bool isOdd = columnCount % 2 == 1;
        framesInLast = isOdd ? framesPerColumn : 2 * framesPerColumn;
        columnCount = (columnCount + 1) / 2;
        framesPerColumn *= 2;
        for (int c = 0; c < columnCount; ++c) {
            for (int k = 0; k < rowCount; ++k) {
                const bool isHalf = isOdd && c == columnCount - 1;
                power[index(c, k)] = power[index(2 * c, k)] + (isHalf ? 0 : power[index(2 * c + 1, k)]);
            }
        }
        power.resize(index(columnCount, 0));
        if (isOdd) return;
    }
    framesInLast = 0;
    power.resize(index(++columnCount, 0));
}

std::string Levels::takeColumns() {
    std::string bytes(power.size() * sizeof(double), '\0');
    std::memcpy(bytes.data(), power.data(), bytes.size());
    power.clear();
    columnCount = 0;
    framesInLast = 0;
    return bytes;
}

void Levels::addColumns(std::string_view bytes, std::int64_t frames) {
    const std::size_t before = power.size();
    power.resize(before + bytes.size() / sizeof(double));
    std::memcpy(power.data() + before, bytes.data(), bytes.size());
    columnCount = static_cast<int>(power.size()) / rowCount;
    framesInLast = (frames - 1) % framesPerColumn + 1;
}

void Levels::finish() {
    const double missing = static_cast<double>(framesPerColumn) / static_cast<double>(framesInLast);
    for (int k = 0; k < rowCount; ++k) power[index(columnCount - 1, k)] *= missing;
    strongest = *std::max_element(power.begin(), power.end());
}

double Levels::decibels(int column, int row) const {
    if (strongest == 0) return -HUGE_VAL;
    return 10 * std::log10(power[index(column, row)] / strongest);
}

}  // namespace spectrum
