// The exported routines as data: names, arguments, and what they are made of. Nothing else in the generator spells an
// exported name.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "output/catalogue.h"

namespace gen {

// How a routine uses an argument. Value: it is a number. Otherwise it is a pointer, to what is read, written or both.
enum class Use { Value, In, Out, InOut };

struct Argument {
    std::string name;
    Use use;
    std::string type;            // of the value, or of what the pointer points to
    std::string elements = "1";  // of the array: a number, or a formula in other arguments whose / drops the remainder
    bool mayBeNull = false;
    std::string step = {}, distance = {};  // of an array in a batch: the arguments that say where its elements are

    // As the public header declares it: "const Zulg32f* pSrc".
    std::string declaration() const;
};

// A half spectrum in an array: of each bin, the slot of its real part and that of its imaginary part.
struct BinSlots {
    std::optional<int> re, im;
};

struct Export {
    std::string name;
    std::string family;       // "DFTFwd_CToC", "WHT", "DCT4"
    std::string elementType;  // "32fc"
    std::optional<int> length, order;
    std::vector<Argument> arguments;

    // In the library's own sources: a function template and what its parameters are.
    std::string routine;
    std::vector<std::string> routineParameters;

    std::optional<GraphEntry> graph;             // that is run once in a call, straight through
    const KernelFamily* kernelFamily = nullptr;  // of a kernel or a length dispatcher

    // On the 32-bit target, where each argument takes four.
    int argumentBytes() const { return 4 * static_cast<int>(arguments.size()); }
};

// In the ASCII order of the names, which is the order of ordinals and slots. The version call is not among them: it has
// no slot, and its ordinal is the last.
std::vector<Export> allExports();

// Those of the batch library, in the ASCII order of their names.
std::vector<Export> batchExports();

// The elements of an array of this layout, for one length and as a formula in `length`.
int elementsOf(Layout layout, int length);
std::string elementsFormula(Layout layout);

// Where a layout of a half spectrum keeps the bins 0 .. N/2.
std::vector<BinSlots> slotsOf(Layout layout, int length);

constexpr int firstWhtOrder = 1, lastWhtOrder = 13;

// The bytes of the buffer of a Walsh-Hadamard order; 0 where the buffer is ignored.
int whtBufferBytes(int order, int elementBytes);

}  // namespace gen
