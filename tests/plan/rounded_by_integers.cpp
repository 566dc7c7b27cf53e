// The quotients and products of a machine whose operators do not round once, in a namespace of their own: so the way by
// integers, which such a machine takes, is tested on every other one, too.
#include <cfloat>

#undef FLT_EVAL_METHOD
#define FLT_EVAL_METHOD 2
#define zulg by_integers
#include "dct4/rounded_once.cpp"
