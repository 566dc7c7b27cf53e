// The C++ headers against the exported routines, which are found by name: each length of each family, bit for bit. So
// the tables that the headers pick from are held as well.
#include <algorithm>
#include <array>
#include <complex>
#include <utility>
#include <vector>

#include "include/zulgenpx.hpp"
#include "tests/elements.h"
#include "tests/exports.h"

namespace {

using test::exported;
using test::exportedName;
using test::rounded;
using zulgenpx::layout;
using zulgenpx::scale;

constexpr scale scales[] = {scale::forward_by_n, scale::inverse_by_n, scale::both_by_sqrt_n, scale::none};

template <class Real>
class FaceTest : public test::ElementTest<Real> {
protected:
    template <class Element>
    std::vector<Element> randomVector(std::size_t size) {
        const std::vector<Real> reals = this->randomElements(static_cast<int>(size * sizeof(Element) / sizeof(Real)));
        std::vector<Element> elements(size);
        std::memcpy(static_cast<void*>(elements.data()), reals.data(), size * sizeof(Element));
        return elements;
    }
    template <class Element, std::size_t size>
    std::array<Element, size> randomArray() {
        std::array<Element, size> elements;
        std::ranges::copy(randomVector<Element>(size), elements.begin());
        return elements;
    }

    template <class A, class B>
    static bool sameBytes(const A& a, const B& b) {
        const auto bytesA = std::as_bytes(std::span{a});
        const auto bytesB = std::as_bytes(std::span{b});
        return bytesA.size() == bytesB.size() && std::memcmp(bytesA.data(), bytesB.data(), bytesA.size()) == 0;
    }

    // `named` has the length in its name, `ofArrays` takes it from the arrays. The lengths are arguments here, so that
    // this is compiled once for all of them.
    template <class From, class To>
    void expectBits(const std::string& name, std::size_t read, std::size_t written,
                    void (*named)(const From*, To*, scale),
                    void (*ofArrays)(const std::vector<From>&, std::vector<To>&, scale)) {
        const auto routine = exported<test::Kernel<Real>>(name);
        const std::vector<From> x = randomVector<From>(read);
        for (const scale factor : scales) {
            std::vector<To> due(written), y = randomVector<To>(written);
            ASSERT_EQ(
                routine(reinterpret_cast<const Real*>(x.data()), reinterpret_cast<Real*>(due.data()), factor.flag()),
                StatusOk);
            named(x.data(), y.data(), factor);
            EXPECT_TRUE(sameBytes(y, due)) << name;
            y = randomVector<To>(written);
            ofArrays(x, y, factor);
            EXPECT_TRUE(sameBytes(y, due)) << name << ", length of the arrays";
        }
    }

    static std::string name(int N, const std::string& family, const std::string& tail = "") {
        return exportedName<Real>("zulg" + family + "_" + std::to_string(N)) + tail;
    }

    template <std::size_t size, class Element>
    static std::span<Element, size> fixed(Element* elements) {
        return std::span<Element, size>(elements, size);
    }

    // Functions, and no lambdas in what follows: a lambda is compiled anew for each length, and a class each time.
    using Point = std::complex<Real>;
    using Points = std::vector<Point>;
    template <int N>
    static void dft(const Point* x, Point* y, scale factor) {
        zulgenpx::dft<N>(fixed<N>(x), fixed<N>(y), factor);
    }
    static void dftOfArrays(const Points& x, Points& y, scale factor) { zulgenpx::dft(x, y, factor); }
    template <int N>
    static void inverseDft(const Point* x, Point* y, scale factor) {
        zulgenpx::inverse_dft<N>(fixed<N>(x), fixed<N>(y), factor);
    }
    static void inverseDftOfArrays(const Points& x, Points& y, scale factor) { zulgenpx::inverse_dft(x, y, factor); }

    template <int N>
    void checkComplex() {
        expectBits<Point, Point>(name(N, "DFTFwd_CToC", "c"), N, N, dft<N>, dftOfArrays);
        expectBits<Point, Point>(name(N, "DFTInv_CToC", "c"), N, N, inverseDft<N>, inverseDftOfArrays);
    }

