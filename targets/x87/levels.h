// There is one level, of one number to a register.
#pragma once

#include "targets/generic/levels.h"
