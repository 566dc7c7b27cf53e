/* zulgenpx_view: where the elements of many transforms are. Included by zulgenpx_batch.hpp. */
#ifndef ZULGENPX_VIEW_HPP
#define ZULGENPX_VIEW_HPP

#include "zulgenpx_arrays.hpp"

namespace zulgenpx {
namespace detail {

/* std::mdspan, or anything like it: a pointer, and for each axis an extent and a stride in elements. */
template <class Array>
concept shaped = requires(const Array& array) {
    requires std::is_pointer_v<decltype(array.data_handle())>;
    { array.extent(0) } -> std::convertible_to<std::size_t>;
    { array.stride(0) } -> std::convertible_to<std::ptrdiff_t>;
};

/* A type that does not tell its rank is taken for one of rank 2. */
template <class Array>
constexpr int told_rank() {
    if constexpr (requires { std::integral_constant<int, static_cast<int>(Array::rank())>{}; }) {
        return static_cast<int>(Array::rank());
    } else {
        return 2;
    }
}

template <class Array>
inline constexpr int rank_of = told_rank<Array>();

/* Whether the elements are in memory as they are: an accessor may give something else for them. */
template <class Array>
consteval bool has_plain_elements() {
    if constexpr (requires {
                      typename Array::accessor_type::reference;
                      typename Array::element_type;
                  }) {
        return std::is_same_v<typename Array::accessor_type::reference, typename Array::element_type&>;
    } else {
        return true;
    }
}

}  // namespace detail

/* The arrays of `count` transforms of `length` elements: element k of transform j is data[k * step + j * distance].
   Steps and distances may be negative, and those of a source may be 0. A view owns nothing, and it does not know where
   the memory ends: rows and columns, below, check that. */
template <class Element>
struct view {
    Element* data = nullptr;
    std::size_t length = 0, count = 0;
    std::ptrdiff_t step = 1, distance = 0;

    constexpr view() noexcept = default;
    constexpr view(Element* first, std::size_t lengthOfEach, std::size_t transforms, std::ptrdiff_t stepOfElements,
                   std::ptrdiff_t distanceOfTransforms) noexcept
        : data(first), length(lengthOfEach), count(transforms), step(stepOfElements), distance(distanceOfTransforms) {}

    /* A view to read from, of one to write to. */
    template <class Other>
    requires std::is_same_v<const Other, Element>
    constexpr view(const view<Other>& other) noexcept
        : view(other.data, other.length, other.count, other.step, other.distance) {}

    /* Of std::mdspan, or anything with data_handle, extent and stride: each line along `axis` is transformed, which is
       the last one if none is named. So axis 1 transforms the rows of a matrix, and axis 0 its columns. Of rank 1,
       there is one transform. */
    template <detail::shaped Array>
    constexpr view(const Array& array, int axis = detail::rank_of<Array> - 1) : data(array.data_handle()) {
        constexpr int rank = detail::rank_of<Array>;
        static_assert(rank == 1 || rank == 2, "zulgenpx: a view is made of an array of one or two axes");
        static_assert(detail::has_plain_elements<Array>(),
                      "zulgenpx: the accessor of this array gives something else than the elements in memory");
        if (axis < 0 || axis >= rank)
            detail::refuse(StatusSizeError, "view",
                           "axis " + std::to_string(axis) + " of an array of " + std::to_string(rank));
        const bool isFirst = axis == 0;
        length = static_cast<std::size_t>(isFirst ? array.extent(0) : array.extent(1));
        step = static_cast<std::ptrdiff_t>(isFirst ? array.stride(0) : array.stride(1));
        count = 1;
        if constexpr (rank == 2) {
            count = static_cast<std::size_t>(isFirst ? array.extent(1) : array.extent(0));
            distance = static_cast<std::ptrdiff_t>(isFirst ? array.stride(1) : array.stride(0));
        }
    }
};

template <detail::shaped Array>
view(const Array&) -> view<std::remove_pointer_t<decltype(std::declval<const Array&>().data_handle())>>;
template <detail::shaped Array>
view(const Array&, int) -> view<std::remove_pointer_t<decltype(std::declval<const Array&>().data_handle())>>;

namespace detail {

inline std::size_t parts_of(const char* what, std::size_t size, std::size_t part) {
    if (part == 0 || size % part != 0) [[unlikely]]
        refuse(StatusSizeError, what, std::to_string(size) + " elements are not a multiple of " + std::to_string(part));
    return size / part;
}

}  // namespace detail

/* All of an array as transforms one after the other, `length` elements each. */
template <detail::array Array>
[[nodiscard]] auto rows(Array&& array, std::size_t length) {
    const auto all = detail::kept_span<Array>(array);
    const std::size_t count = detail::parts_of("rows", all.size(), length);
    return view(all.data(), length, count, 1, static_cast<std::ptrdiff_t>(length));
}

/* All of an array as `count` transforms side by side, as in the columns of a matrix that has its rows in memory. */
template <detail::array Array>
[[nodiscard]] auto columns(Array&& array, std::size_t count) {
    const auto all = detail::kept_span<Array>(array);
    const std::size_t length = detail::parts_of("columns", all.size(), count);
    return view(all.data(), length, count, static_cast<std::ptrdiff_t>(count), 1);
}

}  // namespace zulgenpx

#endif
