/* zulgenpx: small signal transforms, for C++20. This header is all there is to include; programs are linked with the
   library as those in C are. What the transforms compute, how exact they are and what stack they take is told in
   zulgenpx.h.

   Example, a spectrum and back:

     #include <array>
     #include <complex>

     #include "zulgenpx.hpp"

     std::array<std::complex<double>, 15> x{}, spectrum;
     x[1] = 1;
     zulgenpx::dft<15>(x, spectrum);             // X[k] = sum of x[n] exp(-2 pi i n k/15)
     zulgenpx::inverse_dft<15>(spectrum, x);     // and back, 1/15 on the way
     printf("%.1f %.1f\n", spectrum[0].real(), x[1].real());   // prints 1.0 1.0

   Lengths. A length between angle brackets picks its routine when the program is compiled: the call above is one call
   of zulgDFTFwd_CToC_15_64fc. Without brackets the length is that of the arrays. If it is part of their types, as with
   std::array, the routine is picked in the same way; otherwise the routine that takes the length as an argument is
   called.

   Arrays are anything whose elements are in a row: std::span, std::array, std::vector, arrays of C. Elements are float
   or double, or complex: std::complex, Zulg32fc or Zulg64fc. An array has as many elements as the transform reads or
   writes, no more and no fewer. Source and destination may be the same array, and they may overlap in any other way.

   Scale. The factor on each output is the last argument:

                              forward     inverse     Hartley, Walsh-Hadamard
     scale::forward_by_n          1/N           1                         1/N
     scale::inverse_by_n            1         1/N                         1/N    the default of the DFT
     scale::both_by_sqrt_n  1/sqrt(N)   1/sqrt(N)                   1/sqrt(N)
     scale::none                    1           1                           1    the default of the other two

   So inverse_dft restores what dft was given. There are no other values of this type.

   Results. With a source only, a call returns an array, if the length is known at compile time:

     const auto X = zulgenpx::dft<15>(x);        // std::array<std::complex<double>, 15>

   std::complex sets this array to zero first. Where that matters, pass a destination.

   Errors. A wrong size that is part of a type, a length without a routine, a destination that is const or temporary, or
   elements of different types do not compile; the message of the compiler begins with "zulgenpx:". What is only known
   when the program runs throws zulgenpx::error, which is a std::invalid_argument; nothing has been written then. A call
   with arrays that both have their size in their type is noexcept. A program that is compiled without exceptions ends
   with the message on the standard error instead.

   Example, arrays whose size is known only when the program runs:

     #include <vector>

     #include "zulgenpx.hpp"

     std::vector<float> x(48, 1.0f), hartley(47);
     try {
         zulgenpx::hartley(x, hartley);
     } catch (const zulgenpx::error& error) {
         puts(error.what());   // prints zulgenpx::hartley: the destination has 47 elements, 48 are due
     }

   Threads, memory. Any number of threads may call at the same time, each with its own destination and buffer. A plan of
   the DCT-IV serves one thread at a time. Nothing but a plan allocates memory. */
#ifndef ZULGENPX_HPP
#define ZULGENPX_HPP

#include "zulgenpx_calls.hpp"
#include "zulgenpx_dct4.hpp"

