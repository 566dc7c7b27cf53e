// The body that every kernel has: checks, `scale`, and the graph of its length run through the ports of its family. The
// build includes it beside a text of kernels/ and instantiates the kernels of that graph.
#pragma once

#include "kernel/families.h"
#include "kernel/graphs.h"
#include "kernel/kernel.h"
#include "kernel/ports.h"
#include "kernel/scale.h"
#ifdef ZULG_GNU_CPP
#include "kernel/lane_ports.h"
#endif

namespace zulg {
inline namespace ZULG_TARGET {

// The text that a kernel runs: the build says it for each kernel that it makes.
template <Family family, int length>
struct TextOf;

// The ports through which a family runs a text: in lanes, or with one number to a register.
template <Family family, class Text, class Element>
struct PortsOf;

#ifdef ZULG_GNU_CPP
template <Family family, template <int> class TextInLanes, int length, class Element>
struct PortsOf<family, TextInLanes<length>, Element> {
    using Type = LanePorts<TargetNumbers, Element, layoutOf<family>, length, family == Family::DFTInv_CToC,
                           isRealForward<family>>;
};
#endif

template <int length, class Element>
struct PortsOf<Family::DFTFwd_CToC, ComplexGraph<length>, Element> {
    using Type = ComplexPorts<TargetNumbers, Element>;
};
template <int length, class Element>
struct PortsOf<Family::DFTInv_CToC, ComplexGraph<length>, Element> {
    using Type = ExchangedPorts<TargetNumbers, Element>;
};
template <Family family, int length, class Element>
struct PortsOf<family, RealForwardGraph<length>, Element> {
    using Type = RealForwardPorts<TargetNumbers, Element, layoutOf<family>, length>;
};
template <Family family, int length, class Element>
struct PortsOf<family, RealInverseGraph<length>, Element> {
    using Type = RealInversePorts<TargetNumbers, Element, layoutOf<family>, length>;
};
template <Family family, int length, class Element>
struct PortsOf<family, HartleyGraph<length>, Element> {
    using Type = RealPorts<TargetNumbers, Element>;
};

template <Family family, int length, class Element>
Status ZULG_CALL kernel(const Element* pSrc, Element* pDst, std::int32_t flag) {
    using Graph = typename TextOf<family, length>::Type;
    using Factor = Scale<Element, length, Graph>;

    return withScale<typename FlagsOf<family>::Flags, Factor>(pSrc, pDst, flag, [=](Element scale) ZULG_INLINE_LAMBDA {
        const typename PortsOf<family, Graph, Element>::Type io{{pSrc, pDst, scale}};
        Graph::run(io);
        io.finish();
    });
}

}  // namespace ZULG_TARGET
}  // namespace zulg
