// Numbers on 64-bit Windows: those of x86-64.
#pragma once

#include "targets/x86_64/value.h"
