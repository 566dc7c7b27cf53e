// Loading of shared libraries by the tests of the allocator hook, through the platform's own loader.
#pragma once

#include <cstddef>
#include <string>

namespace test {

// One reference on a loaded library. It is given back by hand: some tests are about who gives back what.
class LoadedLibrary {
public:
    // Ends the program with a message if there is no such library.
    explicit LoadedLibrary(const std::string& path);
    void release() const;

    void* address(const char* name) const;  // null if it is not exported

    template <class Type>
    Type* at(const char* name) const {
        return reinterpret_cast<Type*>(address(name));
    }

    // The data that the library itself may write to: what the loader fills in is left out.
    struct Memory {
        void* start;
        std::size_t bytes;
    };
    Memory writableData() const;
    bool hasCodeAt(const void* address) const;

private:
    void* handle;
};

// How many references on the companion stood; gives all of them back, whoever took them.
int releaseCompanion();

}  // namespace test
