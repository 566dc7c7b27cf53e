#include "rules/axes.h"

#include <utility>

namespace gen {

Axes::Axes(std::vector<int> lengths) : sides(std::move(lengths)), strides(sides.size()) {
    for (std::size_t i = sides.size(); i-- > 0;) {
        strides[i] = total;
        total *= sides[i];
    }
}

int Axes::multiplier(int axis) const {
    const int side = sides[static_cast<std::size_t>(axis)];
    return total / side % side;
}

int Axes::signalIndex(int boxPlace) const {
    int index = 0;
    for (std::size_t i = 0; i < sides.size(); ++i) index += total / sides[i] * (boxPlace / strides[i] % sides[i]);
    return index % total;
}

Signal Axes::gather(const Signal& x) const {
    Signal box;
    for (int place = 0; place < total; ++place) box.push_back(x[static_cast<std::size_t>(signalIndex(place))]);
    return box;
}

Signal Axes::scatter(const Signal& box) const {
    Signal x = box;
    for (int place = 0; place < total; ++place) {
        x[static_cast<std::size_t>(signalIndex(place))] = box[static_cast<std::size_t>(place)];
    }
    return x;
}

}  // namespace gen
