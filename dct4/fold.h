// The bodies that fold, by the number of points.
#pragma once

#include "dct4/bodies/fold_16.h"
#include "dct4/bodies/fold_2.h"
#include "dct4/bodies/fold_32.h"
#include "dct4/bodies/fold_4.h"
#include "dct4/bodies/fold_64.h"
#include "dct4/bodies/fold_8.h"
#include "dct4/ports.h"
