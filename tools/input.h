// Where samples come from: one interface, so that the frames need not know whether they are cut from a sound file or
// from numbers in text. Both are read in blocks; no input is ever held whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace spectrum {

class Source {
public:
    virtual ~Source() = default;

    // Fills `out` from the front and returns how many samples it has filled in. These are fewer than asked for only at
    // the end of the input. Throws UserError.
    virtual std::size_t read(std::span<double> out) = 0;

    std::string name;                   // for messages
    bool isSound = false;               // otherwise plain numbers, whose rate is 1
    double rate = 1;                    // samples in one second
    std::optional<std::int64_t> total;  // samples, when known from the start
};

// `path` may be "-". A channel other than the first is refused for numbers. Throws UserError.
std::unique_ptr<Source> openInput(const std::string& path, int channel);

// The two kinds, for openInput.
std::unique_ptr<Source> openSound(const std::string& path, int channel);
std::unique_ptr<Source> openText(const std::string& path);

}  // namespace spectrum
