// Our routines as participants. What the library of this build does not export yet is left out.
#include "benchmarks/contest.h"
#include "benchmarks/library.h"

namespace bench {
namespace {

template <class Element>
std::string suffix(const Field<Element>& field) {
    const bool isComplex = field.transform <= Transform::ComplexInverse;
    return std::string(sizeof(Element) == 8 ? "_64f" : "_32f") + (isComplex ? "c" : "");
}

const char* kernelFamily(Transform transform) {
    switch (transform) {
        case Transform::ComplexForward: return "DFTFwd_CToC";
        case Transform::ComplexInverse: return "DFTInv_CToC";
        case Transform::RealForward: return "DFTFwd_RToCCS";
        case Transform::RealInverse: return "DFTInv_CCSToR";
        case Transform::PackedForward: return "DFTFwd_RToPack";
        case Transform::PackedInverse: return "DFTInv_PackToR";
        case Transform::PermutedForward: return "DFTFwd_RToPerm";
        case Transform::PermutedInverse: return "DFTInv_PermToR";
        default: return "Hartley";
    }
}

template <class Element>
void addKernel(Field<Element>& field, const Library& library, const std::string& ending = "") {
    const std::string name = std::string("zulg") + kernelFamily(field.transform);
    const auto routine = library.routine<Kernel<Element>>(name + "_" + std::to_string(field.size) + suffix(field));
    if (routine == nullptr) return;
    const Arrays<Element>& arrays = *field.arrays;
    const auto call = [routine, source = arrays.source, destination = arrays.destination, count = field.count,
                       sourceStep = arrays.sourceCount / field.count,
                       destinationStep = arrays.destinationCount / field.count](int i) {
        routine(source + i * sourceStep, destination + i * destinationStep, NoDivByAny);
    };
    field.contest.participants.push_back({library.name + ending,
                                          [call, count = field.count] {
                                              if (count == 1) return prepared([call] { call(0); });
                                              return prepared([call, count] {
                                                  for (int i = 0; i < count; ++i) call(i);
                                              });
                                          },
                                          field.destination()});
}

// The batch library; of singles also what computes in single. Complex elements are two numbers.
template <class Element>
void addBatch(Field<Element>& field, const Library& library) {
    const std::string name = kernelFamily(field.transform) + suffix(field);
    const bool isComplex = field.transform <= Transform::ComplexInverse;
    const std::int64_t width = isComplex ? 2 : 1, count = field.count;
    const Arrays<Element>& arrays = *field.arrays;
    const std::int64_t read = arrays.sourceCount / count / width, written = arrays.destinationCount / count / width;
    for (const char* kind : {"", "Single"}) {
        const auto routine = reinterpret_cast<Batch<Element>>(library.batchAddress("zulgBatch" + (kind + name)));
        if (routine == nullptr) continue;
        const auto prepare = [=, source = arrays.source, destination = arrays.destination, size = field.size,
                              areBeside = field.areBeside] {
            const std::int64_t step = areBeside ? count : 1;
            return prepared([=, sourceDistance = areBeside ? 1 : read, destinationDistance = areBeside ? 1 : written] {
                routine(source, step, sourceDistance, destination, step, destinationDistance, size, NoDivByAny, count);
            });
        };
        field.contest.participants.push_back(
            {library.name + (*kind == 0 ? "" : "_single"), prepare, field.destination()});
    }
}

template <class Element>
void addDispatcher(Field<Element>& field, const Library& library) {
    const auto routine =
        library.routine<Dispatcher<Element>>(std::string("zulg") + kernelFamily(field.transform) + suffix(field));
    if (routine == nullptr) return;
    const auto prepare = [routine, arrays = field.arrays, size = field.size] {
        return prepared([=, source = arrays->source, destination = arrays->destination] {
            routine(source, destination, size, NoDivByAny);
        });
    };
    field.contest.participants.push_back({library.name + "_dispatcher", prepare, field.destination()});
}

// The order is the binary logarithm of the size. The call gets a buffer, so that it allocates nothing.
template <class Element>
void addWalshHadamard(Field<Element>& field, const Library& library) {
    int order = 0;
    while (1 << order < field.size) ++order;
    const auto routine = library.routine<BufferedKernel<Element>>("zulgWHT_" + std::to_string(order) + suffix(field));
    const auto bufferSize = library.routine<SizeQuery>("zulgWHTGetBufferSize" + suffix(field));
    std::int32_t bytes = 0;
    if (routine == nullptr || bufferSize == nullptr || bufferSize(order, &bytes) != StatusOk) return;
    const auto buffer = std::make_shared<Arrays<Element>>(bytes / static_cast<int>(sizeof(Element)) + 1, 1);
    const auto prepare = [routine, buffer, source = field.arrays->source, destination = field.arrays->destination] {
        return prepared([=, bytes = buffer->source] { routine(source, destination, NoDivByAny, bytes); });
    };
    field.contest.participants.push_back({library.name, prepare, field.destination()});
}

template <class Element>
void addDct4(Field<Element>& field, const Library& library) {
    const auto init = library.routine<PlanInit>("zulgDCT4InitAlloc" + suffix(field));
    const auto run = library.routine<PlanRun<Element>>("zulgDCT4" + suffix(field));
    if (init == nullptr || run == nullptr) return;
    const auto prepare = [=, arrays = field.arrays, size = field.size] {
        void* plan = nullptr;
        if (init(&plan, size) != StatusOk) std::fprintf(stderr, "no plan of length %d\n", size), std::exit(1);
        return prepared(
            [=, source = arrays->source, destination = arrays->destination] { run(source, destination, plan); });
    };
    field.contest.participants.push_back({library.name, prepare, field.destination()});
}

}  // namespace

template <class Element>
void addOurs(Field<Element>& field) {
    for (const Library& library : libraries()) {
        switch (field.transform) {
            case Transform::WalshHadamard: addWalshHadamard(field, library); break;
            case Transform::Dct4: addDct4(field, library); break;
            default: addKernel(field, library);
        }
    }
}

template <class Element>
void addOurBatch(Field<Element>& field) {
    for (const Library& library : libraries()) {
        addBatch(field, library);
        if (!field.areBeside) addKernel(field, library, "_loop");
    }
}

template <class Element>
void addOurDispatcher(Field<Element>& field) {
    for (const Library& library : libraries()) addDispatcher(field, library);
}

template void addOurs(Field<float>&);
template void addOurs(Field<double>&);
template void addOurBatch(Field<float>&);
template void addOurBatch(Field<double>&);
template void addOurDispatcher(Field<float>&);
template void addOurDispatcher(Field<double>&);

}  // namespace bench
