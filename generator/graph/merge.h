// The one rewriting of constants, run on a finished graph: products of products become products.
//
//     (a)  c * (d * x)           becomes (c d) * x              when d * x has that one consumer
//     (b)  c * (d * x +- e * y)  becomes (c d) * x +- (c e) * y when the sum and both products have one consumer each
//
// An output is a consumer. Both are applied until neither fits; nothing else is rewritten. The products of constants
// are formed at full width.
#pragma once

#include <memory>

#include "graph/graph.h"

namespace gen {

std::unique_ptr<Graph> merged(std::unique_ptr<Graph> graph);

}  // namespace gen
