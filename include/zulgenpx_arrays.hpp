/* zulgenpx_arrays: what the C++ headers of zulgenpx take for an array, and what they throw. Included by zulgenpx.hpp.
 */
#ifndef ZULGENPX_ARRAYS_HPP
#define ZULGENPX_ARRAYS_HPP

#include <complex>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <ranges>
#include <span>
#include <stdexcept>
#include <string>
#include <type_traits>

#include "zulgenpx.h"

namespace zulgenpx {

/* What is thrown on misuse that only shows when the program runs. The message names the routine and what is wrong; the
   status is the one that the C routine would return. */
class error : public std::invalid_argument {
public:
    error(ZulgStatus status, const std::string& message) : std::invalid_argument(message), value(status) {}
    [[nodiscard]] ZulgStatus status() const noexcept { return value; }

private:
    ZulgStatus value;
};

namespace detail {

/* A program that is compiled without exceptions ends here, with the message on the standard error. */
[[noreturn, gnu::cold, gnu::noinline]] inline void refuse(ZulgStatus status, const char* routine,
                                                          const std::string& what) {
    const std::string message = "zulgenpx::" + std::string(routine) + ": " + what;
#if defined(__cpp_exceptions)
    throw error(status, message);
#else
    static_cast<void>(status);
    std::fprintf(stderr, "%s\n", message.c_str());
    std::abort();
#endif
}

[[noreturn, gnu::cold, gnu::noinline]] inline void refuse_size(const char* routine, const char* array, std::size_t due,
                                                               std::size_t size) {
    refuse(StatusSizeError, routine,
           std::string(array) + " has " + std::to_string(size) + " elements, " + std::to_string(due) + " are due");
}

[[noreturn, gnu::cold, gnu::noinline]] inline void refuse_status(const char* routine, ZulgStatus status) {
    refuse(status, routine,
           status == StatusNullPointer ? "an array is a null pointer" : "ends with status " + std::to_string(status));
}

inline void expect_ok(const char* routine, ZulgStatus status) {
    if (status != StatusOk) [[unlikely]]
        refuse_status(routine, status);
}

/* What an element is to the C routines. */
template <class Element>
struct element {
    static constexpr bool is_known = false, is_complex = false;
};
template <class Real, class InC, bool isComplex>
struct known_element {
    static constexpr bool is_known = true, is_complex = isComplex;
    using real = Real;
    using in_c = InC;
};
template <>
struct element<float> : known_element<float, Zulg32f, false> {};
template <>
struct element<double> : known_element<double, Zulg64f, false> {};
template <>
struct element<std::complex<float>> : known_element<float, Zulg32fc, true> {};
template <>
struct element<std::complex<double>> : known_element<double, Zulg64fc, true> {};
template <>
struct element<Zulg32fc> : known_element<float, Zulg32fc, true> {};
template <>
struct element<Zulg64fc> : known_element<double, Zulg64fc, true> {};

template <class Element>
using element_of = element<std::remove_const_t<Element>>;

/* Anything whose elements are in a row: std::span, std::array, std::vector, an array of C. */
template <class Array>
concept array = std::ranges::contiguous_range<Array> && std::ranges::sized_range<Array>;

/* The span of an array. It keeps a size that is part of the type. */
template <class Array>
using span_of = decltype(std::span{std::declval<Array&>()});

template <class Array>
inline constexpr bool is_fixed = span_of<Array>::extent != std::dynamic_extent;

/* The span of a destination: Array is a reference, unless the destination is a temporary. */
template <class Array>
auto kept_span(std::remove_reference_t<Array>& array) noexcept {
    static_assert(std::ranges::borrowed_range<Array>,
                  "zulgenpx: the array is a temporary, so that the result would be lost");
    return std::span{array};
}

/* The pointer that a C routine takes. The layouts are the same. */
template <class Span>
auto in_c(Span span) noexcept {
    using Element = typename Span::element_type;
    using InC = typename element_of<Element>::in_c;
    return reinterpret_cast<std::conditional_t<std::is_const_v<Element>, const InC, InC>*>(span.data());
}

/* Compares the size of an array that is known only now. The others have been compared when they were compiled. */
template <class Span>
void expect_size(const char* routine, const char* array, std::size_t due,
                 Span span) noexcept(Span::extent != std::dynamic_extent) {
    if constexpr (Span::extent == std::dynamic_extent) {
        if (span.size() != due) [[unlikely]]
            refuse_size(routine, array, due, span.size());
    }
}

/* Whether two pieces of memory have a byte in common. */
inline bool overlap(const void* a, std::size_t bytesOfA, const void* b, std::size_t bytesOfB) noexcept {
    const std::less<const std::byte*> isBefore;
    const auto *const beginA = static_cast<const std::byte*>(a), *const beginB = static_cast<const std::byte*>(b);
    return isBefore(beginA, beginB + bytesOfB) && isBefore(beginB, beginA + bytesOfA);
}
template <class A, class B>
bool overlap(A a, B b) noexcept {
    return overlap(a.data(), a.size_bytes(), b.data(), b.size_bytes());
}

/* What holds of the arrays of any transform. Misuse is named and nothing else is reported of it. */
template <class Source, class Destination>
consteval bool are_elements_right() {
    using From = element_of<typename Source::element_type>;
    using To = element_of<typename Destination::element_type>;
    constexpr bool areKnown = From::is_known && To::is_known;
    static_assert(areKnown, "zulgenpx: elements are float, double, std::complex of these, or the complex types of C");
    constexpr bool isWritable = !std::is_const_v<typename Destination::element_type>;
    static_assert(isWritable, "zulgenpx: the destination is const");
    if constexpr (areKnown) {
        constexpr bool isSame = std::is_same_v<typename From::real, typename To::real>;
        static_assert(isSame, "zulgenpx: source and destination must both be single or both be double");
        return isSame && isWritable;
    }
    return false;
}

}  // namespace detail
}  // namespace zulgenpx

#endif
