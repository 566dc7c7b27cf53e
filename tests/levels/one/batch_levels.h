// One level of the batch library by itself, for the libraries of the tests.
#include "targets/x86_64/one_batch_level.h"
