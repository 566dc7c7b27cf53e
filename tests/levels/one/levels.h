// One level by itself, for the libraries of the tests.
#include "targets/x86_64/one_level.h"