    template <int N, layout kept, class Bin>
    static constexpr std::size_t spectrumSize = kept != layout::ccs
                                                    ? N
                                                    : (N / 2 + 1) * (sizeof(Bin) == sizeof(Real) ? 2 : 1);
    template <int N, layout kept, class Bin>
    static void realDft(const Real* x, Bin* y, scale factor) {
        zulgenpx::real_dft<N, kept>(fixed<N>(x), fixed<spectrumSize<N, kept, Bin>>(y), factor);
    }
    template <layout kept, class Bin>
    static void realDftOfArrays(const std::vector<Real>& x, std::vector<Bin>& y, scale factor) {
        zulgenpx::real_dft<kept>(x, y, factor);
    }
    template <int N, layout kept, class Bin>
    static void inverseRealDft(const Bin* x, Real* y, scale factor) {
        zulgenpx::inverse_real_dft<N, kept>(fixed<spectrumSize<N, kept, Bin>>(x), fixed<N>(y), factor);
    }
    template <layout kept, class Bin>
    static void inverseRealDftOfArrays(const std::vector<Bin>& x, std::vector<Real>& y, scale factor) {
        zulgenpx::inverse_real_dft<kept>(x, y, factor);
    }

    template <int N, layout kept, class Bin>
    void checkReal(const char* forward, const char* inverse) {
        constexpr std::size_t size = spectrumSize<N, kept, Bin>;
        expectBits<Real, Bin>(name(N, forward), N, size, realDft<N, kept, Bin>, realDftOfArrays<kept, Bin>);
        expectBits<Bin, Real>(name(N, inverse), size, N, inverseRealDft<N, kept, Bin>,
                              inverseRealDftOfArrays<kept, Bin>);
    }

    template <int N>
    void checkReals() {
        checkReal<N, layout::ccs, Real>("DFTFwd_RToCCS", "DFTInv_CCSToR");
        checkReal<N, layout::ccs, std::complex<Real>>("DFTFwd_RToCCS", "DFTInv_CCSToR");
        checkReal<N, layout::pack, Real>("DFTFwd_RToPack", "DFTInv_PackToR");
        checkReal<N, layout::perm, Real>("DFTFwd_RToPerm", "DFTInv_PermToR");
    }

    template <int N>
    static void hartley(const Real* x, Real* y, scale factor) {
        zulgenpx::hartley<N>(fixed<N>(x), fixed<N>(y), factor);
    }
    static void hartleyOfArrays(const std::vector<Real>& x, std::vector<Real>& y, scale factor) {
        zulgenpx::hartley(x, y, factor);
    }

    template <int N>
    void checkHartley() {
        expectBits<Real, Real>(name(N, "Hartley"), N, N, hartley<N>, hartleyOfArrays);
    }

