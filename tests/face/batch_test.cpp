// Batches in C++ against the transforms one by one, bit for bit, and what is refused. Shapes are what the views of the
// headers say; what the batch library makes of them is held by tests/batch.
#include <complex>
#include <functional>
#include <vector>

#include "include/zulgenpx_batch.hpp"
#include "tests/elements.h"

namespace {

using zulgenpx::layout;
using zulgenpx::scale;
using zulgenpx::view;

// A matrix as std::mdspan shows it: any extents, strides in elements.
template <class Element>
struct Matrix {
    using element_type = Element;
    struct accessor_type {
        using reference = Element&;
    };
    static constexpr std::size_t rank() { return 2; }
    Element* data;
    std::size_t extents[2];
    std::ptrdiff_t strides[2];
    Element* data_handle() const { return data; }
    std::size_t extent(std::size_t axis) const { return extents[axis]; }
    std::ptrdiff_t stride(std::size_t axis) const { return strides[axis]; }
};

// The least that converts: no rank, indices that are int, no accessor.
struct Plain {
    float* data;
    int rows, columns;
    float* data_handle() const { return data; }
    int extent(int axis) const { return axis == 0 ? rows : columns; }
    int stride(int axis) const { return axis == 0 ? columns : 1; }
};

// One axis.
struct Line {
    static constexpr int rank() { return 1; }
    double* data;
    double* data_handle() const { return data; }
    std::size_t extent(std::size_t) const { return 6; }
    std::ptrdiff_t stride(std::size_t) const { return 2; }
};

template <class Real>
class FaceBatchTest : public test::ElementTest<Real> {
protected:
    template <class Element>
    std::vector<Element> random(std::size_t size) {
        const std::vector<Real> reals = this->randomElements(static_cast<int>(size * sizeof(Element) / sizeof(Real)));
        std::vector<Element> elements(size);
        std::memcpy(static_cast<void*>(elements.data()), reals.data(), size * sizeof(Element));
        return elements;
    }

    // The elements of transform j.
    template <class Element>
    static std::vector<std::remove_const_t<Element>> line(view<Element> array, std::size_t j) {
        std::vector<std::remove_const_t<Element>> elements;
        for (std::size_t k = 0; k < array.length; ++k)
            elements.push_back(array.data[static_cast<std::ptrdiff_t>(k) * array.step +
                                          static_cast<std::ptrdiff_t>(j) * array.distance]);
        return elements;
    }

    // Runs a batch and each of its transforms alone.
    template <class From, class To, class One, class Batch>
    void expectSame(view<From> from, view<To> to, One one, Batch batch, const char* name) {
        std::vector<std::vector<To>> due;
        for (std::size_t j = 0; j < from.count; ++j) {
            const auto x = line(from, j);
            std::vector<To> y(to.length);
            one(x, y);
            due.push_back(y);
        }
        batch(from, to);
        for (std::size_t j = 0; j < from.count; ++j)
            EXPECT_TRUE(test::sameBits(line(to, j), due[j])) << name << ", length " << from.length << ", " << j;
    }

