// A lapped transform of a sound file, with perfect reconstruction: the MDCT, built on the DCT-IV.
//
//     mdct FILE [N]      N bins to a frame, a power of two from 2 to 65536; 1024 if not given
//
// The file is read as zulspectrum reads it: a damaged one is refused with exit status 3.
//
// Frames of 2N samples overlap by half. A frame is weighted with a sine window and cut in quarters a, b, c, d, which
// are folded to the N values (-c' - d, a - b'), where ' is reversal: their DCT-IV is the spectrum of the frame. The way
// back unfolds to (a - b', b - a', c + d', d + c') and weights once more. The reversed quarters have opposite signs in
// two neighbouring frames, so that they vanish when the frames are added up. Since sin^2 + cos^2 = 1, the samples
// remain. (J. P. Princen, A. W. Johnson and A. B. Bradley, 1987.)
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <numbers>
#include <stdexcept>
#include <string>
#include <vector>

#include "tools/input.h"
#include "tools/numbers.h"
#include "tools/user_error.h"
#include "zulgenpx.h"

namespace {

template <typename T, typename Plan, auto initAlloc, auto dct4, auto free>
class Mdct {
public:
    using Number = T;

    explicit Mdct(int bins) : N(bins), window(2 * N), values(N) {
        for (int n = 0; n < 2 * N; ++n) window[n] = T(std::sin(std::numbers::pi * (n + 0.5) / (2 * N)));
        expectOk(initAlloc(&plan, N));
    }
    ~Mdct() { free(plan); }
    Mdct(const Mdct&) = delete;
    Mdct& operator=(const Mdct&) = delete;

    // The N bins of 2N samples.
    const std::vector<T>& forward(const T* x) {
        const auto weighted = [&](int n) { return window[n] * x[n]; };
        for (int i = 0; i < N / 2; ++i) {
            values[i] = -weighted(3 * N / 2 - 1 - i) - weighted(3 * N / 2 + i);
            values[N / 2 + i] = weighted(i) - weighted(N - 1 - i);
        }
        expectOk(dct4(values.data(), values.data(), plan));
        return values;
    }

    // Adds what the bins give back to 2N samples. Twice the DCT-IV gives N/2 times the values.
    void addInverse(T* sum) {
        expectOk(dct4(values.data(), values.data(), plan));
        const auto add = [&](int n, T value) { sum[n] += window[n] * value * 2 / T(N); };
        for (int i = 0; i < N / 2; ++i) {
            add(i, values[N / 2 + i]), add(N - 1 - i, -values[N / 2 + i]);
            add(3 * N / 2 - 1 - i, -values[i]), add(3 * N / 2 + i, -values[i]);
        }
    }

private:
    static void expectOk(ZulgStatus status) {
        if (status != StatusOk) throw std::runtime_error("the library answers with status " + std::to_string(status));
    }

    int N;
    std::vector<T> window, values;
    Plan* plan = nullptr;
};

using SingleMdct = Mdct<float, ZulgDCT4Plan_32f, zulgDCT4InitAlloc_32f, zulgDCT4_32f, zulgDCT4Free_32f>;
using DoubleMdct = Mdct<double, ZulgDCT4Plan_64f, zulgDCT4InitAlloc_64f, zulgDCT4_64f, zulgDCT4Free_64f>;

// Transforms and restores the samples, and prints how large the errors are and where the energy is.
template <typename AnyMdct>
bool runOver(const std::vector<double>& samples, int N, double rate, double bound) {
    using T = typename AnyMdct::Number;
    const std::size_t count = samples.size(), frames = (count + N - 1) / N + 1;
    // Half a frame of silence before and after the samples, so that two frames cover each of them.
    std::vector<T> x((frames + 1) * N), restored(x.size());
    for (std::size_t n = 0; n < count; ++n) x[N + n] = T(samples[n]);
    std::vector<double> energy(N);
    AnyMdct mdct(N);
    for (std::size_t start = 0; start < frames * N; start += N) {
        const std::vector<T>& bins = mdct.forward(&x[start]);
        for (int k = 0; k < N; ++k) energy[k] += double(bins[k]) * bins[k];
        mdct.addInverse(&restored[start]);
    }

    double largest = 0, errors = 0, squares = 0;
    for (std::size_t n = 0; n < x.size(); ++n) {
        const double error = double(restored[n]) - x[n];
        largest = std::max(largest, std::abs(error)), errors += error * error, squares += double(x[n]) * x[n];
    }
    const double relative = errors == 0 ? 0 : std::sqrt(errors / squares);
    const auto strongest = std::max_element(energy.begin(), energy.end()) - energy.begin();
    const double hertz = (double(strongest) + 0.5) * rate / (2 * N);
    std::printf("%zu bits: %zu frames of %d bins, strongest at %.1f Hz; largest error %.2g, relative error %.2g\n",
                8 * sizeof(T), frames, N, hertz, largest, relative);
    return relative < bound;
}

std::vector<double> allOf(spectrum::Source& source) {
    std::vector<double> samples, block(4096);
    while (const std::size_t got = source.read(block)) {
        samples.insert(samples.end(), block.begin(), block.begin() + static_cast<std::ptrdiff_t>(got));
    }
    return samples;
}

int restore(const char* path, const char* bins) {
    const int N = static_cast<int>(spectrum::wholeNumber("N", bins, 2, 65536));
    if ((N & (N - 1)) != 0) throw spectrum::UsageError("N " + std::to_string(N) + ": not a power of two");
    spectrum::InputOptions options;
    options.path = path;
    const auto source = spectrum::openInput(options);
    const std::vector<double> samples = allOf(*source);
    if (samples.empty()) throw std::runtime_error(source->name + ": it holds no samples");
    const bool wide = runOver<DoubleMdct>(samples, N, source->rate, 1e-15);
    const bool narrow = runOver<SingleMdct>(samples, N, source->rate, 5e-7);
    return wide && narrow ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2 && argc != 3) return std::fprintf(stderr, "mdct FILE [N]\n"), 2;
    try {
        return restore(argv[1], argc == 3 ? argv[2] : "1024");
    } catch (const spectrum::UserError& error) {
        return std::fprintf(stderr, "mdct: %s\n", error.what()), static_cast<int>(error.status());
    } catch (const std::exception& error) {
        return std::fprintf(stderr, "mdct: %s\n", error.what()), 1;
    }
}
