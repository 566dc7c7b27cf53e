// A window of N weights is the first N of a symmetric one of N+1. Most are sums of cosines. The coefficients are those
// of F. J. Harris, "On the use of windows for harmonic analysis with the discrete Fourier transform" (1978), of A. H.
// Nuttall, "Some windows with very good sidelobe behavior" (1981), and of G. D'Antona and A. Ferrero, "Digital Signal
// Processing for Measurement Systems" (2006) for the flat top.
#include "window.h"

#include <cmath>
#include <numbers>
#include <span>

#include "numbers.h"
#include "user_error.h"

namespace spectrum {
namespace {

// Weights at x, which goes from 0 to 1 over the symmetric window of `steps` steps.
using Weight = double (*)(double x, double parameter, int steps);

double sumOfCosines(std::span<const double> coefficients, double x) {
    double sum = 0;
    for (std::size_t k = 0; k < coefficients.size(); ++k) {
        sum += (k % 2 == 0 ? 1 : -1) * coefficients[k] * std::cos(2 * std::numbers::pi * static_cast<double>(k) * x);
    }
    return sum;
}

template <double... coefficients>
double cosines(double x, double, int) {
    static constexpr double all[] = {coefficients...};
    return sumOfCosines(all, x);
}

double triangle(double x, double, int) { return 1 - std::abs(2 * x - 1); }

// A triangle that does not go down to zero at its ends.
double highTriangle(double x, double, int steps) {
    const double count = steps + 1, place = x * steps - steps / 2.0;
    return 1 - std::abs(place) / ((steps % 2 == 0 ? count + 1 : count) / 2);
}

double halfSine(double x, double, int steps) { return std::sin(std::numbers::pi * (x * steps + 0.5) / (steps + 1)); }

double tukey(double x, double share, int) {
    const double edge = std::min(x, 1 - x);
    if (share <= 0 || edge >= share / 2) return 1;
    return 0.5 * (1 - std::cos(2 * std::numbers::pi * edge / share));
}

double kaiser(double x, double beta, int) {
    const double place = 2 * x - 1;
    return std::cyl_bessel_i(0, beta * std::sqrt(std::max(0.0, 1 - place * place))) / std::cyl_bessel_i(0, beta);
}

double gaussian(double x, double deviation, int steps) {
    const double place = (x - 0.5) * steps / deviation;
    return std::exp(-place * place / 2);
}

struct Kind {
    const char* name;
    Weight weight;
    const char* parameter;         // its name, or null
    double least, most, standard;  // of the parameter; a negative standard says that it must be given
};

const Kind kinds[] = {
    {"boxcar", cosines<1.0>, nullptr, 0, 0, 0},
    {"hann", cosines<0.5, 0.5>, nullptr, 0, 0, 0},
    {"hamming", cosines<0.54, 0.46>, nullptr, 0, 0, 0},
    {"blackman", cosines<0.42, 0.5, 0.08>, nullptr, 0, 0, 0},
    {"blackmanharris", cosines<0.35875, 0.48829, 0.14128, 0.01168>, nullptr, 0, 0, 0},
    {"nuttall", cosines<0.3635819, 0.4891775, 0.1365995, 0.0106411>, nullptr, 0, 0, 0},
    {"flattop", cosines<0.21557895, 0.41663158, 0.277263158, 0.083578947, 0.006947368>, nullptr, 0, 0, 0},
    {"bartlett", triangle, nullptr, 0, 0, 0},
    {"triang", highTriangle, nullptr, 0, 0, 0},
    {"cosine", halfSine, nullptr, 0, 0, 0},
    {"tukey", tukey, "SHARE", 0, 1, 0.5},
    {"kaiser", kaiser, "BETA", 0, 700, -1},
    {"gaussian", gaussian, "STD", 1e-3, 1e9, -1},
};

const Kind& kindOf(const std::string& name) {
    for (const Kind& kind : kinds) {
        if (name == kind.name || (name == "none" && kind.weight == kinds[0].weight)) return kind;
    }
    throw UsageError("--window " + shownWord(name) + ": no such window; known: " + windowNames());
}

}  // namespace

Window windowOf(const std::string& word) {
    const std::size_t colon = word.find(':');
    const Kind& kind = kindOf(word.substr(0, colon));
    const std::string start = "--window " + shownWord(word) + ": ";
    if (!kind.parameter) {
        if (colon != std::string::npos) throw UsageError(start + "this window has no parameter");
        return {kind.name, 0};
    }
    if (colon == std::string::npos) {
        if (kind.standard >= 0) return {kind.name, kind.standard};
        throw UsageError(start + "say " + kind.name + ":" + kind.parameter);
    }
    const double parameter =
        realNumber("--window " + std::string(kind.name) + ", " + kind.parameter, word.substr(colon + 1));
    if (parameter < kind.least || parameter > kind.most) {
        throw UsageError(start + kind.parameter + " is " + shortest(kind.least) + " to " + shortest(kind.most));
    }
    return {kind.name, parameter};
}

std::string windowWord(const Window& window) {
    if (window.name == kinds[0].name) return "none";
    return window.name + (kindOf(window.name).parameter ? ":" + shortest(window.parameter) : "");
}

std::string windowNames() {
    std::string names = "none";
    for (const Kind& kind : kinds)
        names += std::string(", ") + kind.name + (kind.parameter ? std::string(":") + kind.parameter : "");
    return names;
}

std::vector<double> windowWeights(const Window& window, int length) {
    const Kind& kind = kindOf(window.name);
    std::vector<double> weights;
    for (int i = 0; i < length; ++i)
        weights.push_back(kind.weight(i / static_cast<double>(length), window.parameter, length));
    return weights;
}

}  // namespace spectrum
