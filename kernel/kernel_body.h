// The body that every kernel has: checks, `scale`, and the graph of its length run through the ports of its family. The
// build includes it beside a text of kernels/ and instantiates the kernels of that graph.
#pragma once

#include "kernel/graphs.h"
#include "kernel/kernel.h"
#include "kernel/ports.h"
#include "kernel/scale.h"

namespace zulg {
inline namespace ZULG_TARGET {

// What a family is made of: flags, graph and ports.
template <Family family>
struct FamilyTraits;

template <>
struct FamilyTraits<Family::DFTFwd_CToC> : ForwardFlags {
    template <int length>
    using Graph = ComplexGraph<length>;
    template <class Element, int length>
    using Ports = ComplexPorts<TargetNumbers, Element>;
};

template <>
struct FamilyTraits<Family::DFTInv_CToC> : InverseFlags {
    template <int length>
    using Graph = ComplexGraph<length>;
    template <class Element, int length>
    using Ports = ExchangedPorts<TargetNumbers, Element>;
};

template <Layout layout>
struct RealForward : ForwardFlags {
    template <int length>
    using Graph = RealForwardGraph<length>;
    template <class Element, int length>
    using Ports = RealForwardPorts<TargetNumbers, Element, layout, length>;
};

template <>
struct FamilyTraits<Family::DFTFwd_RToCCS> : RealForward<Layout::CCS> {};
template <>
struct FamilyTraits<Family::DFTFwd_RToPack> : RealForward<Layout::Pack> {};
template <>
struct FamilyTraits<Family::DFTFwd_RToPerm> : RealForward<Layout::Perm> {};

template <Layout layout>
struct RealInverse : InverseFlags {
    template <int length>
    using Graph = RealInverseGraph<length>;
    template <class Element, int length>
    using Ports = RealInversePorts<TargetNumbers, Element, layout, length>;
};

template <>
struct FamilyTraits<Family::DFTInv_CCSToR> : RealInverse<Layout::CCS> {};
template <>
struct FamilyTraits<Family::DFTInv_PackToR> : RealInverse<Layout::Pack> {};
template <>
struct FamilyTraits<Family::DFTInv_PermToR> : RealInverse<Layout::Perm> {};

template <>
struct FamilyTraits<Family::Hartley> : InvolutionFlags {
    template <int length>
    using Graph = HartleyGraph<length>;
    template <class Element, int length>
    using Ports = RealPorts<TargetNumbers, Element>;
};

template <Family family, int length, class Element>
Status ZULG_CALL kernel(const Element* pSrc, Element* pDst, std::int32_t flag) {
    using Graph = typename FamilyTraits<family>::template Graph<length>;
    using Factor = Scale<Element, length, Graph>;

    return withScale<typename FamilyTraits<family>::Flags, Factor>(
        pSrc, pDst, flag, [=](Element scale) __attribute__((always_inline)) {
            const typename FamilyTraits<family>::template Ports<Element, length> io{{pSrc, pDst, scale}};
            Graph::run(io);
            io.finish();
        });
}

}  // namespace ZULG_TARGET
}  // namespace zulg
