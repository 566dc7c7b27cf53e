// The routines of both libraries as tables, from which the C++ headers pick one when a caller is compiled.
#pragma once

#include <string>
#include <vector>

#include "output/exports.h"

namespace gen {

// include/zulgenpx_routines.hpp: the families, and of each family and element type the routine of each length or order.
std::string emitRoutineTables(const std::vector<Export>& exports);

// include/zulgenpx_batch_routines.hpp: of each family and element type the routine.
std::string emitBatchRoutineTables(const std::vector<Export>& exports);

}  // namespace gen
