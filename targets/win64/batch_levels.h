// The levels of the batch library on 64-bit Windows, made as those of the main library are.
#pragma once

#include "levels.h"
#include "targets/x86_64/one_batch_level.h"