    // One after the other, side by side, with gaps and backwards.
    template <class From, class To, class One, class Batch>
    void expectSameInShapes(std::size_t read, std::size_t written, bool anyStep, One one, Batch batch,
                            const char* name) {
        constexpr std::size_t count = 5;
        auto x = random<From>(read * count);
        std::vector<To> y(written * count);
        expectSame(zulgenpx::rows(x, read), zulgenpx::rows(y, written), one, batch, name);
        auto wide = random<From>(2 * read * count);
        std::vector<To> wideResult(3 * written * count);
        const auto r = static_cast<std::ptrdiff_t>(2 * read), w = static_cast<std::ptrdiff_t>(3 * written);
        const auto last = static_cast<std::ptrdiff_t>(count) - 1;
        expectSame(view(wide.data() + last * r, read, count, 1, -r), view(wideResult.data(), written, count, 1, w), one,
                   batch, name);
        if (!anyStep) return;
        expectSame(zulgenpx::columns(x, count), zulgenpx::columns(y, count), one, batch, name);
        expectSame(view(x.data() + read - 1, read, count, -1, r / 2), zulgenpx::columns(y, count), one, batch, name);
        expectSame(Matrix<From>{x.data(), {read, count}, {1, r / 2}}, 0, zulgenpx::rows(y, written), one, batch, name);
    }
    template <class From, class To, class One, class Batch>
    void expectSame(const Matrix<From>& from, int axis, view<To> to, One one, Batch batch, const char* name) {
        expectSame(view(from, axis), to, one, batch, name);
    }
};
TYPED_TEST_SUITE(FaceBatchTest, test::Elements, test::ElementNames);

constexpr scale factor = scale::both_by_sqrt_n;

TYPED_TEST(FaceBatchTest, GivesTheBitsOfSingleTransforms) {
    using Complex = std::complex<TypeParam>;
    for (std::size_t n = 2; n <= 64; ++n) {
        this->template expectSameInShapes<Complex, Complex>(
            n, n, true, [](auto& x, auto& y) { zulgenpx::dft(x, y, factor); },
            [](auto x, auto y) { zulgenpx::batch::dft(x, y, factor); }, "dft");
        this->template expectSameInShapes<Complex, Complex>(
            n, n, true, [](auto& x, auto& y) { zulgenpx::inverse_dft(x, y, factor); },
            [](auto x, auto y) { zulgenpx::batch::inverse_dft(x, y, factor); }, "inverse_dft");
        this->template expectSameInShapes<TypeParam, TypeParam>(
            n, n / 2 * 2 + 2, true, [](auto& x, auto& y) { zulgenpx::real_dft(x, y, factor); },
            [](auto x, auto y) { zulgenpx::batch::real_dft(x, y, factor); }, "CCS");
        this->template expectSameInShapes<TypeParam, Complex>(
            n, n / 2 + 1, false, [](auto& x, auto& y) { zulgenpx::real_dft(x, y, factor); },
            [](auto x, auto y) { zulgenpx::batch::real_dft(x, y, factor); }, "CCS, complex");
        this->template expectSameInShapes<Complex, TypeParam>(
            n / 2 + 1, n, false, [](auto& x, auto& y) { zulgenpx::inverse_real_dft(x, y, factor); },
            [](auto x, auto y) { zulgenpx::batch::inverse_real_dft(x, y, factor); }, "CCS back, complex");
        this->template expectSameInShapes<TypeParam, TypeParam>(
            n, n, true, [](auto& x, auto& y) { zulgenpx::real_dft<layout::pack>(x, y, factor); },
            [](auto x, auto y) { zulgenpx::batch::real_dft<layout::pack>(x, y, factor); }, "Pack");
        this->template expectSameInShapes<TypeParam, TypeParam>(
            n, n, true, [](auto& x, auto& y) { zulgenpx::inverse_real_dft<layout::pack>(x, y, factor); },
            [](auto x, auto y) { zulgenpx::batch::inverse_real_dft<layout::pack>(x, y, factor); }, "Pack back");
        this->template expectSameInShapes<TypeParam, TypeParam>(
            n, n, true, [](auto& x, auto& y) { zulgenpx::real_dft<layout::perm>(x, y, factor); },
            [](auto x, auto y) { zulgenpx::batch::real_dft<layout::perm>(x, y, factor); }, "Perm");
        this->template expectSameInShapes<TypeParam, TypeParam>(
            n, n, true, [](auto& x, auto& y) { zulgenpx::inverse_real_dft<layout::perm>(x, y, factor); },
            [](auto x, auto y) { zulgenpx::batch::inverse_real_dft<layout::perm>(x, y, factor); }, "Perm back");
        this->template expectSameInShapes<TypeParam, TypeParam>(
            n, n, true, [](auto& x, auto& y) { zulgenpx::hartley(x, y, factor); },
            [](auto x, auto y) { zulgenpx::batch::hartley(x, y, factor); }, "hartley");
    }
}

TYPED_TEST(FaceBatchTest, WalshHadamardAndDct4) {
    std::vector<TypeParam> buffer(zulgenpx::batch::wht_buffer_size(13));
    for (int order = 1; order <= 13; ++order) {
        std::int32_t bytes = -1;
        ASSERT_EQ((this->single ? zulgBatchWHTGetBufferSize_32f : zulgBatchWHTGetBufferSize_64f)(order, &bytes),
                  StatusOk);
        ASSERT_EQ(zulgenpx::batch::wht_buffer_size(order) * sizeof(TypeParam), static_cast<std::size_t>(bytes));
        this->template expectSameInShapes<TypeParam, TypeParam>(
            std::size_t{1} << order, std::size_t{1} << order, true,
            [&](auto& x, auto& y) { zulgenpx::wht(x, y, buffer, factor); },
            [&](auto x, auto y) {
                if (order <= 7) {
                    zulgenpx::batch::wht(x, y, factor);
                } else {
                    zulgenpx::batch::wht(x, y, buffer, factor);
                }
            },
            "wht");
    }
    for (const std::size_t n : {2, 64, 256}) {
        zulgenpx::dct4_plan<TypeParam> plan(n);
        this->template expectSameInShapes<TypeParam, TypeParam>(
            n, n, true, [&](auto& x, auto& y) { plan(x, y); },
            [&](auto x, auto y) { zulgenpx::batch::dct4(plan, x, y, buffer); }, "dct4");
    }
}

// Matrices convert, and an axis is named where it is not the last.
TYPED_TEST(FaceBatchTest, MatricesConvert) {
    using Complex = std::complex<TypeParam>;
    auto x = this->template random<Complex>(6 * 10);
    const Matrix<const Complex> matrix{x.data(), {6, 10}, {10, 1}};
    std::vector<Complex> y(60), due(60);
    zulgenpx::batch::dft(zulgenpx::rows(x, 10), zulgenpx::rows(due, 10));
    zulgenpx::batch::dft(matrix, Matrix<Complex>{y.data(), {6, 10}, {10, 1}});
    EXPECT_TRUE(test::sameBits(y, due));
    zulgenpx::batch::dft(zulgenpx::columns(x, 10), zulgenpx::columns(due, 10));
    zulgenpx::batch::dft(view(matrix, 0), zulgenpx::columns(y, 10));
    EXPECT_TRUE(test::sameBits(y, due));
    zulgenpx::batch::dft(matrix, Matrix<Complex>{y.data(), {6, 10}, {1, 6}});  // transposed on the way
    zulgenpx::batch::dft(zulgenpx::rows(x, 10), zulgenpx::rows(due, 10));
    for (std::size_t i = 0; i < 60; ++i) EXPECT_EQ(y[i % 10 * 6 + i / 10], due[i]);
}

TEST(FaceBatch, TheLeastThatConverts) {
    std::vector<float> x(12, 1.0f), y(12), due(12);
    zulgenpx::batch::hartley(Plain{x.data(), 3, 4}, Plain{y.data(), 3, 4});
    zulgenpx::batch::hartley(zulgenpx::rows(x, 4), zulgenpx::rows(due, 4));
    EXPECT_TRUE(test::sameBits(y, due));
    std::vector<double> line{1, 0, 2, 0, 3, 0, 4, 0, 5, 0, 6, 0}, result(6);
    zulgenpx::batch::hartley(Line{line.data()}, zulgenpx::rows(result, 6));
    EXPECT_EQ(result[0], 21);
    const view<const double> readOnly = view(Line{line.data()});
    EXPECT_EQ(readOnly.length, 6u);
    EXPECT_EQ(readOnly.count, 1u);
    EXPECT_EQ(readOnly.step, 2);
}

// In single: what the routine of that name gives, which is less exact.
TEST(FaceBatch, ComputesInSingleByName) {
    test::Seed seed;
    const std::vector<float> x = test::randomElements<float>(2 * 60 * 8, seed.random);
    const std::span complexes(reinterpret_cast<const std::complex<float>*>(x.data()), 60 * 8);
    std::vector<std::complex<float>> y(60 * 8), due(60 * 8), exact(60 * 8);
    const auto inC = [](auto& array) { return reinterpret_cast<Zulg32fc*>(array.data()); };
    const auto* source = reinterpret_cast<const Zulg32fc*>(x.data());
    zulgenpx::batch::single::dft(zulgenpx::rows(complexes, 60), zulgenpx::rows(y, 60));
    zulgBatchSingleDFTFwd_CToC_32fc(source, 1, 60, inC(due), 1, 60, 60, DivInvByN, 8);
    zulgenpx::batch::dft(zulgenpx::rows(complexes, 60), zulgenpx::rows(exact, 60));
    EXPECT_TRUE(test::sameBits(y, due));
    EXPECT_FALSE(test::sameBits(y, exact));
    zulgenpx::batch::single::inverse_dft(zulgenpx::rows(complexes, 60), zulgenpx::rows(y, 60), scale::none);
    zulgBatchSingleDFTInv_CToC_32fc(source, 1, 60, inC(due), 1, 60, 60, NoDivByAny, 8);
    EXPECT_TRUE(test::sameBits(y, due));

    std::vector<float> r(16 * 60), dueReals(16 * 60);
    const auto reals = zulgenpx::rows(x, 60);
    const auto results = zulgenpx::rows(r, 60);
    zulgenpx::batch::single::hartley(reals, results);
    zulgBatchSingleHartley_32f(x.data(), 1, 60, dueReals.data(), 1, 60, 60, NoDivByAny, 16);
    EXPECT_TRUE(test::sameBits(r, dueReals));
    zulgenpx::batch::single::real_dft<layout::pack>(reals, results);
    zulgBatchSingleDFTFwd_RToPack_32f(x.data(), 1, 60, dueReals.data(), 1, 60, 60, DivInvByN, 16);
    EXPECT_TRUE(test::sameBits(r, dueReals));
    zulgenpx::batch::single::inverse_real_dft<layout::perm>(reals, results);
    zulgBatchSingleDFTInv_PermToR_32f(x.data(), 1, 60, dueReals.data(), 1, 60, 60, DivInvByN, 16);
    EXPECT_TRUE(test::sameBits(r, dueReals));
}

void expectRefused(const std::function<void()>& call, ZulgStatus status, const std::string& message) {
    try {
        call();
        ADD_FAILURE() << "nothing is thrown instead of: " << message;
    } catch (const zulgenpx::error& error) {
        EXPECT_EQ(error.status(), status);
        EXPECT_EQ(error.what(), "zulgenpx::" + message);
    }
}

TEST(FaceBatch, Refuses) {
    std::vector<double> x(64, 1), y(64, 7);
    std::vector<std::complex<double>> bins(64);
    const auto rowsOf = [](auto& array, std::size_t length) { return zulgenpx::rows(array, length); };
    expectRefused([&] { rowsOf(x, 10); }, StatusSizeError, "rows: 64 elements are not a multiple of 10");
    expectRefused([&] { static_cast<void>(zulgenpx::columns(x, 0)); }, StatusSizeError,
                  "columns: 64 elements are not a multiple of 0");
    expectRefused(
        [&] {
            static_cast<void>(view(Matrix<double>{x.data(), {8, 8}, {8, 1}}, 2));
        },
        StatusSizeError, "view: axis 2 of an array of 2");
    expectRefused([&] { zulgenpx::batch::hartley(rowsOf(x, 8), rowsOf(y, 16)); }, StatusSizeError,
                  "hartley: each destination has 16 elements, 8 are due");
    expectRefused([&] { zulgenpx::batch::hartley(rowsOf(x, 1), rowsOf(y, 1)); }, StatusSizeError,
                  "hartley: lengths are 2 to 64, not 1");
    expectRefused([&] { zulgenpx::batch::hartley(view(x.data(), 8, 4, 1, 8), rowsOf(y, 8)); }, StatusSizeError,
                  "hartley: the source has 4 transforms, the destination 8");
    expectRefused([&] { zulgenpx::batch::hartley(rowsOf(x, 8), zulgenpx::columns(x, 8)); }, StatusSizeError,
                  "hartley: in place, the steps and the distances of both arrays must be equal");
    expectRefused([&] { zulgenpx::batch::hartley(rowsOf(x, 8), view(y.data(), 8, 8, 1, 0)); }, StatusSizeError,
                  "hartley: two results are in one place, or a step or a distance is too great");
    expectRefused([&] { zulgenpx::batch::hartley(view<double>(nullptr, 8, 8, 1, 8), rowsOf(y, 8)); }, StatusNullPointer,
                  "hartley: an array is a null pointer");
    expectRefused([&] { zulgenpx::batch::real_dft(view(x.data(), 6, 2, 1, 6), view(bins.data(), 4, 2, 2, 8)); },
                  StatusSizeError, "real_dft: complex half spectra have a step of 1, not 2");
    expectRefused([&] { zulgenpx::batch::wht(rowsOf(x, 32), view(y.data(), 16, 2, 1, 32)); }, StatusSizeError,
                  "wht: each destination has 16 elements, 32 are due");
    std::vector<double> big(512), few(8);
    expectRefused([&] { zulgenpx::batch::wht(rowsOf(big, 256), rowsOf(big, 256)); }, StatusNullPointer,
                  "wht: a buffer of 512 elements is due");
    expectRefused([&] { zulgenpx::batch::wht(rowsOf(big, 256), rowsOf(big, 256), few); }, StatusSizeError,
                  "wht: the buffer has 8 elements, 512 are due");
    zulgenpx::dct4_plan<double> plan(16), empty;
    expectRefused([&] { zulgenpx::batch::dct4(plan, rowsOf(x, 32), rowsOf(y, 32)); }, StatusSizeError,
                  "dct4_plan: each source has 32 elements, 16 are due");
    expectRefused([&] { zulgenpx::batch::dct4(plan, rowsOf(x, 16), zulgenpx::columns(y, 4)); }, StatusNullPointer,
                  "dct4_plan: a buffer of 16 elements is due");
    expectRefused([&] { zulgenpx::batch::dct4(empty, rowsOf(x, 16), rowsOf(y, 16)); }, StatusNullPointer,
                  "dct4_plan: the plan is empty");
    EXPECT_EQ(y, std::vector<double>(64, 7));
    zulgenpx::batch::hartley(view(x.data(), 8, 0, 1, 8), view(y.data(), 8, 0, 1, 8));  // no transforms
    EXPECT_EQ(y, std::vector<double>(64, 7));
}

}  // namespace
