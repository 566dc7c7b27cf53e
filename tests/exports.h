// Reaches the shared library as a stranger would: by exported name, through the platform's loader.
#pragma once

#include <cstdint>
#include <string>

#include "include/zulgenpx.h"

namespace test {

// The address of an exported name, or null.
void* exportedAddress(const std::string& name);

// An exported routine; ends the program with a message if there is none of that name.
void* requiredAddress(const std::string& name);

template <class Routine>
Routine exported(const std::string& name) {
    return reinterpret_cast<Routine>(requiredAddress(name));
}

template <class Element>
using Kernel = ZulgStatus(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t flag);
template <class Element>
using Dispatcher = ZulgStatus(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t length, std::int32_t flag);

template <class Element>
using WhtKernel = ZulgStatus(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t flag, Element* pBuffer);
template <class Element>
using WhtDispatcher = ZulgStatus(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t order, std::int32_t flag,
                                             Element* pBuffer);

}  // namespace test