namespace zulgenpx {

/* -- Complex DFT ---------------------------------------------------------------------------------------------------

     dft<N>           X[k] = factor * sum over n of x[n] exp(-2 pi i n k/N)     k = 0 .. N-1
     inverse_dft<N>   x[n] = factor * sum over k of X[k] exp(+2 pi i n k/N)     n = 0 .. N-1

   N complex elements each, N from 2 to 64. */
template <int N = of_arrays, detail::array Source, detail::array Destination>
void dft(Source&& source, Destination&& destination,
         scale factor = scale::inverse_by_n) noexcept(detail::is_fixed<Source>&& detail::is_fixed<Destination>) {
    detail::transform<detail::family::DFTFwd_CToC, N>(std::span{source}, detail::kept_span<Destination>(destination),
                                                      factor);
}
template <int N = of_arrays, detail::array Source>
[[nodiscard]] auto dft(const Source& source,
                       scale factor = scale::inverse_by_n) noexcept(detail::is_fixed<const Source>) {
    return detail::transformed<detail::family::DFTFwd_CToC, N>(std::span{source}, factor);
}
template <int N = of_arrays, detail::array Source, detail::array Destination>
void inverse_dft(Source&& source, Destination&& destination, scale factor = scale::inverse_by_n) noexcept(
    detail::is_fixed<Source>&& detail::is_fixed<Destination>) {
    detail::transform<detail::family::DFTInv_CToC, N>(std::span{source}, detail::kept_span<Destination>(destination),
                                                      factor);
}
template <int N = of_arrays, detail::array Source>
[[nodiscard]] auto inverse_dft(const Source& source,
                               scale factor = scale::inverse_by_n) noexcept(detail::is_fixed<const Source>) {
    return detail::transformed<detail::family::DFTInv_CToC, N>(std::span{source}, factor);
}

/* -- Real DFT ------------------------------------------------------------------------------------------------------

     real_dft<N, layout>           the half spectrum of N real values, in CCS if no layout is named
     inverse_real_dft<N, layout>   N real values of a half spectrum

   N from 2 to 64. Where only the layout is named, the length is that of the array of real values. An array in CCS has
   the same size for two lengths, so that the length must be named to get the real values as a result.

   Example, the spectrum of real values:

     #include <array>
     #include <complex>

     #include "zulgenpx.hpp"

     const std::array<double, 6> x{1, 2, 3, 4, 5, 6};
     const auto bins = zulgenpx::real_dft<6>(x);                             // 4 complex numbers
     const auto packed = zulgenpx::real_dft<6, zulgenpx::layout::pack>(x);   // 6 real ones
     const auto again = zulgenpx::inverse_real_dft<6>(bins);
     printf("%.0f %.0f %.0f\n", bins[0].real(), packed[5], again[5]);        // prints 21 -3 6
   */
template <int N = of_arrays, layout kept = layout::ccs, detail::array Source, detail::array Destination>
void real_dft(Source&& source, Destination&& destination,
              scale factor = scale::inverse_by_n) noexcept(detail::is_fixed<Source>&& detail::is_fixed<Destination>) {
    detail::transform<detail::forward_to(kept), N>(std::span{source}, detail::kept_span<Destination>(destination),
                                                   factor);
}
template <int N = of_arrays, layout kept = layout::ccs, detail::array Source>
[[nodiscard]] auto real_dft(const Source& source,
                            scale factor = scale::inverse_by_n) noexcept(detail::is_fixed<const Source>) {
    return detail::transformed<detail::forward_to(kept), N>(std::span{source}, factor);
}
template <layout kept, int N = of_arrays, detail::array Source, detail::array Destination>
void real_dft(Source&& source, Destination&& destination,
              scale factor = scale::inverse_by_n) noexcept(detail::is_fixed<Source>&& detail::is_fixed<Destination>) {
    detail::transform<detail::forward_to(kept), N>(std::span{source}, detail::kept_span<Destination>(destination),
                                                   factor);
}
template <layout kept, int N = of_arrays, detail::array Source>
[[nodiscard]] auto real_dft(const Source& source,
                            scale factor = scale::inverse_by_n) noexcept(detail::is_fixed<const Source>) {
    return detail::transformed<detail::forward_to(kept), N>(std::span{source}, factor);
}
template <int N = of_arrays, layout kept = layout::ccs, detail::array Source, detail::array Destination>
void inverse_real_dft(Source&& source, Destination&& destination, scale factor = scale::inverse_by_n) noexcept(
    detail::is_fixed<Source>&& detail::is_fixed<Destination>) {
    detail::transform<detail::inverse_of(kept), N>(std::span{source}, detail::kept_span<Destination>(destination),
                                                   factor);
}
template <int N = of_arrays, layout kept = layout::ccs, detail::array Source>
[[nodiscard]] auto inverse_real_dft(const Source& source,
                                    scale factor = scale::inverse_by_n) noexcept(detail::is_fixed<const Source>) {
    return detail::transformed<detail::inverse_of(kept), N>(std::span{source}, factor);
}
template <layout kept, int N = of_arrays, detail::array Source, detail::array Destination>
void inverse_real_dft(Source&& source, Destination&& destination, scale factor = scale::inverse_by_n) noexcept(
    detail::is_fixed<Source>&& detail::is_fixed<Destination>) {
    detail::transform<detail::inverse_of(kept), N>(std::span{source}, detail::kept_span<Destination>(destination),
                                                   factor);
}
template <layout kept, int N = of_arrays, detail::array Source>
[[nodiscard]] auto inverse_real_dft(const Source& source,
                                    scale factor = scale::inverse_by_n) noexcept(detail::is_fixed<const Source>) {
    return detail::transformed<detail::inverse_of(kept), N>(std::span{source}, factor);
}

/* -- Hartley transform ---------------------------------------------------------------------------------------------

     hartley<N>   out[k] = factor * sum over j of in[j] (cos(2 pi j k/N) + sin(2 pi j k/N))   k = 0 .. N-1

   N real elements each, N from 2 to 64. It is its own inverse up to the factor. */
template <int N = of_arrays, detail::array Source, detail::array Destination>
void hartley(Source&& source, Destination&& destination,
             scale factor = scale::none) noexcept(detail::is_fixed<Source>&& detail::is_fixed<Destination>) {
    detail::transform<detail::family::Hartley, N>(std::span{source}, detail::kept_span<Destination>(destination),
                                                  factor);
}
template <int N = of_arrays, detail::array Source>
[[nodiscard]] auto hartley(const Source& source, scale factor = scale::none) noexcept(detail::is_fixed<const Source>) {
    return detail::transformed<detail::family::Hartley, N>(std::span{source}, factor);
}

/* -- Walsh-Hadamard transform --------------------------------------------------------------------------------------

     wht<order>   out[k] = factor * sum over j of (-1)^(bits set in both j and k) in[j]   k = 0 .. 2^order - 1

   2^order real elements each, orders 1 to 13. Orders 8 to 13 work through a buffer of at least wht_buffer_size(order)
   elements of the same type, which overlaps neither source nor destination; what is left in it has no meaning. Without
   one they do not compile, or throw if the order is that of the arrays: nothing is allocated here. Orders 1 to 7 ignore
   a buffer.

   Example, an order that needs a buffer:

     #include <vector>

     #include "zulgenpx.hpp"

     std::vector<float> x(512, 1.0f), buffer(zulgenpx::wht_buffer_size(9));
     zulgenpx::wht<9>(x, x, buffer);
     printf("%.0f %.0f\n", x[0], x[1]);   // prints 512 0
   */
template <int order = of_arrays, detail::array Source, detail::array Destination>
void wht(Source&& source, Destination&& destination,
         scale factor = scale::none) noexcept(detail::is_fixed<Source>&& detail::is_fixed<Destination>) {
    detail::walsh_hadamard<order>(std::span{source}, detail::kept_span<Destination>(destination), detail::no_buffer{},
                                  factor);
}
template <int order = of_arrays, detail::array Source, detail::array Destination, detail::array Buffer>
void wht(Source&& source, Destination&& destination, Buffer&& buffer, scale factor = scale::none) {
    detail::walsh_hadamard<order>(std::span{source}, detail::kept_span<Destination>(destination), std::span{buffer},
                                  factor);
}
template <int order = of_arrays, detail::array Source>
[[nodiscard]] auto wht(const Source& source, scale factor = scale::none) noexcept(detail::is_fixed<const Source>) {
    return detail::walsh_hadamard_of<order>(std::span{source}, factor);
}

}  // namespace zulgenpx

#endif
