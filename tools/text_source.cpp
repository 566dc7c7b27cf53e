// Real numbers from text, in a file or on standard input. Bytes are taken one by one from a block and lines are
// counted, since the message about a wrong word names its line.
#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "input.h"
#include "user_error.h"

namespace spectrum {
namespace {

class TextSource : public Source {
public:
    explicit TextSource(const std::string& path)
        : file(path == "-" ? stdin : std::fopen(path.c_str(), "rb"), [](std::FILE* open) {
              if (open && open != stdin) std::fclose(open);
          }) {
        name = path == "-" ? "standard input" : printable(path);
        if (!file) throw UserError("cannot read " + name + ": " + std::strerror(errno));
    }

    std::size_t read(std::span<double> out) override {
        std::size_t count = 0;
        while (count < out.size() && takeWord()) out[count++] = numberOfWord();
        return count;
    }

private:
    static constexpr std::size_t longestWord = 1000;

    // The next byte, or EOF.
    int peek() {
        if (next == filled) {
            filled = std::fread(block.data(), 1, block.size(), file.get());
            next = 0;
            if (std::ferror(file.get())) throw UserError("cannot read " + name + ": " + std::strerror(errno));
            if (filled == 0) return EOF;
        }
        return static_cast<unsigned char>(block[next]);
    }

    static bool separates(int letter) {
        return letter == ' ' || letter == ',' || (letter >= '\t' && letter <= '\r');
    }

    void skipSeparators() {
        bool inComment = false;
        for (int letter = peek(); letter != EOF; letter = peek()) {
            if (letter == '#') inComment = true;
            if (letter == '\n') inComment = false;
            if (!inComment && !separates(letter)) return;
            line += letter == '\n';
            ++next;
        }
    }

    bool takeWord() {
        skipSeparators();
        word.clear();
        for (int letter = peek(); letter != EOF && letter != '#' && !separates(letter); letter = peek()) {
            word += static_cast<char>(letter);
            ++next;
            if (word.size() > longestWord) break;
        }
        return !word.empty();
    }

    double numberOfWord() const {
        const char* start = word.data();
        const char* const end = start + word.size();
        // std::from_chars accepts a minus sign but no plus sign.
        if (word.size() > 1 && word[0] == '+' && word[1] != '-') ++start;
        double number = 0;
        const auto [rest, error] = std::from_chars(start, end, number);
        const std::string where = name + ", line " + std::to_string(line) + ": '" + printable(word, 40) + "' is ";
        if (error == std::errc::result_out_of_range) throw UserError(where + "beyond the range of a number");
        if (error != std::errc{} || rest != end || !std::isfinite(number)) throw UserError(where + "not a number");
        return number;
    }

    std::unique_ptr<std::FILE, void (*)(std::FILE*)> file;
    std::array<char, 65536> block;
    std::size_t next = 0, filled = 0;
    std::int64_t line = 1;
    std::string word;
};

}  // namespace

std::unique_ptr<Source> openText(const std::string& path) { return std::make_unique<TextSource>(path); }

}  // namespace spectrum
