/* zulgenpx_dct4: plans of the DCT-IV that look after their memory. Included by zulgenpx.hpp. */
#ifndef ZULGENPX_DCT4_HPP
#define ZULGENPX_DCT4_HPP

#include <array>
#include <bit>
#include <new>
#include <utility>

#include "zulgenpx_arrays.hpp"

namespace zulgenpx {

/* Chooses the core library as the one who gives the memory of a plan. */
struct of_core_library_t {
    explicit of_core_library_t() = default;
};
inline constexpr of_core_library_t of_core_library{};

namespace detail {

template <class Real>
struct dct4_routines;
template <>
struct dct4_routines<float> {
    using plan = ZulgDCT4Plan_32f;
    static constexpr std::size_t longest = std::size_t{1} << 27;
    static constexpr auto run = zulgDCT4_32f;
    static constexpr auto size = zulgDCT4GetSize_32f;
    static constexpr auto init = zulgDCT4Init_32f;
    static constexpr auto init_alloc = zulgDCT4InitAlloc_32f;
    static constexpr auto free = zulgDCT4Free_32f;
};
template <>
struct dct4_routines<double> {
    using plan = ZulgDCT4Plan_64f;
    static constexpr std::size_t longest = std::size_t{1} << 26;
    static constexpr auto run = zulgDCT4_64f;
    static constexpr auto size = zulgDCT4GetSize_64f;
    static constexpr auto init = zulgDCT4Init_64f;
    static constexpr auto init_alloc = zulgDCT4InitAlloc_64f;
    static constexpr auto free = zulgDCT4Free_64f;
};

inline constexpr const char* dct4_name = "dct4_plan";

[[noreturn, gnu::cold, gnu::noinline]] inline void refuse_memory() {
#if defined(__cpp_exceptions)
    throw std::bad_alloc();
#else
    refuse(StatusNullPointer, dct4_name, "there is no memory");
#endif
}

}  // namespace detail

/* -- DCT-IV --------------------------------------------------------------------------------------------------------

     dct4_plan<float> plan(N)
     plan(x, y)     y[k] = sum over n of x[n] cos(pi (n + 1/2)(k + 1/2)/N)   k = 0 .. N-1; no scale
     y = plan(x)    the same as an array, where the size of x is part of its type

   x and y are N elements of the type of the plan. They may be the same array or overlap. Twice gives N/2 times the
   input.

   N is a power of two from 2 to 2^27 in float, to 2^26 in double: every other length is refused, also those that the C
   routines accept and must not be called with. The memory of a plan is one block, which begins at a multiple of 32:

     dct4_plan(N)                    from the aligned operator new
     dct4_plan(N, of_core_library)   from the core library
     dct4_plan(N, memory)            part of `memory`, a span of bytes, which the plan does not own. It outlives the
                                     plan, and overlaps neither x nor y. bytes(N) are enough if it begins at a multiple
                                     of 32; alignment - 1 more are enough wherever it begins

   The destructor gives the block back to where it came from. A plan can be moved, not copied; the block stays where it
   is. A plan that has been moved from is empty, as one made without arguments: its length is 0, and to run it throws.

   A run writes inside the plan, so that a plan serves one thread at a time. Errors are zulgenpx::error, and
   std::bad_alloc where there is no memory.

   Example, a plan that owns its block:

     #include <array>

     #include "zulgenpx.hpp"

     zulgenpx::dct4_plan<float> plan(64);
     std::array<float, 64> x{1};
     const auto y = plan(x);
     printf("%.4f\n", y[0]);   // prints 0.9999

   Example, a length that is refused:

     #include "zulgenpx.hpp"

     try {
         zulgenpx::dct4_plan<double> plan(9);
     } catch (const zulgenpx::error& error) {
         puts(error.what());   // prints zulgenpx::dct4_plan: lengths are powers of two from 2 to 67108864, not 9
     }
   */
template <class Real>
class [[nodiscard]] dct4_plan {
    static_assert(std::is_same_v<Real, float> || std::is_same_v<Real, double>,
                  "zulgenpx: a plan of the DCT-IV is of float or double");
    using routines = detail::dct4_routines<Real>;

public:
    using native_plan = typename routines::plan;
    static constexpr std::size_t longest = routines::longest;
    static constexpr std::size_t alignment = 32;

    /* The bytes of the block of a plan. */
    [[nodiscard]] static std::size_t bytes(std::size_t length) {
        if (!std::has_single_bit(length) || length < 2 || length > longest) [[unlikely]]
            detail::refuse(
                StatusSizeError, detail::dct4_name,
                "lengths are powers of two from 2 to " + std::to_string(longest) + ", not " + std::to_string(length));
        std::int32_t size = 0;
        detail::expect_ok(detail::dct4_name, routines::size(static_cast<std::int32_t>(length), &size));
        return static_cast<std::size_t>(size);
    }

