// What a sound file says about its own size. Libraries that read sound take a file that is cut off for a shorter one,
// so the headers are compared with the bytes that there are.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

namespace spectrum {

// The name of the container that the first bytes announce, such as "WAV", or nothing.
std::string containerName(std::string_view firstBytes);

// What is wrong with the sizes, the pages of an Ogg file or the packets of a Sample Dump, in words, or nothing when all
// is whole or when the container says nothing about its size. Leaves the position in the file anywhere. `goodSamples`
// are those before the damage, where the container tells them.
std::string damageOfContainer(std::FILE* file, std::optional<std::int64_t>& goodSamples);

}  // namespace spectrum
