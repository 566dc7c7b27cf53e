// The batch library has one level.
#pragma once

#include "targets/generic/batch_levels.h"
