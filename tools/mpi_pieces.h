// Work as it is dealt out to ranks: whole files, and pieces of long recordings.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "batch_plan.h"
#include "run.h"

namespace spectrum {

struct Piece {
    std::size_t file = 0;
    std::int64_t first = 0, count = 0;  // frames; a count of 0 is the whole file, which the rank writes itself
};

struct PieceResult {
    Piece piece;
    FileResult result;
    std::string bytes;  // of a piece
};

// Never throws: what goes wrong is the result.
PieceResult run(const Piece& piece, const BatchOptions& options, const std::vector<BatchFile>& files);

// Messages, and back.
std::string textOf(const Piece& piece);
Piece pieceOf(const std::string& text);
std::string textOf(const PieceResult& result);
PieceResult pieceResultOf(const std::string& text);

// Deals out files in their order and puts pieces together. Rank 0 has one.
class Dealer {
public:
    // `isDone` is asked once for each file.
    Dealer(const BatchOptions& options, const std::vector<BatchFile>& files, std::int64_t mostSamples,
           std::function<bool(const BatchFile&)> isDone);
    ~Dealer();

    std::optional<Piece> next();
    // What became of the file, when this was the last of its pieces.
    std::optional<FileResult> take(const PieceResult& result);

private:
    // A recording of which pieces are under way.
    struct Recording {
        RunShape shape{};
        std::int64_t framesInPiece = 0, dealt = 0, written = 0;  // frames
        std::size_t underWay = 0;
        std::map<std::int64_t, PieceResult> waiting;  // by first frame: pieces that came before their turn
        std::unique_ptr<PieceCollector> collector;    // none any more once a piece has failed
    };

    std::int64_t framesInPiece(const RunShape& shape) const;
    std::optional<Piece> nextPiece(std::size_t file, Recording& recording);

    const BatchOptions& options;
    const std::vector<BatchFile>& files;
    std::int64_t mostSamples;
    std::function<bool(const BatchFile&)> isDone;
    std::size_t nextFile = 0;
    std::map<std::size_t, Recording> recordings;
    std::vector<std::size_t> wholes;  // files of which a piece has failed: one run over all says what is wrong
};

}  // namespace spectrum
