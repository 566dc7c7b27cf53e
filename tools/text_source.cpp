// Real numbers from text, in a file or on standard input. Letters are taken one by one and lines are counted, since the
// message about a wrong word names its line. UTF-16 is read where a byte-order mark says so.
#include <cmath>

#include "input.h"
#include "numbers.h"
#include "user_error.h"

namespace spectrum {
namespace {

class TextSource : public Source {
public:
    TextSource(const InputOptions& options, std::unique_ptr<ByteStream> given)
        : bytes(std::move(given)), mark(options.decimal == DecimalMark::Comma ? ',' : '.') {
        name = bytes->name();
        const std::string_view start = bytes->held();
        if (start.starts_with("\xef\xbb\xbf")) bytes->take(3);
        if (start.starts_with("\xff\xfe")) width = Width::LittleEndian;
        if (start.starts_with("\xfe\xff")) width = Width::BigEndian;
        if (width != Width::Byte) bytes->take(2);
    }

    std::size_t read(std::span<double> out) override {
        std::size_t count = 0;
        while (count < out.size() && takeWord()) out[count++] = numberOfWord();
        return count;
    }

private:
    enum class Width { Byte, LittleEndian, BigEndian };
    static constexpr std::size_t longestWord = 1 << 20;
    static constexpr int noLetter = 0xff;  // instead of any letter beyond ASCII

    // The next letter, or EOF.
    int peek() {
        if (width == Width::Byte) return bytes->peek();
        if (letter != nothing) return letter;
        const int first = bytes->peek();
        if (first == EOF) return letter = EOF;
        bytes->step();
        const int second = bytes->peek();
        if (second == EOF) throw UserError(where() + "the text ends within a letter of UTF-16");
        bytes->step();
        const int high = width == Width::BigEndian ? first : second, low = width == Width::BigEndian ? second : first;
        return letter = high == 0 ? low : noLetter;
    }

    void step() {
        if (width == Width::Byte) bytes->step();
        letter = nothing;
    }

    bool separates(int one) const {
        return one == ' ' || (one == ',' && mark == '.') || one == ';' || (one >= '\t' && one <= '\r');
    }

    void skipSeparators() {
        bool inComment = false;
        for (int one = peek(); one != EOF; one = peek()) {
            if (one == '#') inComment = true;
            if (one == '\n') inComment = false;
            if (!inComment && !separates(one)) return;
            line += one == '\n';
            step();
        }
    }

    bool takeWord() {
        skipSeparators();
        word.clear();
        for (int one = peek(); one != EOF && one != '#' && !separates(one); one = peek()) {
            if (word.size() == longestWord) {
                throw UserError(where() + "'" + printable(word, 40) + "' is longer than " +
                                std::to_string(longestWord) + " letters");
            }
            word += static_cast<char>(one);
            step();
        }
        return !word.empty();
    }

    double numberOfWord() {
        const std::string shown = "'" + printable(word, 40) + "' is ";
        if (mark == ',') {
            for (char& one : word) {
                if (one == '.') throw UserError(where() + shown + "not a number with a decimal comma");
                if (one == ',') one = '.';
            }
        }
        double number = 0;
        const std::errc error = readWhole(word, number);
        if (error == std::errc::result_out_of_range) throw UserError(where() + shown + "beyond the range of a number");
        if (error != std::errc{} || !std::isfinite(number)) throw UserError(where() + shown + "not a number");
        return number;
    }

    std::string where() const { return name + ", line " + std::to_string(line) + ": "; }

    static constexpr int nothing = -2;

    std::unique_ptr<ByteStream> bytes;
    char mark;
    Width width = Width::Byte;
    int letter = nothing;  // that is looked at and not taken, of UTF-16
    std::int64_t line = 1;
    std::string word;
};

}  // namespace

std::unique_ptr<Source> openText(const InputOptions& options, std::unique_ptr<ByteStream> stream) {
    return std::make_unique<TextSource>(options, std::move(stream));
}

}  // namespace spectrum
