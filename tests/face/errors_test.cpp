// What the C++ headers refuse when a program runs, and what they say. What they refuse to compile is held by misuse.py.
#include <complex>
#include <functional>
#include <vector>

#include "include/zulgenpx.hpp"
#include "tests/elements.h"

namespace {

using Reals = std::vector<double>;
using Complexes = std::vector<std::complex<float>>;

// The message and the status of what is thrown, and that nothing was written.
void expectRefused(const std::function<void()>& call, ZulgStatus status, const std::string& message) {
    try {
        call();
        ADD_FAILURE() << "nothing is thrown instead of: " << message;
    } catch (const zulgenpx::error& error) {
        EXPECT_EQ(error.status(), status);
        EXPECT_EQ(error.what(), "zulgenpx::" + message);
    }
}

TEST(FaceErrors, SizesThatDoNotFit) {
    Complexes x(15), y(14, 7);
    expectRefused([&] { zulgenpx::dft<15>(x, y); }, StatusSizeError,
                  "dft: the destination has 14 elements, 15 are due");
    expectRefused([&] { zulgenpx::dft(x, y); }, StatusSizeError, "dft: the destination has 14 elements, 15 are due");
    expectRefused([&] { zulgenpx::dft<14>(x, y); }, StatusSizeError, "dft: the source has 15 elements, 14 are due");
    expectRefused([&] { static_cast<void>(zulgenpx::inverse_dft<14>(x)); }, StatusSizeError,
                  "inverse_dft: the source has 15 elements, 14 are due");
    std::array<std::complex<float>, 16> fixed{};
    expectRefused([&] { zulgenpx::dft(x, fixed); }, StatusSizeError, "dft: the source has 15 elements, 16 are due");
    EXPECT_EQ(y, Complexes(14, 7));
}

TEST(FaceErrors, HalfSpectraThatDoNotFit) {
    Reals r(15), ccs(17), complexSize(15);
    std::vector<std::complex<double>> bins(7);
    expectRefused([&] { zulgenpx::real_dft(r, ccs); }, StatusSizeError,
                  "real_dft: the destination has 17 elements, 16 are due");
    expectRefused([&] { zulgenpx::real_dft(r, bins); }, StatusSizeError,
                  "real_dft: the destination has 7 elements, 8 are due");
    expectRefused([&] { zulgenpx::inverse_real_dft(ccs, r); }, StatusSizeError,
                  "inverse_real_dft: the source has 17 elements, 16 are due");
    expectRefused([&] { zulgenpx::real_dft<zulgenpx::layout::pack>(r, ccs); }, StatusSizeError,
                  "real_dft: the destination has 17 elements, 15 are due");
}

TEST(FaceErrors, LengthsWithoutARoutine) {
    for (const std::size_t size : {0, 1, 65}) {
        Reals x(size);
        const std::string lengths = "lengths are 2 to 64, not " + std::to_string(size);
        expectRefused([&] { zulgenpx::hartley(x, x); }, StatusSizeError, "hartley: " + lengths);
        expectRefused([&] { zulgenpx::real_dft<zulgenpx::layout::perm>(x, x); }, StatusSizeError,
                      "real_dft: " + lengths);
        expectRefused([&] { zulgenpx::inverse_real_dft(Reals(66), x); }, StatusSizeError,
                      "inverse_real_dft: " + lengths);
        Complexes y(size);
        expectRefused([&] { zulgenpx::dft(y, y); }, StatusSizeError, "dft: " + lengths);
    }
    for (const std::size_t size : {0, 1, 12, 16384}) {
        Reals x(size);
        expectRefused([&] { zulgenpx::wht(x, x); }, StatusSizeError,
                      "wht: lengths are powers of two from 2 to 8192, not " + std::to_string(size));
    }
}

// An array whose type says that it has elements, and which has none.
struct Nowhere {
    using value_type = std::complex<float>;
    std::complex<float>* begin() const { return nullptr; }
    std::complex<float>* end() const { return nullptr; }
    std::complex<float>* data() const { return nullptr; }
    std::size_t size() const { return 15; }
};

TEST(FaceErrors, NullPointers) {
    Complexes x(15);
    expectRefused([&] { zulgenpx::dft<15>(Nowhere(), x); }, StatusNullPointer, "dft: an array is a null pointer");
    expectRefused([&] { zulgenpx::dft(Nowhere(), x); }, StatusNullPointer, "dft: an array is a null pointer");
}

TEST(FaceErrors, BuffersOfWalshHadamard) {
    Reals x(512, 1), y(512, 7), shortBuffer(511), buffer(512);
    expectRefused([&] { zulgenpx::wht(x, y); }, StatusNullPointer, "wht: order 9 needs a buffer");
    expectRefused([&] { zulgenpx::wht<9>(x, y, shortBuffer); }, StatusSizeError,
                  "wht: the buffer has 511 elements, 512 are due");
    expectRefused([&] { zulgenpx::wht(x, y, shortBuffer); }, StatusSizeError,
                  "wht: the buffer has 511 elements, 512 are due");
    expectRefused([&] { zulgenpx::wht<9>(x, y, x); }, StatusFlagError,
                  "wht: the buffer overlaps the source or the destination");
    Reals both(1024);
    const std::span all(both);
    expectRefused([&] { zulgenpx::wht<9>(x, all.first(512), all.subspan(511, 512 + 1)); }, StatusFlagError,
                  "wht: the buffer overlaps the source or the destination");
    EXPECT_EQ(y, Reals(512, 7));
    zulgenpx::wht<9>(x, all.first(512), all.last(512));  // neighbours do not overlap
    EXPECT_EQ(both[0], 512);
    Reals few(16, 1);
    zulgenpx::wht(few, few, few);  // is ignored
    EXPECT_EQ(few[0], 16);
}

TEST(FaceErrors, AreInvalidArguments) {
    Reals x(3), y(4);
    EXPECT_THROW(zulgenpx::hartley(x, y), std::invalid_argument);
}

}  // namespace
