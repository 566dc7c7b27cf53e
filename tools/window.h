// Windows: the weights of the samples of a frame, under the names and with the values that SciPy's get_window has for
// spectra (periodic, not symmetric).
#pragma once

#include <string>
#include <vector>

namespace spectrum {

struct Window {
    std::string name = "boxcar";
    double parameter = 0;  // of those that have one
};

// From words such as "hann" and "kaiser:8.6"; "none" is boxcar. Throws UsageError.
Window windowOf(const std::string& word);

// As windowOf reads it.
std::string windowWord(const Window& window);

// For the help.
std::string windowNames();

std::vector<double> windowWeights(const Window& window, int length);

}  // namespace spectrum
