// A routine of the library that the checked one calls: its address, and what its name tells.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zulg::checked {

enum class Transform { Dft, WalshHadamard, Other };

struct Routine {
    const char* name;
    void* address;  // in the library itself
    Transform transform = Transform::Other;
    int number = 0;  // length or order in the name; 0 for a dispatcher
    std::size_t elementBytes = 4;
    int (*sourceElements)(int length) = nullptr;
    int (*destinationElements)(int length) = nullptr;

    explicit Routine(const char* exportedName);

    // Of a DFT or Hartley transform of this length, or of a Walsh-Hadamard transform of this order.
    std::size_t sourceBytes(int of) const;
    std::size_t destinationBytes(int of) const;
};

// The routine of that name in the library. Stops if there is no library beside this one, or no such routine in it.
void* addressInLibrary(const char* name);

}  // namespace zulg::checked
