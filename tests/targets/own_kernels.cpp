#include "tests/targets/list.inc"

namespace test {

std::vector<NamedKernel<float>> ownSingles() { return all<float>(); }
std::vector<NamedKernel<double>> ownDoubles() { return all<double>(); }

}  // namespace test
