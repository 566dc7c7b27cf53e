#include "numbers/modular.h"

namespace gen {

int modulo(int x, int n) { return (x % n + n) % n; }

}  // namespace gen
