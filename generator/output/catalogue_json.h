// docs/catalogue.json: every export as data, for whoever writes a reference, bindings or a test.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "output/exports.h"

namespace gen {

// `counts` has those of each graph, by its name.
std::string catalogueJson(const std::vector<Export>& exports, const std::vector<Export>& batches,
                          const std::map<std::string, Counts>& counts);

}  // namespace gen
