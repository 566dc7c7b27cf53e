/* zulgenpx_batch: many transforms of zulgenpx in one call, for C++20. Programs are linked with the batch library and
   with the main one. Which shapes are fast and how exact the results are is told in zulgenpx_batch.h.

   Example, the rows and then the columns of a matrix:

     #include <complex>
     #include <vector>

     #include "zulgenpx_batch.hpp"

     std::vector<std::complex<double>> matrix(12 * 16);
     matrix[0] = 1;
     const auto rows = zulgenpx::rows(matrix, 16), columns = zulgenpx::columns(matrix, 16);
     zulgenpx::batch::dft(rows, rows);
     zulgenpx::batch::dft(columns, columns);
     printf("%.0f %.0f\n", matrix[0].real(), matrix[191].real());   // prints 1 1

   Source and destination are a zulgenpx::view each, or what converts to one: std::mdspan, or any type that has
   data_handle, extent and stride. view(array, axis) says along which axis the transforms go; without it, they go along
   the last one.

   The length is that of the views. Both have the same count. A half spectrum in CCS is a view of N/2 + 1 complex
   numbers with a step of 1, or one of twice as many reals with any step.

   In place. The destination may be the source if step and distance are equal; this is counted in reals where one of the
   two is complex. Of a half spectrum and real values in one array, the distance must be that of the longer one in both.
   Otherwise the elements that are written must be other ones than those that are read. That both begin at one place
   with unequal steps or distances is refused; other ways to overlap are not looked for, and the results have no meaning
   then.

   Errors are those of zulgenpx.hpp. Whatever is refused, nothing has been written.

   Threads. Any number of threads may call at the same time, each with its own destination, buffer and plan. Nothing is
   allocated. */
#ifndef ZULGENPX_BATCH_HPP
#define ZULGENPX_BATCH_HPP

#include "zulgenpx.hpp"
#include "zulgenpx_batch.h"
#include "zulgenpx_view.hpp"

