// A filter in blocks, from C++: 33 taps by real transforms of 64 points, block after block. A block of 32 samples and
// the taps, both followed by zeros, have the product of their spectra for the spectrum of their convolution, which is
// 64 points long: the first half is done with what the last block has left, the second half is left to the next one.
#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <cstdio>
#include <vector>

#include "zulgenpx.hpp"

namespace {

constexpr int N = 64, block = N / 2, taps = N / 2 + 1;

class Filter {
public:
    explicit Filter(const std::array<double, taps>& response) {
        std::array<double, N> padded{};
        std::copy(response.begin(), response.end(), padded.begin());
        zulgenpx::real_dft<N>(padded, spectrum);
    }

    void run(std::span<double, block> samples) {
        std::array<double, N> padded{};
        std::copy(samples.begin(), samples.end(), padded.begin());
        auto bins = zulgenpx::real_dft<N>(padded);
        for (std::size_t k = 0; k < bins.size(); ++k) bins[k] *= spectrum[k];
        zulgenpx::inverse_real_dft<N>(bins, padded);
        for (std::size_t n = 0; n < block; ++n) {
            samples[n] = padded[n] + left[n];
            left[n] = padded[block + n];
        }
    }

private:
    std::array<std::complex<double>, N / 2 + 1> spectrum{};
    std::array<double, block> left{};
};

}  // namespace

int main() {
    std::array<double, taps> response;
    for (std::size_t n = 0; n < taps; ++n) response[n] = 1 / double(taps);  // the mean of the last 33 samples
    std::vector<double> samples(10 * block), filtered;
    for (std::size_t n = 0; n < samples.size(); ++n) samples[n] = std::sin(0.1 * double(n)) + double(n % 7);
    filtered = samples;

    Filter filter(response);
    for (std::size_t start = 0; start < filtered.size(); start += block)
        filter.run(std::span(filtered).subspan(start).first<block>());

    double largest = 0;
    for (std::size_t n = 0; n < samples.size(); ++n) {
        double due = 0;
        for (std::size_t k = 0; k < taps && k <= n; ++k) due += response[k] * samples[n - k];
        largest = std::max(largest, std::abs(filtered[n] - due));
    }
    std::printf("%zu samples, largest error %.2g\n", samples.size(), largest);
    return largest < 1e-13 ? 0 : 1;
}
