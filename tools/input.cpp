// Decides what an input is. The content decides and not the name, so that a misnamed file is still read, or refused
// with the right message.
#include "input.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "user_error.h"

namespace spectrum {
namespace {

// Every sound file has bytes in its header that no text has.
bool looksLikeText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw UserError("cannot read " + printable(path) + ": " + std::strerror(errno));
    std::array<char, 512> start;
    file.read(start.data(), start.size());
    return std::all_of(start.begin(), start.begin() + file.gcount(), [](char letter) {
        return static_cast<unsigned char>(letter) >= 0x20 || (letter >= '\t' && letter <= '\r');
    });
}

}  // namespace

std::unique_ptr<Source> openInput(const std::string& path, int channel) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (path != "-" && std::filesystem::is_directory(status)) {
        throw UserError("cannot read " + printable(path) + ": it is a folder");
    }
    // An input that is no regular file, such as a pipe, can be read only once. So its start is not read here, and it
    // counts as text.
    if (path != "-" && (!std::filesystem::exists(status) || std::filesystem::is_regular_file(status))) {
        if (!looksLikeText(path)) return openSound(path, channel);
    }
    if (channel != 1) throw UserError("--channel " + std::to_string(channel) + ": numbers have only channel 1");
    return openText(path);
}

}  // namespace spectrum
