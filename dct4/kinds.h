// The kinds of the records of a plan: the numbers by which a run chooses its bodies. Each follows from a length or from
// a radix. The values are part of the layout of a record. A record has kind None until it is built, and a radix without
// a body gives it, too.
#pragma once

#include <cstdint>

namespace zulg {

// By N. A plan of a direct kind has no record but itself; a composite one has two passes.
enum class PlanKind : std::int32_t { None, Direct2, Direct4, Direct8, Direct16, Direct32, Composite };

constexpr PlanKind planKind(std::int32_t length) {
    switch (length) {
        case 2: return PlanKind::Direct2;
        case 4: return PlanKind::Direct4;
        case 8: return PlanKind::Direct8;
        case 16: return PlanKind::Direct16;
        case 32: return PlanKind::Direct32;
        default: return PlanKind::Composite;
    }
}

constexpr bool isKnown(PlanKind kind) { return kind >= PlanKind::Direct2 && kind <= PlanKind::Composite; }

// By the length of the skew transforms that a fold record leads to: one body does each of them, or a SkewSplit does.
enum class FoldKind : std::int32_t { None, Points2, Points4, Points8, Points16, Points32, Points64, Split };

constexpr FoldKind foldKind(std::int32_t skewLength) {
    switch (skewLength) {
        case 2: return FoldKind::Points2;
        case 4: return FoldKind::Points4;
        case 8: return FoldKind::Points8;
        case 16: return FoldKind::Points16;
        case 32: return FoldKind::Points32;
        case 64: return FoldKind::Points64;
        default: return FoldKind::Split;
    }
}

// By the radix of an OutputStage.
enum class OutputKind : std::int32_t { None, Radix1, Radix2, Radix4, Radix8, Radix16, Radix32 };

constexpr OutputKind outputKind(std::int32_t radix) {
    switch (radix) {
        case 1: return OutputKind::Radix1;
        case 2: return OutputKind::Radix2;
        case 4: return OutputKind::Radix4;
        case 8: return OutputKind::Radix8;
        case 16: return OutputKind::Radix16;
        case 32: return OutputKind::Radix32;
        default: return OutputKind::None;
    }
}

// By the radix of a CombineStage.
enum class CombineKind : std::int32_t { None, Radix2, Radix4, Radix8, Radix16, Radix32 };

constexpr CombineKind combineKind(std::int32_t radix) {
    switch (radix) {
        case 2: return CombineKind::Radix2;
        case 4: return CombineKind::Radix4;
        case 8: return CombineKind::Radix8;
        case 16: return CombineKind::Radix16;
        case 32: return CombineKind::Radix32;
        default: return CombineKind::None;
    }
}

}  // namespace zulg
