#include "output/block_title.h"

#include <stdexcept>

#include "rules/block_kind.h"

namespace gen {
namespace {

using std::to_string;

std::string transformTitle(const std::string& kind, const Block& block) {
    const std::string title = kind + " block of " + to_string(block.length);
    return block.multiplier == 1 ? title : title + ", multiplier " + to_string(block.multiplier);
}

}  // namespace

std::string blockTitle(const Block& block) {
    const std::string length = to_string(block.length), position = to_string(block.position);
    switch (block.kind) {
        case BlockKind::None: return "";
        case BlockKind::Complex: return transformTitle("complex", block);
        case BlockKind::Real: return transformTitle("real", block);
        case BlockKind::Spectrum: return transformTitle("spectrum", block);
        case BlockKind::Skew: return transformTitle("skew", block);
        case BlockKind::MirroredSkew: return transformTitle("mirrored skew", block);
        case BlockKind::DoubledBins: return "doubled bins";
        case BlockKind::InputStage: return "input stage";
        case BlockKind::OutputStage: return "output stage";
        case BlockKind::WalshHadamard:
            return length + " points from " + position + ", stride " + to_string(block.stride);
        case BlockKind::Fold: return "fold " + length;
        case BlockKind::SkewPart: return "part " + position + " of " + length;
        case BlockKind::SkewRow: return "row " + position + " of " + length;
        case BlockKind::OutputRow: return "row " + position;
        case BlockKind::InnerStep: return "inner step " + position;
        case BlockKind::OuterStep: return "outer step " + position;
    }
    throw std::logic_error("a block of no kind");
}

}  // namespace gen
