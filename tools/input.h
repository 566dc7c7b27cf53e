// Where samples come from: one interface, so that the frames need not know whether they are cut from a sound file or
// from numbers in text. Both are read in blocks; no input is ever held whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "byte_stream.h"

namespace spectrum {

enum class DecimalMark { Point, Comma };

constexpr int everyChannel = -1;

// What is read, and how.
struct InputOptions {
    std::string path;  // "-" for standard input
    int channel = 1;   // counted from 1; 0: the mean of all; everyChannel: each, in a run of its own
    DecimalMark decimal = DecimalMark::Point;
    bool allowsDamage = false;
    std::optional<double> start, end;  // in seconds of sound, or in samples
};

class Source {
public:
    virtual ~Source() = default;

    // Fills `out` from the front and returns how many samples it has filled in. These are fewer than asked for only at
    // the end of the input. Throws UserError, and DamagedInput unless damage is allowed.
    virtual std::size_t read(std::span<double> out) = 0;
    // Leaves out samples and returns how many there were.
    virtual std::int64_t skip(std::int64_t count);

    std::string name;                   // for messages
    bool isSound = false;               // otherwise plain numbers, whose rate is 1
    double rate = 1;                    // samples in one second
    int channels = 1;                   // of the input, not only what is read of them
    std::optional<std::int64_t> total;  // samples, when known from the start
    std::vector<std::string> warnings;  // about damage that is allowed
};

// The samples of the time range, of one channel or of the mean of all. Throws UserError.
std::unique_ptr<Source> openInput(const InputOptions& options);

// How many channels a file has. Throws UserError, also for what can be read only once.
int channelsOf(const InputOptions& options);
// A channel as --channel takes it.
std::string channelWord(int channel);

// The kinds, for openInput. `name` is for messages; the descriptor is of a regular file and is closed by the source.
std::unique_ptr<Source> openSound(const InputOptions& options, const std::string& name, int descriptor);
std::unique_ptr<Source> openFlac(const InputOptions& options, const std::string& name, int descriptor);
std::unique_ptr<Source> openText(const InputOptions& options, std::unique_ptr<ByteStream> stream);

// Throws UserError when there is no such channel. Returns the first of them, counted from 0, and how many are taken.
std::pair<std::size_t, std::size_t> chosenChannels(const InputOptions& options, const std::string& name, int channels);

// Takes the mean of `chosen` neighbours out of each frame of interleaved channels. Throws UserError at the first that
// is infinite or not a number; `position` is that of the first frame in the file.
void takeChannel(const double* interleaved, std::size_t channels, std::pair<std::size_t, std::size_t> chosen,
                 std::span<double> out, std::int64_t position, const std::string& name);

// The message about damage. The good samples are counted from the start; nothing is said where it cannot be known which
// are good.
std::string damageText(const std::string& name, const std::string& what, std::optional<std::int64_t> goodSamples);

// What to say of damage, and what it means for the run: throws DamagedInput unless that is allowed.
void reportDamage(Source& source, const InputOptions& options, const std::string& what,
                  std::optional<std::int64_t> goodSamples);

}  // namespace spectrum
