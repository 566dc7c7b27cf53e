// The 2 that the inverse real kernels multiply by, out of the sight of the compiler that compiles them.
#include "kernel/ports.h"

namespace zulg {

template <class Element>
const Element Stored<Element>::two = 2;

template struct Stored<float>;
template struct Stored<double>;

}  // namespace zulg
