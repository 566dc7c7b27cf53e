// The inputs that errors are measured with.
#pragma once

#include <cmath>
#include <random>
#include <vector>

namespace accuracy {

// What an input is like: normally distributed values, a row of a transform in some noise, or a few values.
enum class Shape { Noise, Row, Few };

class Inputs {
public:
    Inputs() {
        std::normal_distribution<double> normal(0, std::sqrt(0.5));
        for (double& value : pool) value = normal(random);
    }

    bool areMixed = false;  // otherwise all of them are noise

    // The shape of the trial of this number.
    Shape shapeOf(int trial) const {
        return !areMixed || trial % 4 == 0 ? Shape::Noise : trial % 4 == 2 ? Shape::Few : Shape::Row;
    }

    // `row(i)` is element i of a row, at an amplitude of 1.
    template <class Element, class Row>
    void fill(std::vector<Element>& x, Shape shape, const Row& row) {
        const double scale = std::exp2(std::uniform_real_distribution<double>(-0.5, 0.5)(random));
        // Each is the sum of two stretches of a pool: as good as fresh values, and much quicker.
        const double *const a = stretch(x.size()), *const b = stretch(x.size());
        const double noise = shape == Shape::Row ? 0.01 : 1;
        for (std::size_t i = 0; i < x.size(); ++i) {
            const double value = noise * (a[i] + b[i]) + (shape == Shape::Row ? row(i) : 0);
            x[i] = static_cast<Element>(value * scale);
        }
        if (shape != Shape::Few) return;
        const std::size_t kept[] = {below(x.size()), below(x.size()), below(x.size())};
        for (std::size_t i = 0; i < x.size(); ++i) {
            if (i != kept[0] && i != kept[1] && i != kept[2]) x[i] = 0;
        }
    }

    std::size_t below(std::size_t count) { return static_cast<std::size_t>(random() % count); }

private:
    const double* stretch(std::size_t count) { return &pool[below(pool.size() - count)]; }

    std::mt19937_64 random;
    std::vector<double> pool = std::vector<double>(1 << 20);
};

}  // namespace accuracy