namespace zulgenpx::batch {

/* How many elements the buffer of a batch of Walsh-Hadamard transforms has at least: more than that of one transform,
   and 0 for the orders 1 to 7, which need none. */
[[nodiscard]] constexpr std::size_t wht_buffer_size(int order) noexcept {
    const std::size_t ofOne = zulgenpx::wht_buffer_size(order);
    return ofOne == 0 ? 0 : ofOne + (std::size_t{1} << order);
}

namespace detail {

using namespace zulgenpx::detail;

struct no_routine {};
template <class Real>
inline constexpr no_routine dct4_routine;
template <family, class Real>
inline constexpr no_routine routine;
template <family>
inline constexpr no_routine routine_in_single;
#include "zulgenpx_batch_routines.hpp"

/* What converts to a view. */
template <class Array>
struct is_view : std::false_type {};
template <class Element>
struct is_view<view<Element>> : std::true_type {};
template <class Array>
concept viewed = is_view<Array>::value || shaped<Array>;

template <viewed Array>
auto view_of(const Array& array) {
    if constexpr (is_view<Array>::value) {
        return array;
    } else {
        return view(array);
    }
}

template <viewed Array>
using span_of_view = std::span<std::remove_pointer_t<decltype(view_of(std::declval<const Array&>()).data)>>;

/* Step and distance as the C routines count them. */
struct shape {
    std::int64_t step, distance;
    friend bool operator==(const shape&, const shape&) = default;
};

/* The shape of an array whose elements are complex, counted in reals: the parts are neighbours, so must the elements.
 */
template <class Element>
shape shape_of(const char* name, view<Element> array, bool inReals) {
    if (!inReals) return {array.step, array.distance};
    if (array.step != 1 && array.length > 1) [[unlikely]]
        refuse(StatusSizeError, name, "complex half spectra have a step of 1, not " + std::to_string(array.step));
    return {1, 2 * static_cast<std::int64_t>(array.distance)};
}

inline void expect_length(const char* name, const char* array, std::size_t due, std::size_t length) {
    if (length != due) [[unlikely]]
        refuse_size(name, array, due, length);
}

inline void expect_counts(const char* name, std::size_t source, std::size_t destination) {
    if (source != destination) [[unlikely]]
        refuse(
            StatusSizeError, name,
            "the source has " + std::to_string(source) + " transforms, the destination " + std::to_string(destination));
}

inline void expect_places(const char* name, const void* source, shape from, const void* destination, shape to,
                          std::size_t count) {
    const bool isInPlace = source == destination && count != 0;
    if (isInPlace && (from.step != to.step || (count > 1 && from.distance != to.distance))) [[unlikely]]
        refuse(StatusSizeError, name, "in place, the steps and the distances of both arrays must be equal");
}

inline void expect_batch_ok(const char* name, ZulgStatus status) {
    if (status == StatusSizeError) [[unlikely]]
        refuse(status, name, "two results are in one place, or a step or a distance is too great");
    expect_ok(name, status);
}

/* A batch of a family with the routine that does it. */
template <family F, class Call, class From, class To>
void transform_views(Call call, view<From> from, view<To> to, scale factor) {
    if constexpr (are_arrays_right<F, std::span<From>, std::span<To>>()) {
        using Traits = traits<F>;
        using Source = element_of<From>;
        using Destination = element_of<To>;
        constexpr bool areComplex = Source::is_complex && Destination::is_complex;
        using InC = std::conditional_t<areComplex, typename Source::in_c, typename Source::real>;
        const std::size_t length = Traits::source != content::ccs ? from.length : to.length;
        if (length < shortest_length || length > longest_length) [[unlikely]]
            refuse(StatusSizeError, Traits::name, "lengths are 2 to 64, not " + std::to_string(length));
        expect_length(Traits::name, "each source", size_of(Traits::source, length, Source::is_complex), from.length);
        expect_length(Traits::name, "each destination", size_of(Traits::destination, length, Destination::is_complex),
                      to.length);
        expect_counts(Traits::name, from.count, to.count);
        const shape source = shape_of(Traits::name, from, Source::is_complex && !areComplex);
        const shape destination = shape_of(Traits::name, to, Destination::is_complex && !areComplex);
        expect_places(Traits::name, from.data, source, to.data, destination, from.count);
        expect_batch_ok(Traits::name,
                        call(reinterpret_cast<const InC*>(from.data), source.step, source.distance,
                             reinterpret_cast<InC*>(to.data), destination.step, destination.distance,
                             static_cast<std::int32_t>(length), factor.flag(), static_cast<std::int64_t>(from.count)));
    }
}

template <viewed Array>
using real_of = typename element_of<typename span_of_view<Array>::element_type>::real;

template <family F, viewed Source, viewed Destination>
void transform_all(const Source& source, const Destination& destination, scale factor) {
    if constexpr (are_arrays_right<F, span_of_view<Source>, span_of_view<Destination>>())
        transform_views<F>(routine<F, real_of<Source>>, view_of(source), view_of(destination), factor);
}

template <family F, viewed Source, viewed Destination>
void transform_in_single(const Source& source, const Destination& destination, scale factor) {
    if constexpr (are_arrays_right<F, span_of_view<Source>, span_of_view<Destination>>()) {
        constexpr bool isSingle = std::is_same_v<real_of<Source>, float>;
        static_assert(isSingle, "zulgenpx: only elements of float can be computed in single");
        if constexpr (isSingle) transform_views<F>(routine_in_single<F>, view_of(source), view_of(destination), factor);
    }
}

/* The pointer of a buffer of at least `due` elements; null where none is due. */
template <class Real, class Buffer>
Real* pointer_of(const char* name, std::size_t due, Buffer buffer) {
    if constexpr (std::is_same_v<Buffer, no_buffer>) {
        if (due != 0) [[unlikely]]
            refuse(StatusNullPointer, name, "a buffer of " + std::to_string(due) + " elements is due");
        return nullptr;
    } else {
        static_assert(std::is_same_v<typename Buffer::element_type, Real>,
                      "zulgenpx: the elements of the buffer are those of the destination");
        if (buffer.size() < due) [[unlikely]]
            refuse_size(name, "the buffer", due, buffer.size());
        return buffer.data();
    }
}

template <class From, class To, class Buffer>
void walsh_hadamard_views(view<From> from, view<To> to, Buffer buffer, scale factor) {
    if constexpr (are_wht_arrays_right<std::span<From>, std::span<To>>()) {
        if (!is_wht_length(from.length)) [[unlikely]]
            refuse(StatusSizeError, wht_name,
                   "lengths are powers of two from 2 to 8192, not " + std::to_string(from.length));
        const int order = std::countr_zero(from.length);
        expect_length(wht_name, "each destination", from.length, to.length);
        expect_counts(wht_name, from.count, to.count);
        const shape source = shape_of(wht_name, from, false), destination = shape_of(wht_name, to, false);
        expect_places(wht_name, from.data, source, to.data, destination, from.count);
        To* const usable = pointer_of<To>(wht_name, batch::wht_buffer_size(order), buffer);
        expect_batch_ok(wht_name, routine<family::WHT, To>(from.data, source.step, source.distance, to.data,
                                                           destination.step, destination.distance, order, factor.flag(),
                                                           static_cast<std::int64_t>(from.count), usable));
    }
}

template <class Real, class From, class To, class Buffer>
void dct4_views(dct4_plan<Real>& plan, view<From> from, view<To> to, Buffer buffer) {
    if constexpr (are_elements_right<std::span<From>, std::span<To>>()) {
        constexpr bool isOfThePlan = std::is_same_v<std::remove_const_t<From>, Real>;
        static_assert(isOfThePlan, "zulgenpx: the elements are not of the type of the plan");
        if constexpr (isOfThePlan) {
            if (!plan) [[unlikely]]
                refuse(StatusNullPointer, dct4_name, "the plan is empty");
            expect_length(dct4_name, "each source", plan.length(), from.length);
            expect_length(dct4_name, "each destination", plan.length(), to.length);
            expect_counts(dct4_name, from.count, to.count);
            const shape source = shape_of(dct4_name, from, false), destination = shape_of(dct4_name, to, false);
            expect_places(dct4_name, from.data, source, to.data, destination, from.count);
            const bool needsBuffer = source.step != 1 || destination.step != 1;
            Real* const usable = pointer_of<Real>(dct4_name, needsBuffer ? plan.length() : 0, buffer);
            expect_batch_ok(dct4_name, dct4_routine<Real>(from.data, source.step, source.distance, to.data,
                                                          destination.step, destination.distance, plan.native(),
                                                          static_cast<std::int64_t>(from.count), usable));
        }
    }
}

}  // namespace detail

/* -- DFT and Hartley transform -------------------------------------------------------------------------------------

   The transforms, layouts and default factors are those of zulgenpx.hpp; lengths are 2 to 64. Each result is bit for
   bit that of the transform by itself. */
template <detail::viewed Source, detail::viewed Destination>
void dft(const Source& source, const Destination& destination, scale factor = scale::inverse_by_n) {
    detail::transform_all<detail::family::DFTFwd_CToC>(source, destination, factor);
}
template <detail::viewed Source, detail::viewed Destination>
void inverse_dft(const Source& source, const Destination& destination, scale factor = scale::inverse_by_n) {
    detail::transform_all<detail::family::DFTInv_CToC>(source, destination, factor);
}
template <layout kept = layout::ccs, detail::viewed Source, detail::viewed Destination>
void real_dft(const Source& source, const Destination& destination, scale factor = scale::inverse_by_n) {
    detail::transform_all<detail::forward_to(kept)>(source, destination, factor);
}
template <layout kept = layout::ccs, detail::viewed Source, detail::viewed Destination>
void inverse_real_dft(const Source& source, const Destination& destination, scale factor = scale::inverse_by_n) {
    detail::transform_all<detail::inverse_of(kept)>(source, destination, factor);
}
template <detail::viewed Source, detail::viewed Destination>
void hartley(const Source& source, const Destination& destination, scale factor = scale::none) {
    detail::transform_all<detail::family::Hartley>(source, destination, factor);
}

/* -- The same computed in single -----------------------------------------------------------------------------------

   Of float only. The transforms above compute in double and round once; these round at every step, and registers hold
   twice as many. zulgenpx_batch.h tells their errors. */
namespace single {

template <detail::viewed Source, detail::viewed Destination>
void dft(const Source& source, const Destination& destination, scale factor = scale::inverse_by_n) {
    detail::transform_in_single<detail::family::DFTFwd_CToC>(source, destination, factor);
}
template <detail::viewed Source, detail::viewed Destination>
void inverse_dft(const Source& source, const Destination& destination, scale factor = scale::inverse_by_n) {
    detail::transform_in_single<detail::family::DFTInv_CToC>(source, destination, factor);
}
template <layout kept = layout::ccs, detail::viewed Source, detail::viewed Destination>
void real_dft(const Source& source, const Destination& destination, scale factor = scale::inverse_by_n) {
    detail::transform_in_single<detail::forward_to(kept)>(source, destination, factor);
}
template <layout kept = layout::ccs, detail::viewed Source, detail::viewed Destination>
void inverse_real_dft(const Source& source, const Destination& destination, scale factor = scale::inverse_by_n) {
    detail::transform_in_single<detail::inverse_of(kept)>(source, destination, factor);
}
template <detail::viewed Source, detail::viewed Destination>
void hartley(const Source& source, const Destination& destination, scale factor = scale::none) {
    detail::transform_in_single<detail::family::Hartley>(source, destination, factor);
}

}  // namespace single

/* -- Walsh-Hadamard transform --------------------------------------------------------------------------------------

   Lengths of 2^8 to 2^13 need a buffer of at least batch::wht_buffer_size(order) elements, which overlaps neither the
   source nor the destination; shorter ones ignore it. Where it is missing or too short, the call throws. */
template <detail::viewed Source, detail::viewed Destination>
void wht(const Source& source, const Destination& destination, scale factor = scale::none) {
    detail::walsh_hadamard_views(detail::view_of(source), detail::view_of(destination), detail::no_buffer{}, factor);
}
template <detail::viewed Source, detail::viewed Destination, detail::array Buffer>
void wht(const Source& source, const Destination& destination, Buffer&& buffer, scale factor = scale::none) {
    detail::walsh_hadamard_views(detail::view_of(source), detail::view_of(destination), std::span{buffer}, factor);
}

/* -- DCT-IV --------------------------------------------------------------------------------------------------------

   The length is that of the plan, which serves one thread at a time. Where a step is not 1, a buffer of at least as
   many elements as one transform has is needed, which overlaps neither source nor destination. Where it is missing or
   too short, the call throws. */
template <class Real, detail::viewed Source, detail::viewed Destination>
void dct4(dct4_plan<Real>& plan, const Source& source, const Destination& destination) {
    detail::dct4_views(plan, detail::view_of(source), detail::view_of(destination), detail::no_buffer{});
}
template <class Real, detail::viewed Source, detail::viewed Destination, detail::array Buffer>
void dct4(dct4_plan<Real>& plan, const Source& source, const Destination& destination, Buffer&& buffer) {
    detail::dct4_views(plan, detail::view_of(source), detail::view_of(destination), std::span{buffer});
}

}  // namespace zulgenpx::batch

#endif
