// What the comment above a block says in the emitted text; empty outside all blocks.
#pragma once

#include <string>

#include "graph/block.h"

namespace gen {

std::string blockTitle(const Block& block);

}  // namespace gen
