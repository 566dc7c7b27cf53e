// There is one level: each routine is what the machine has.
#pragma once

#include "targets/aarch64/levels.h"