    dct4_plan() noexcept = default;

    explicit dct4_plan(std::size_t length) {
        const std::size_t size = bytes(length);
        block = ::operator new (size, std::align_val_t{alignment});
        owner = source::operator_new;
        build(length, size);
    }

    dct4_plan(std::size_t length, of_core_library_t) {
        blockBytes = bytes(length);  // refuses a length
        if (routines::init_alloc(&plan, static_cast<std::int32_t>(length)) != StatusOk) detail::refuse_memory();
        owner = source::core_library;
        points = length;
    }

    dct4_plan(std::size_t length, std::span<std::byte> memory) {
        const std::size_t size = bytes(length);
        const std::size_t behind = reinterpret_cast<std::uintptr_t>(memory.data()) % alignment;
        const std::size_t skipped = behind == 0 ? 0 : alignment - behind;
        if (memory.size() < size + skipped)
            detail::refuse(StatusSizeError, detail::dct4_name,
                           "the memory has " + std::to_string(memory.size()) + " bytes, " +
                               std::to_string(size + skipped) + " are due");
        block = memory.data() + skipped;
        owner = source::caller;
        build(length, size);
    }

    dct4_plan(dct4_plan&& other) noexcept { swap(other); }
    dct4_plan& operator=(dct4_plan&& other) noexcept {
        dct4_plan(std::move(other)).swap(*this);
        return *this;
    }
    ~dct4_plan() { release(); }

    void swap(dct4_plan& other) noexcept {
        std::swap(plan, other.plan);
        std::swap(block, other.block);
        std::swap(blockBytes, other.blockBytes);
        std::swap(points, other.points);
        std::swap(owner, other.owner);
    }
    friend void swap(dct4_plan& a, dct4_plan& b) noexcept { a.swap(b); }

    /* 0 of an empty plan. */
    [[nodiscard]] std::size_t length() const noexcept { return points; }
    [[nodiscard]] explicit operator bool() const noexcept { return points != 0; }

    /* For the C routines. It stays the plan's own; null of an empty plan. */
    [[nodiscard]] native_plan* native() noexcept { return plan; }

    template <detail::array Source, detail::array Destination>
    void operator()(Source&& from, Destination&& to) {
        run(std::span{from}, detail::kept_span<Destination>(to));
    }

    template <detail::array Source>
    [[nodiscard]] auto operator()(const Source& from) {
        using Span = detail::span_of<const Source>;
        static_assert(Span::extent != std::dynamic_extent,
                      "zulgenpx: the length of the result is not known at compile time; pass a destination");
        std::array<Real, Span::extent == std::dynamic_extent ? 1 : Span::extent> result;
        run(std::span{from}, std::span{result});
        return result;
    }

private:
    enum class source { nobody, operator_new, core_library, caller };

    void build(std::size_t length, std::size_t size) {
        const ZulgStatus status =
            routines::init(&plan, static_cast<std::int32_t>(length), static_cast<std::uint8_t*>(block));
        if (status != StatusOk) [[unlikely]] {
            release();  // the destructor does not run for an object whose constructor throws
            detail::refuse_status(detail::dct4_name, status);
        }
        blockBytes = size;
        points = length;
    }

    void release() noexcept {
        if (owner == source::operator_new) ::operator delete (block, std::align_val_t{alignment});
        if (owner == source::core_library) static_cast<void>(routines::free(plan));
        owner = source::nobody;
    }

    template <class Source, class Destination>
    void run(Source from, Destination to) {
        if constexpr (detail::are_elements_right<Source, Destination>()) {
            constexpr bool isOfThePlan = std::is_same_v<std::remove_const_t<typename Source::element_type>, Real>;
            static_assert(isOfThePlan, "zulgenpx: the elements are not of the type of the plan");
            if (points == 0) [[unlikely]]
                detail::refuse(StatusNullPointer, detail::dct4_name, "the plan is empty");
            if (from.size() != points) [[unlikely]]
                detail::refuse_size(detail::dct4_name, "the source", points, from.size());
            if (to.size() != points) [[unlikely]]
                detail::refuse_size(detail::dct4_name, "the destination", points, to.size());
            if (owner == source::caller) {
                const std::span<const std::byte> own(static_cast<const std::byte*>(block), blockBytes);
                if (detail::overlap(from, own) || detail::overlap(to, own)) [[unlikely]]
                    detail::refuse(StatusFlagError, detail::dct4_name, "an array overlaps the memory of the plan");
            }
            if constexpr (isOfThePlan)
                detail::expect_ok(detail::dct4_name, routines::run(from.data(), to.data(), plan));
        }
    }

    native_plan* plan = nullptr;
    void* block = nullptr;
    std::size_t blockBytes = 0, points = 0;
    source owner = source::nobody;
};

}  // namespace zulgenpx

#endif