    template <int order>
    void checkWht() {
        constexpr std::size_t size = std::size_t{1} << order;
        const auto routine = exported<test::WhtKernel<Real>>(name(order, "WHT"));
        std::int32_t bytes = -1;
        ASSERT_EQ(exported<ZulgStatus(ZULG_CALL*)(std::int32_t, std::int32_t*)>(
                      exportedName<Real>("zulgWHTGetBufferSize"))(order, &bytes),
                  StatusOk);
        ASSERT_EQ(zulgenpx::wht_buffer_size(order) * sizeof(Real), static_cast<std::size_t>(bytes));
        std::vector<Real> buffer(zulgenpx::wht_buffer_size(order));
        const std::vector<Real> x = this->randomElements(static_cast<int>(size));
        for (const scale factor : scales) {
            std::vector<Real> due(size), y(size);
            ASSERT_EQ(routine(x.data(), due.data(), factor.flag(), buffer.data()), StatusOk);
            zulgenpx::wht<order>(x, y, buffer, factor);
            EXPECT_TRUE(sameBytes(y, due)) << order;
            y.assign(size, Real(7));
            zulgenpx::wht(x, y, buffer, factor);
            EXPECT_TRUE(sameBytes(y, due)) << order << ", order of the arrays";
            const std::span<const Real, size> span(x);
            y.assign(size, Real(7));
            zulgenpx::wht(span, std::span<Real, size>(y), buffer, factor);
            EXPECT_TRUE(sameBytes(y, due)) << order << ", spans of that size";
            if constexpr (order <= 7) {
                y.assign(size, Real(7));
                zulgenpx::wht(x, y, factor);
                EXPECT_TRUE(sameBytes(y, due)) << order << ", no buffer";
                EXPECT_TRUE(sameBytes(zulgenpx::wht<order>(x, factor), due)) << order << ", returned";
                EXPECT_TRUE(sameBytes(zulgenpx::wht(span, factor), due)) << order << ", returned";
            }
        }
    }
};
TYPED_TEST_SUITE(FaceTest, test::Elements, test::ElementNames);

// check.operator()<N>() for each N from first on.
template <int first, int... offsets, class Check>
void forEach(std::integer_sequence<int, offsets...>, Check check) {
    (check(std::integral_constant<int, first + offsets>()), ...);
}
constexpr auto lengths = std::make_integer_sequence<int, 63>();

TYPED_TEST(FaceTest, ComplexTransformsGiveTheBitsOfTheExports) {
    forEach<2>(lengths, [this](auto length) { this->template checkComplex<length>(); });
}

TYPED_TEST(FaceTest, RealTransformsGiveTheBitsOfTheExports) {
    forEach<2>(lengths, [this](auto length) { this->template checkReals<length>(); });
}

TYPED_TEST(FaceTest, HartleyTransformsGiveTheBitsOfTheExports) {
    forEach<2>(lengths, [this](auto length) { this->template checkHartley<length>(); });
}

TYPED_TEST(FaceTest, WalshHadamardTransformsGiveTheBitsOfTheExports) {
    forEach<1>(std::make_integer_sequence<int, 13>(), [this](auto order) { this->template checkWht<order>(); });
}

// The default factors: the inverse DFT restores, the other transforms are plain sums.
TYPED_TEST(FaceTest, DefaultsRestoreAndSumUp) {
    using Complex = std::complex<TypeParam>;
    const auto x = this->template randomArray<Complex, 12>();
    EXPECT_TRUE(this->sameBytes(zulgenpx::dft<12>(x), zulgenpx::dft(x, scale::none)));
    EXPECT_TRUE(this->sameBytes(zulgenpx::inverse_dft<12>(x), zulgenpx::inverse_dft(x, scale::inverse_by_n)));
    const auto again = zulgenpx::inverse_dft(zulgenpx::dft(x));
    for (std::size_t n = 0; n < x.size(); ++n) EXPECT_LT(std::abs(again[n] - x[n]), 32 * this->unit) << n;

    const auto r = this->template randomArray<TypeParam, 9>();
    EXPECT_TRUE(this->sameBytes(zulgenpx::real_dft(r), zulgenpx::real_dft<9>(r, scale::none)));
    const auto restored = zulgenpx::inverse_real_dft<9>(zulgenpx::real_dft(r));
    for (std::size_t n = 0; n < r.size(); ++n) EXPECT_LT(std::abs(restored[n] - r[n]), 32 * this->unit) << n;
    EXPECT_TRUE(this->sameBytes(zulgenpx::hartley(r), zulgenpx::hartley<9>(r, scale::none)));
    const std::array<TypeParam, 4> counted{1, 2, 3, 4};
    EXPECT_EQ(zulgenpx::wht(counted), (std::array<TypeParam, 4>{10, -2, -4, 0}));
}

// Results by value have the type of their layout.
TYPED_TEST(FaceTest, ResultsAreArraysOfTheirLayout) {
    using Complex = std::complex<TypeParam>;
    const auto even = this->template randomArray<TypeParam, 6>();
    const auto odd = this->template randomArray<TypeParam, 7>();
    static_assert(std::is_same_v<decltype(zulgenpx::real_dft(even)), std::array<Complex, 4>>);
    static_assert(std::is_same_v<decltype(zulgenpx::real_dft(odd)), std::array<Complex, 4>>);
    static_assert(std::is_same_v<decltype(zulgenpx::real_dft<layout::pack>(even)), std::array<TypeParam, 6>>);
    static_assert(std::is_same_v<decltype(zulgenpx::real_dft<6, layout::perm>(even)), std::array<TypeParam, 6>>);
    const auto bins = zulgenpx::real_dft(even);
    const auto pack = zulgenpx::real_dft<layout::pack>(even), perm = zulgenpx::real_dft<layout::perm>(even);
    EXPECT_EQ(pack[1], bins[1].real());
    EXPECT_EQ(pack[5], bins[3].real());
    EXPECT_EQ(perm[1], bins[3].real());
    EXPECT_EQ(bins[0].imag(), 0);
    EXPECT_EQ(bins[3].imag(), 0);
    EXPECT_TRUE(this->sameBytes(zulgenpx::inverse_real_dft<layout::pack>(pack), zulgenpx::inverse_real_dft<6>(bins)));
    EXPECT_TRUE(this->sameBytes(zulgenpx::inverse_real_dft<layout::perm>(perm), zulgenpx::inverse_real_dft<6>(bins)));
}

// All that counts as an array, and arrays that overlap.
TYPED_TEST(FaceTest, TakesAnyArrayAndWorksInPlace) {
    using Complex = std::complex<TypeParam>;
    using InC = std::conditional_t<test::isSingle<TypeParam>, Zulg32fc, Zulg64fc>;
    const auto x = this->template randomArray<Complex, 15>();
    const auto due = zulgenpx::dft<15>(x);

    Complex plain[15];
    zulgenpx::dft<15>(x, plain);
    EXPECT_TRUE(this->sameBytes(plain, due));
    InC ofC[15];
    zulgenpx::dft(x, ofC);
    EXPECT_TRUE(this->sameBytes(ofC, due));
    Complex again[15];
    zulgenpx::dft(std::vector<Complex>(x.begin(), x.end()), std::span<Complex>(again));
    EXPECT_TRUE(this->sameBytes(again, due));

    const std::vector<Complex> source(x.begin(), x.end());
    std::vector<Complex> destination(15);
    zulgenpx::dft<15>(source, destination);
    EXPECT_TRUE(this->sameBytes(destination, due));
    EXPECT_TRUE(this->sameBytes(zulgenpx::dft<15>(source), due));

    auto inPlace = x;
    zulgenpx::dft(inPlace, inPlace);
    EXPECT_TRUE(this->sameBytes(inPlace, due));
    std::vector<Complex> overlapping(18);
    std::copy(x.begin(), x.end(), overlapping.begin());
    zulgenpx::dft(std::span(overlapping).first(15), std::span(overlapping).last(15));
    EXPECT_TRUE(this->sameBytes(std::span(overlapping).last(15), due));

    std::vector<TypeParam> reals(10, TypeParam(1));
    const auto bins = zulgenpx::real_dft<8>(std::span(reals).first(8));
    zulgenpx::real_dft(std::span(reals).first(8), reals);
    EXPECT_TRUE(this->sameBytes(reals, bins));
}

// What is known when a call is compiled cannot fail.
TYPED_TEST(FaceTest, CallsOfFixedSizeDoNotThrow) {
    using Complex = std::complex<TypeParam>;
    std::array<Complex, 8> x;
    std::array<TypeParam, 16> r;
    std::vector<Complex> any;
    std::vector<TypeParam> reals;
    static_assert(noexcept(zulgenpx::dft<8>(x, x))&& noexcept(zulgenpx::inverse_dft(x, x, scale::none)));
    static_assert(noexcept(zulgenpx::dft(x))&& noexcept(zulgenpx::hartley(r, r))&& noexcept(zulgenpx::wht<4>(r, r)));
    static_assert(!noexcept(zulgenpx::dft<8>(any, any)) && !noexcept(zulgenpx::dft<8>(x, any)));
    static_assert(!noexcept(zulgenpx::dft(any, any)) && !noexcept(zulgenpx::dft<8>(any)));
    static_assert(!noexcept(zulgenpx::wht(reals, reals)) && !noexcept(zulgenpx::wht<4>(r, r, reals)));
    EXPECT_TRUE(scale::none == scale::none && !(scale::none == scale::forward_by_n));
}

}  // namespace
