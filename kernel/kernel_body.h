// The body that every kernel has: checks, `scale`, and the graph of its length run through the ports of its family.
// Included by the files of kernels/, each of which defines one graph and instantiates its kernels.
#pragma once

#include "kernel/kernel.h"
#include "kernel/ports.h"
#include "kernel/scale.h"

namespace zulg {

// The text of a graph, specialised for each length. It has `run`, and 1/sqrt(length) as a double.
template <int length>
struct ComplexGraph;
template <int length>
struct RealForwardGraph;
template <int length>
struct RealInverseGraph;
template <int length>
struct HartleyGraph;

// What a family is made of: flags, graph and ports.
template <Family family>
struct Parts;

template <>
struct Parts<Family::DFTFwd_CToC> : ForwardFlags {
    template <int length>
    using Graph = ComplexGraph<length>;
    template <class Element, int length>
    using Ports = ComplexPorts<Element>;
};

template <>
struct Parts<Family::DFTInv_CToC> : InverseFlags {
    template <int length>
    using Graph = ComplexGraph<length>;
    template <class Element, int length>
    using Ports = ExchangedPorts<Element>;
};

template <Layout layout>
struct RealForward : ForwardFlags {
    template <int length>
    using Graph = RealForwardGraph<length>;
    template <class Element, int length>
    using Ports = RealForwardPorts<Element, layout, length>;
};

template <>
struct Parts<Family::DFTFwd_RToCCS> : RealForward<Layout::CCS> {};
template <>
struct Parts<Family::DFTFwd_RToPack> : RealForward<Layout::Pack> {};
template <>
struct Parts<Family::DFTFwd_RToPerm> : RealForward<Layout::Perm> {};

template <Layout layout>
struct RealInverse : InverseFlags {
    template <int length>
    using Graph = RealInverseGraph<length>;
    template <class Element, int length>
    using Ports = RealInversePorts<Element, layout, length>;
};

template <>
struct Parts<Family::DFTInv_CCSToR> : RealInverse<Layout::CCS> {};
template <>
struct Parts<Family::DFTInv_PackToR> : RealInverse<Layout::Pack> {};
template <>
struct Parts<Family::DFTInv_PermToR> : RealInverse<Layout::Perm> {};

template <>
struct Parts<Family::Hartley> : InvolutionFlags {
    template <int length>
    using Graph = HartleyGraph<length>;
    template <class Element, int length>
    using Ports = RealPorts<Element>;
};

template <Family family, int length, class Element>
Status ZULG_CALL kernel(const Element* pSrc, Element* pDst, std::int32_t flag) {
    using Graph = typename Parts<family>::template Graph<length>;
    using Factor = Scale<Element, length, Graph>;

    return withScale<typename Parts<family>::Flags, Factor>(
        pSrc, pDst, flag, [=](Element scale) __attribute__((always_inline)) {
            const typename Parts<family>::template Ports<Element, length> io{{pSrc, pDst, scale}};
            Graph::run(io);
            io.finish();
        });
}

}  // namespace zulg
