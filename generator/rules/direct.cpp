#include "rules/direct.h"

#include <stdexcept>
#include <string>

namespace gen {

std::vector<int> directPairs(int p) {
    switch (p) {
        case 3: return {1};
        case 5: return {1, 3};
        case 7: return {1, 5, 4};
        case 11: return {1, 9, 3, 4, 6};
        default: throw std::logic_error("no direct form of " + std::to_string(p));
    }
}

Value sumInOrder(const std::vector<Value>& values) {
    Value total = values[0];
    for (std::size_t j = 1; j < values.size(); ++j) total = total + values[j];
    return total;
}

Value cosineSum(Value x0, const std::vector<Value>& values, const std::vector<int>& pairs, int k, int p) {
    Value total = cosine(pairs[0] * k, p) * values[0];
    const bool beginsWithX0 = total.minus;
    if (beginsWithX0) total = x0 + total;
    for (std::size_t j = 1; j < pairs.size(); ++j) total = total + cosine(pairs[j] * k, p) * values[j];
    return beginsWithX0 ? total : total + x0;
}

Value sineSum(const std::vector<Value>& values, const std::vector<int>& pairs, int k, int p) {
    Value total = sine(pairs[0] * k, p) * values[0];
    for (std::size_t j = 1; j < pairs.size(); ++j) total = total + sine(pairs[j] * k, p) * values[j];
    return total;
}

}  // namespace gen
