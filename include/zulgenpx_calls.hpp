/* zulgenpx_calls: how a call of the C++ headers finds its routine and what it checks before. Included by zulgenpx.hpp.
 */
#ifndef ZULGENPX_CALLS_HPP
#define ZULGENPX_CALLS_HPP

#include <array>
#include <bit>

#include "zulgenpx_arrays.hpp"

namespace zulgenpx {

/* One of the four factors of the table above. */
class scale {
public:
    static const scale forward_by_n, inverse_by_n, both_by_sqrt_n, none;

    /* The flag of the C routines: DivFwdByN, DivInvByN, DivBySqrtN, NoDivByAny. */
    [[nodiscard]] constexpr std::int32_t flag() const noexcept { return value; }
    friend constexpr bool operator==(scale, scale) noexcept = default;

private:
    constexpr explicit scale(std::int32_t flag) noexcept : value(flag) {}
    std::int32_t value;
};
inline constexpr scale scale::forward_by_n{DivFwdByN};
inline constexpr scale scale::inverse_by_n{DivInvByN};
inline constexpr scale scale::both_by_sqrt_n{DivBySqrtN};
inline constexpr scale scale::none{NoDivByAny};

/* How a half spectrum is kept; zulgenpx.h has a table. A spectrum in CCS is an array of N/2 + 1 complex numbers, the
   bins 0 .. N/2, or one of twice as many reals. Pack and Perm are N reals. */
enum class layout { ccs, pack, perm };

/* The length, or the order, is that of the arrays. */
inline constexpr int of_arrays = 0;

inline constexpr int shortest_length = 2, longest_length = 64;
inline constexpr int least_order = 1, greatest_order = 13;

/* How many elements the buffer of a Walsh-Hadamard transform has at least: 0 for the orders 1 to 7, which need none. */
[[nodiscard]] constexpr std::size_t wht_buffer_size(int order) noexcept {
    const std::size_t blocks = order == 13 ? 1024 : order == 12 ? 256 : 0;
    return order < 8 || order > greatest_order ? 0 : (std::size_t{1} << order) + blocks;
}

namespace detail {

template <class Element>
using routine = ZulgStatus(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t flag);
template <class Element>
using wht_routine = ZulgStatus(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t flag, Element* pBuffer);

/* The same routine as one that throws nothing, as none of them does: a call may then be the last step of a function
   that is noexcept. A declaration in C cannot say so. */
template <class... Arguments>
using silent_routine = ZulgStatus(ZULG_CALL*)(Arguments...) noexcept;
template <class... Arguments>
auto silent(ZulgStatus(ZULG_CALL* call)(Arguments...)) noexcept {
    return reinterpret_cast<silent_routine<Arguments...>>(call);
}

enum class family;
template <family, class Real>
struct routines;
#include "zulgenpx_routines.hpp"

/* What an array of a transform holds. */
enum class content { complex, real, ccs, packed };

template <family>
struct traits;
template <>
struct traits<family::DFTFwd_CToC> {
    static constexpr auto name = "dft";
    static constexpr content source = content::complex, destination = content::complex;
};
template <>
struct traits<family::DFTInv_CToC> {
    static constexpr auto name = "inverse_dft";
    static constexpr content source = content::complex, destination = content::complex;
};
template <content spectrum>
struct forward_traits {
    static constexpr auto name = "real_dft";
    static constexpr content source = content::real, destination = spectrum;
};
template <>
struct traits<family::DFTFwd_RToCCS> : forward_traits<content::ccs> {};
template <>
struct traits<family::DFTFwd_RToPack> : forward_traits<content::packed> {};
template <>
struct traits<family::DFTFwd_RToPerm> : forward_traits<content::packed> {};
template <content spectrum>
struct inverse_traits {
    static constexpr auto name = "inverse_real_dft";
    static constexpr content source = spectrum, destination = content::real;
};
template <>
struct traits<family::DFTInv_CCSToR> : inverse_traits<content::ccs> {};
template <>
struct traits<family::DFTInv_PackToR> : inverse_traits<content::packed> {};
template <>
struct traits<family::DFTInv_PermToR> : inverse_traits<content::packed> {};
template <>
struct traits<family::Hartley> {
    static constexpr auto name = "hartley";
    static constexpr content source = content::real, destination = content::real;
};

constexpr family forward_to(layout spectrum) {
    return spectrum == layout::ccs    ? family::DFTFwd_RToCCS
           : spectrum == layout::pack ? family::DFTFwd_RToPack
                                      : family::DFTFwd_RToPerm;
}
constexpr family inverse_of(layout spectrum) {
    return spectrum == layout::ccs    ? family::DFTInv_CCSToR
           : spectrum == layout::pack ? family::DFTInv_PackToR
                                      : family::DFTInv_PermToR;
}

constexpr std::size_t size_of(content what, std::size_t length, bool isComplex) {
    if (what != content::ccs) return length;
    return isComplex ? length / 2 + 1 : length / 2 * 2 + 2;
}
constexpr bool may_hold(content what, bool isComplex) {
    return what == content::ccs || isComplex == (what == content::complex);
}

/* The length if it is known now: it is named, or it is the size of an array that has as many elements. */
template <family F, int N, class Source, class Destination>
consteval std::size_t known_length() {
    if (N != of_arrays) return static_cast<std::size_t>(N);
    if (traits<F>::source != content::ccs && Source::extent != std::dynamic_extent) return Source::extent;
    if (traits<F>::destination != content::ccs && Destination::extent != std::dynamic_extent)
        return Destination::extent;
    return 0;
}

/* Misuse that shows in the types is named once: what follows is not compiled then. */
template <family F, class Source, class Destination>
consteval bool are_arrays_right() {
    if constexpr (are_elements_right<Source, Destination>()) {
        constexpr bool isSourceRight =
            may_hold(traits<F>::source, element_of<typename Source::element_type>::is_complex);
        static_assert(isSourceRight || traits<F>::source == content::complex,
                      "zulgenpx: this transform takes real elements; those of the source are complex");
        static_assert(isSourceRight || traits<F>::source != content::complex,
                      "zulgenpx: this transform takes complex elements; those of the source are real");
        constexpr bool isDestinationRight =
            may_hold(traits<F>::destination, element_of<typename Destination::element_type>::is_complex);
        static_assert(isDestinationRight || traits<F>::destination == content::complex,
                      "zulgenpx: this transform gives real elements; those of the destination are complex");
        static_assert(isDestinationRight || traits<F>::destination != content::complex,
                      "zulgenpx: this transform gives complex elements; those of the destination are real");
        return isSourceRight && isDestinationRight;
    }
    return false;
}

template <std::size_t N>
consteval bool is_length() {
    constexpr bool isRight = N >= shortest_length && N <= longest_length;
    static_assert(isRight, "zulgenpx: lengths are 2 to 64");
    return isRight;
}

template <std::size_t sourceSize, std::size_t destinationSize, class Source, class Destination>
consteval bool are_sizes_right() {
    constexpr bool isSourceRight = Source::extent == std::dynamic_extent || Source::extent == sourceSize;
    static_assert(isSourceRight, "zulgenpx: the source has not as many elements as the transform reads");
    constexpr bool isDestinationRight =
        Destination::extent == std::dynamic_extent || Destination::extent == destinationSize;
    static_assert(isDestinationRight, "zulgenpx: the destination has not as many elements as the transform writes");
    return isSourceRight && isDestinationRight;
}

/* One transform of spans. */
template <family F, int N, class Source, class Destination>
void transform(Source from, Destination to, scale factor) noexcept(is_fixed<Source>&& is_fixed<Destination>) {
    if constexpr (are_arrays_right<F, Source, Destination>()) {
        using Traits = traits<F>;
        using From = element_of<typename Source::element_type>;
        using To = element_of<typename Destination::element_type>;
        using Routines = routines<F, typename From::real>;
        using InC = std::conditional_t<From::is_complex && To::is_complex, typename From::in_c, typename From::real>;
        const auto* const source = reinterpret_cast<const InC*>(in_c(from));
        auto* const destination = reinterpret_cast<InC*>(in_c(to));
        constexpr std::size_t known = known_length<F, N, Source, Destination>();
        if constexpr (known != 0) {
            if constexpr (is_length<known>()) {
                constexpr std::size_t read = size_of(Traits::source, known, From::is_complex);
                constexpr std::size_t written = size_of(Traits::destination, known, To::is_complex);
                if constexpr (are_sizes_right<read, written, Source, Destination>()) {
                    constexpr auto call = Routines::each[known - Routines::first];
                    if constexpr (is_fixed<Source> && is_fixed<Destination>) {
                        silent(call)(source, destination, factor.flag());
                    } else {
                        expect_size(Traits::name, "the source", read, from);
                        expect_size(Traits::name, "the destination", written, to);
                        expect_ok(Traits::name, call(source, destination, factor.flag()));
                    }
                }
            }
        } else {
            const std::size_t length = Traits::source != content::ccs ? from.size() : to.size();
            if (length < shortest_length || length > longest_length) [[unlikely]]
                refuse(StatusSizeError, Traits::name, "lengths are 2 to 64, not " + std::to_string(length));
            expect_size(Traits::name, "the source", size_of(Traits::source, length, From::is_complex), from);
            expect_size(Traits::name, "the destination", size_of(Traits::destination, length, To::is_complex), to);
            expect_ok(Traits::name,
                      Routines::any(source, destination, static_cast<std::int32_t>(length), factor.flag()));
        }
    }
}

/* The same with a result that is returned. */
template <family F, int N, class Source>
auto transformed(Source from, scale factor) noexcept(is_fixed<Source>) {
    using From = element_of<typename Source::element_type>;
    constexpr std::size_t length = known_length<F, N, Source, std::span<int>>();  // of the source alone
    static_assert(From::is_known,
                  "zulgenpx: elements are float, double, std::complex of these, or the complex types of C");
    static_assert(length != 0,
                  "zulgenpx: the length of the result is not known at compile time; name it, or pass a destination");
    if constexpr (From::is_known && length != 0) {
        using Real = typename From::real;
        constexpr content what = traits<F>::destination;
        constexpr bool isComplex = what == content::complex || what == content::ccs;
        std::array<std::conditional_t<isComplex, std::complex<Real>, Real>, size_of(what, length, isComplex)> result;
        transform<F, N>(from, std::span{result}, factor);
        return result;
    }
}

inline constexpr std::size_t largest_wht = std::size_t{1} << greatest_order;
constexpr bool is_wht_length(std::size_t length) {
    return std::has_single_bit(length) && length >= 2 && length <= largest_wht;
}

template <int Order, class Source, class Destination>
consteval int known_order() {
    if (Order != of_arrays) return Order;
    constexpr std::size_t extent = Source::extent != std::dynamic_extent ? Source::extent : Destination::extent;
    constexpr bool isRight = extent == std::dynamic_extent || is_wht_length(extent);
    static_assert(isRight, "zulgenpx: lengths of the Walsh-Hadamard transform are powers of two from 2 to 8192");
    return extent == std::dynamic_extent || !isRight ? 0 : std::countr_zero(extent);
}

template <int order>
consteval bool is_order() {
    constexpr bool isRight = order >= least_order && order <= greatest_order;
    static_assert(isRight, "zulgenpx: orders of the Walsh-Hadamard transform are 1 to 13");
    return isRight;
}

template <class Source, class Destination>
consteval bool are_wht_arrays_right() {
    if constexpr (are_elements_right<Source, Destination>()) {
        constexpr bool areReal = !element_of<typename Source::element_type>::is_complex &&
                                 !element_of<typename Destination::element_type>::is_complex;
        static_assert(areReal, "zulgenpx: this transform takes and gives real elements");
        return areReal;
    }
    return false;
}

/* No buffer is passed. */
struct no_buffer {
    static constexpr std::size_t extent = 0;
};

template <int order, class Buffer>
consteval bool is_buffer_long_enough() {
    constexpr bool isThere = !std::is_same_v<Buffer, no_buffer> || wht_buffer_size(order) == 0;
    static_assert(isThere, "zulgenpx: orders 8 to 13 of the Walsh-Hadamard transform need a buffer");
    constexpr bool isLongEnough =
        !isThere || Buffer::extent == std::dynamic_extent || Buffer::extent >= wht_buffer_size(order);
    static_assert(isLongEnough, "zulgenpx: the buffer has fewer than wht_buffer_size(order) elements");
    return isThere && isLongEnough;
}

inline constexpr const char* wht_name = "wht";

/* Null where the buffer is ignored. */
template <class Source, class Destination, class Buffer>
auto* usable_buffer(int order, Source from, Destination to, Buffer buffer) noexcept(
    std::is_same_v<Buffer, no_buffer>&& is_fixed<Source>&& is_fixed<Destination>) {
    using Real = typename Destination::element_type;
    Real* usable = nullptr;
    const std::size_t due = wht_buffer_size(order);
    if constexpr (std::is_same_v<Buffer, no_buffer>) {
        if constexpr (!is_fixed<Source> || !is_fixed<Destination>) {
            if (due != 0) [[unlikely]]
                refuse(StatusNullPointer, wht_name, "order " + std::to_string(order) + " needs a buffer");
        }
    } else {
        static_assert(std::is_same_v<typename Buffer::element_type, Real>,
                      "zulgenpx: the elements of the buffer are those of the destination");
        if (buffer.size() < due) [[unlikely]]
            refuse_size(wht_name, "the buffer", due, buffer.size());
        if (due != 0) {
            if (overlap(from, buffer) || overlap(to, buffer)) [[unlikely]]
                refuse(StatusFlagError, wht_name, "the buffer overlaps the source or the destination");
            usable = buffer.data();
        }
    }
    return usable;
}

template <int Order, class Source, class Destination, class Buffer>
void walsh_hadamard(Source from, Destination to, Buffer buffer, scale factor) noexcept(
    std::is_same_v<Buffer, no_buffer>&& is_fixed<Source>&& is_fixed<Destination>) {
    if constexpr (are_wht_arrays_right<Source, Destination>()) {
        using Routines = routines<family::WHT, typename Destination::element_type>;
        constexpr int known = known_order<Order, Source, Destination>();
        if constexpr (known != 0) {
            if constexpr (is_order<known>()) {
                constexpr std::size_t size = std::size_t{1} << known;
                if constexpr (are_sizes_right<size, size, Source, Destination>() &&
                              is_buffer_long_enough<known, Buffer>()) {
                    constexpr auto call = Routines::each[known - Routines::first];
                    expect_size(wht_name, "the source", size, from);
                    expect_size(wht_name, "the destination", size, to);
                    auto* const usable = usable_buffer(known, from, to, buffer);
                    if constexpr (is_fixed<Source> && is_fixed<Destination>) {
                        silent(call)(from.data(), to.data(), factor.flag(), usable);
                    } else {
                        expect_ok(wht_name, call(from.data(), to.data(), factor.flag(), usable));
                    }
                }
            }
        } else if constexpr (Order == of_arrays && !is_fixed<Source> && !is_fixed<Destination>) {
            const std::size_t size = from.size();
            if (!is_wht_length(size)) [[unlikely]]
                refuse(StatusSizeError, wht_name,
                       "lengths are powers of two from 2 to 8192, not " + std::to_string(size));
            expect_size(wht_name, "the destination", size, to);
            const int order = std::countr_zero(size);
            auto* const usable = usable_buffer(order, from, to, buffer);
            expect_ok(wht_name, Routines::any(from.data(), to.data(), order, factor.flag(), usable));
        }
    }
}

template <int Order, class Source>
auto walsh_hadamard_of(Source from, scale factor) noexcept(is_fixed<Source>) {
    using Element = std::remove_const_t<typename Source::element_type>;
    constexpr int order = known_order<Order, Source, Source>();
    static_assert(order != 0,
                  "zulgenpx: the length of the result is not known at compile time; name it, or pass a destination");
    if constexpr (order != 0) {
        if constexpr (is_order<order>()) {
            std::array<Element, std::size_t{1} << order> result;
            walsh_hadamard<order>(from, std::span{result}, no_buffer{}, factor);
            return result;
        }
    }
}

}  // namespace detail
}  // namespace zulgenpx

#endif
