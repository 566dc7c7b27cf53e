// The cosine and the sine of a double, rounded to double, from integers alone: the same on every machine.
#pragma once

namespace test {

// Of arguments from 0 to 2 pi.
double exactCosine(double x);
double exactSine(double x);

}  // namespace test
