// The list of names is the library's own. The families are told apart by name and by the bytes of their arguments.
#include "tests/hook/every_export.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <regex>
#include <string>
#include <vector>

#include "include/zulgenpx.h"

namespace test {
namespace {

struct Export {
    std::string name;
    int bytesOfArguments;
};

#define SLOT(name, routine, bytes) {#name, bytes},
const Export exports[] = {
#include "boundary/slots.inc"
};
#undef SLOT

// Room for any transform of up to 8192 points.
std::vector<double> source(8192), destination(8192), buffer(16384);

class Caller {
public:
    Caller(const LoadedLibrary& from, const Export& of) : library(from), exported(of) {}

    // Arguments are pointers and 32-bit integers, which the callee of the other target removes from the stack: it must
    // be as many bytes as the caller has put there.
    template <class... Arguments>
    void call(const std::string& name, Arguments... arguments) {
        auto* const routine = library.at<ZulgStatus ZULG_CALL(Arguments...)>(name.c_str());
        ASSERT_NE(routine, nullptr) << name;
        if (name == exported.name) {
            ASSERT_EQ(exported.bytesOfArguments, static_cast<int>(4 * sizeof...(arguments)));
        }
        EXPECT_EQ(routine(arguments...), StatusOk) << name;
    }

    void kernel() { call(exported.name, in, out, std::int32_t{8}); }
    void dispatcher() { call(exported.name, in, out, std::int32_t{15}, std::int32_t{8}); }
    void walshHadamard() { call(exported.name, in, out, std::int32_t{8}, noBuffer); }
    void walshHadamardDispatcher() { call(exported.name, in, out, std::int32_t{13}, std::int32_t{8}, noBuffer); }
    void bufferSize() { call(exported.name, std::int32_t{13}, &size); }

    // Whichever of the five routines it is: the whole life of two plans, one in the caller's memory.
    void plan() {
        const std::string suffix = exported.name.substr(exported.name.find('_'));
        void* plan = nullptr;
        call("zulgDCT4GetSize" + suffix, std::int32_t{256}, &size);
        ASSERT_LE(static_cast<std::size_t>(size), buffer.size() * sizeof buffer[0]);
        call("zulgDCT4Init" + suffix, &plan, std::int32_t{256}, static_cast<void*>(buffer.data()));
        call("zulgDCT4" + suffix, in, out, plan);
        call("zulgDCT4InitAlloc" + suffix, &plan, std::int32_t{256});
        call("zulgDCT4" + suffix, in, out, plan);
        call("zulgDCT4Free" + suffix, plan);
    }

private:
    const LoadedLibrary& library;
    const Export& exported;
    const void* in = source.data();
    void* out = destination.data();
    void* noBuffer = nullptr;  // one is then allocated for the time of the call
    std::int32_t size = 0;
};

struct Family {
    const char* pattern;
    void (Caller::*call)();
};

const Family families[] = {
    {"zulg(DFT(Fwd|Inv)_[A-Za-z]+|Hartley)_[0-9]+_(32|64)fc?", &Caller::kernel},
    {"zulg(DFT(Fwd|Inv)_[A-Za-z]+|Hartley)_(32|64)fc?", &Caller::dispatcher},
    {"zulgWHT_[0-9]+_(32|64)f", &Caller::walshHadamard},
    {"zulgWHT_(32|64)f", &Caller::walshHadamardDispatcher},
    {"zulgWHTGetBufferSize_(32|64)f", &Caller::bufferSize},
    {"zulgDCT4(GetSize|Init|InitAlloc|Free|)_(32|64)f", &Caller::plan},
};

}  // namespace

void callEveryExport(const LoadedLibrary& library) {
    for (const Export& each : exports) {
        SCOPED_TRACE(each.name);
        const auto isOf = [&](const Family& family) { return std::regex_match(each.name, std::regex(family.pattern)); };
        const auto family = std::find_if(std::begin(families), std::end(families), isOf);
        if (family == std::end(families)) {
            ADD_FAILURE() << "of no known family";
            continue;
        }
        Caller caller(library, each);
        (caller.*family->call)();
    }
    EXPECT_NE(library.at<const LibVersion * ZULG_CALL()>("zulgenGetLibVersion")(), nullptr);
}

}  // namespace test
