// WAV (also in its 64-bit forms), AIFF, AU, CAF, Ogg and MIDI Sample Dump. The first four are a row of chunks, each
// with its size in front.
#include "container.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>

namespace spectrum {
namespace {

enum class Bytes { LittleEndian, BigEndian };

class Reader {
public:
    explicit Reader(std::FILE* given) : file(given) {
        std::fseek(file, 0, SEEK_END);
        length = static_cast<std::uint64_t>(std::ftell(file));
    }

    std::uint64_t size() const { return length; }

    // The bytes at a position, or fewer at the end of the file.
    std::string bytes(std::uint64_t position, std::size_t count) {
        std::string read(count, '\0');
        std::fseek(file, static_cast<long>(position), SEEK_SET);
        read.resize(std::fread(read.data(), 1, count, file));
        return read;
    }

    std::optional<std::uint64_t> number(std::uint64_t position, std::size_t count, Bytes order) {
        const std::string read = bytes(position, count);
        if (read.size() < count) return {};
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t place = order == Bytes::BigEndian ? i : count - 1 - i;
            value = value << 8 | static_cast<unsigned char>(read[place]);
        }
        return value;
    }

    std::optional<std::int64_t> goodSamples;  // before the damage, where the container tells it

private:
    std::FILE* file;
    std::uint64_t length;
};

std::string counted(std::uint64_t bytes) { return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes"); }

std::string tooFew(std::uint64_t announced, std::uint64_t held, const char* of) {
    return "its header announces " + counted(announced) + of + ", and " + counted(held) + " are there";
}

// How the chunks of a container are written.
struct Chunks {
    std::uint64_t first;    // position
    std::size_t nameBytes;  // the first four tell chunks apart
    std::size_t sizeBytes;
    Bytes order;
    std::uint64_t sizeIncludes;  // bytes of the chunk's own header
    std::uint64_t alignment;
    const char* sound;  // the name of the chunk with the samples
};

constexpr std::uint64_t unknown = ~std::uint64_t{0};

// `end` is where the container ends by its own word: others may have added something after it.
std::string damageOfChunks(Reader& file, const Chunks& kind, std::uint64_t end, std::uint64_t longSound = 0) {
    std::uint64_t position = kind.first;
    bool found = false;
    while (position < file.size() && position < end) {
        const std::string name = file.bytes(position, 4);
        const auto size = file.number(position + kind.nameBytes, kind.sizeBytes, kind.order);
        if (!size) {
            // A few bytes after the last chunk are the habit of some writers.
            return found ? "" : "it ends within the header of a chunk";
        }
        const std::uint64_t start = position + kind.nameBytes + kind.sizeBytes;
        const bool isSound = name == kind.sound;
        const std::uint64_t rest = file.size() - start;
        if (isSound && *size == unknown && kind.sizeBytes == 8) return "";  // up to the end of the file
        if (*size < kind.sizeIncludes) return "a chunk is shorter than its own header";
        std::uint64_t bytes = *size - kind.sizeIncludes;
        if (isSound && bytes == 0xffffffff && longSound > 0) bytes = longSound;
        if (bytes > rest) return tooFew(bytes, rest, isSound ? " of sound" : " of a chunk");
        if (isSound && bytes == 0 && rest > 0 && !found) {
            const bool nothingKnown = file.bytes(start, 4).find_first_not_of('\0') == std::string::npos;
            if (nothingKnown || rest > 4096) return "its header announces no sound, and " + counted(rest) + " follow";
        }
        found = found || isSound;
        position = start + (bytes + kind.alignment - 1) / kind.alignment * kind.alignment;
    }
    return found ? "" : "it ends before its sound begins";
}

std::string damageOfRiff(Reader& file, Bytes order) {
    const std::uint64_t announced = file.number(4, 4, order).value_or(0);
    std::uint64_t longSound = 0;
    if (file.bytes(0, 4) == "RF64" || file.bytes(0, 4) == "BW64") {
        if (file.bytes(12, 4) != "ds64") return "it ends before its sound begins";
        longSound = file.number(28, 8, order).value_or(0);
    }
    const bool saysItsEnd = announced != 0 && announced != 0xffffffff;
    const std::string damage =
        damageOfChunks(file, {12, 4, 4, order, 0, 2, "data"}, saysItsEnd ? announced + 8 : unknown, longSound);
    if (!damage.empty()) return damage;
    return saysItsEnd && announced + 8 > file.size() ? tooFew(announced + 8, file.size(), "") : "";
}

std::string damageOfAiff(Reader& file) {
    const std::uint64_t announced = file.number(4, 4, Bytes::BigEndian).value_or(0);
    const std::string damage = damageOfChunks(file, {12, 4, 4, Bytes::BigEndian, 0, 2, "SSND"}, announced + 8);
    if (!damage.empty()) return damage;
    return announced + 8 > file.size() ? tooFew(announced + 8, file.size(), "") : "";
}

std::string damageOfAu(Reader& file, Bytes order) {
    const auto header = file.number(4, 4, order), sound = file.number(8, 4, order);
    if (!header || !sound || *header > file.size()) return "it ends before its sound begins";
    const std::uint64_t held = file.size() - *header;
    if (*sound == 0xffffffff) return "";  // up to the end of the file
    return *sound > held ? tooFew(*sound, held, " of sound") : "";
}

// The checksum of an Ogg page: polynomial 0x04c11db7, bits not reversed, nothing added.
std::uint32_t pageChecksum(std::string_view page) {
    static const std::array<std::uint32_t, 256> table = [] {
        std::array<std::uint32_t, 256> sums{};
        for (std::uint32_t i = 0; i < 256; ++i) {
            std::uint32_t sum = i << 24;
            for (int bit = 0; bit < 8; ++bit) sum = sum << 1 ^ (sum >> 31 ? 0x04c11db7u : 0u);
            sums[i] = sum;
        }
        return sums;
    }();
    std::uint32_t sum = 0;
    for (char letter : page) sum = sum << 8 ^ table[(sum >> 24) ^ static_cast<unsigned char>(letter)];
    return sum;
}

std::string damageOfOgg(Reader& file) {
    constexpr std::size_t headerBytes = 27;
    std::uint64_t position = 0;
    bool ended = false;
    // A page tells how many samples end with it; what else goes into Ogg than Vorbis counts them otherwise.
    const bool isVorbis = file.bytes(headerBytes + 1, 7) == std::string_view("\x01vorbis", 7);
    if (isVorbis) file.goodSamples = 0;
    while (position < file.size()) {
        const std::string where = " at byte " + std::to_string(position);
        std::string page = file.bytes(position, headerBytes);
        if (page.size() < headerBytes || page.compare(0, 4, "OggS") != 0) return "there is no page" + where;
        const std::size_t segments = static_cast<unsigned char>(page[26]);
        const std::string sizes = file.bytes(position + headerBytes, segments);
        std::size_t bytes = headerBytes + segments;
        for (char size : sizes) bytes += static_cast<unsigned char>(size);
        page = file.bytes(position, bytes);
        if (sizes.size() < segments || page.size() < bytes) return "the page" + where + " is cut off";
        const std::uint32_t sum = static_cast<std::uint32_t>(*file.number(position + 22, 4, Bytes::LittleEndian));
        std::memset(page.data() + 22, 0, 4);
        if (pageChecksum(page) != sum) return "the checksum of the page" + where + " is wrong";
        ended = (page[5] & 4) != 0;
        const std::uint64_t samples = *file.number(position + 6, 8, Bytes::LittleEndian);
        if (isVorbis && samples < unknown / 2) file.goodSamples = static_cast<std::int64_t>(samples);
        position += bytes;
    }
    return ended ? "" : "its last page is missing";
}

// A header, and packets of 120 bytes of samples, each with a sum. Numbers have seven bits to a byte.
std::string damageOfSampleDump(Reader& file) {
    constexpr std::uint64_t headerBytes = 21, packetBytes = 127;
    file.goodSamples = 0;
    const std::string header = file.bytes(0, headerBytes);
    if (header.size() < headerBytes) return "it ends before its sound begins";
    const std::int64_t samples = header[12] << 14 | header[11] << 7 | header[10];
    if (samples < 0) return "its header has a byte above 127 where it announces samples";
    const int bits = header[6];
    if (bits < 8 || bits > 28) return "";  // no such sound can be read
    const int samplesOfPacket = 120 / ((bits + 6) / 7);
    for (std::uint64_t position = headerBytes; *file.goodSamples < samples; position += packetBytes) {
        const std::string packet = file.bytes(position, packetBytes);
        if (packet.size() < packetBytes) {
            return "its header announces " + std::to_string(samples) + " samples, and " +
                   std::to_string(*file.goodSamples) + " are there";
        }
        const std::string where = "at byte " + std::to_string(position);
        const bool isPacket =
            packet[0] == header[0] && packet[1] == header[1] && packet[3] == 2 && packet[packetBytes - 1] == '\xf7';
        if (!isPacket) return "there is no packet " + where;
        char sum = 0;
        for (std::size_t i = 1; i < packetBytes - 2; ++i) sum = static_cast<char>(sum ^ packet[i]);
        if ((sum & 0x7f) != packet[packetBytes - 2]) return "the checksum of the packet " + where + " is wrong";
        file.goodSamples = std::min(samples, *file.goodSamples + samplesOfPacket);
    }
    return "";
}

struct Kind {
    const char* start;   // the first four bytes; a question mark is any
    const char* within;  // four bytes from the ninth on, where there are such
    const char* name;
    std::string (*damage)(Reader&);
};

const Kind kinds[] = {
    {"RIFF", "WAVE", "WAV", [](Reader& file) { return damageOfRiff(file, Bytes::LittleEndian); }},
    {"RIFX", "WAVE", "WAV", [](Reader& file) { return damageOfRiff(file, Bytes::BigEndian); }},
    {"RF64", "WAVE", "WAV", [](Reader& file) { return damageOfRiff(file, Bytes::LittleEndian); }},
    {"BW64", "WAVE", "WAV", [](Reader& file) { return damageOfRiff(file, Bytes::LittleEndian); }},
    {"FORM", "AIF", "AIFF", damageOfAiff},
    {".snd", "", "AU", [](Reader& file) { return damageOfAu(file, Bytes::BigEndian); }},
    {"dns.", "", "AU", [](Reader& file) { return damageOfAu(file, Bytes::LittleEndian); }},
    {"riff", "", "W64",
     [](Reader& file) {
         return damageOfChunks(file, {40, 16, 8, Bytes::LittleEndian, 24, 8, "data"}, unknown);
     }},
    {"caff", "", "CAF",
     [](Reader& file) {
         return damageOfChunks(file, {8, 4, 8, Bytes::BigEndian, 0, 1, "data"}, unknown);
     }},
    {"OggS", "", "Ogg", damageOfOgg},
    {"\xf0\x7e?\x01", "", "Sample Dump", damageOfSampleDump},
    {"fLaC", "", "FLAC", nullptr},  // its decoder checks sums over all samples
};

const Kind* kindOf(std::string_view firstBytes) {
    for (const Kind& kind : kinds) {
        const std::string_view within(kind.within);
        const auto isLike = [](char letter, char of) { return of == '?' || letter == of; };
        if (!std::ranges::equal(firstBytes.substr(0, 4), std::string_view(kind.start), isLike)) continue;
        // A file that is cut off within these bytes is what it begins as.
        const std::string_view inside = firstBytes.size() > 8 ? firstBytes.substr(8, within.size()) : "";
        if (inside == within.substr(0, inside.size())) return &kind;
    }
    return nullptr;
}

}  // namespace

std::string containerName(std::string_view firstBytes) {
    const Kind* const kind = kindOf(firstBytes);
    return kind ? kind->name : "";
}

std::string damageOfContainer(std::FILE* file, std::optional<std::int64_t>& goodSamples) {
    Reader reader(file);
    const Kind* const kind = kindOf(reader.bytes(0, 12));
    const std::string damage = kind && kind->damage ? kind->damage(reader) : "";
    goodSamples = reader.goodSamples;
    return damage;
}

}  // namespace spectrum
