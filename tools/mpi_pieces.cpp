// A piece is as long as --split says, and shorter where its bytes would be many: they travel in one message.
#include "mpi_pieces.h"

#include <algorithm>
#include <filesystem>

#include "user_error.h"

namespace spectrum {
namespace {

constexpr std::int64_t mostBytes = 16 << 20;

// What a frame takes in a table, at most, and in a picture.
std::int64_t bytesOfFrame(const Options& options) {
    const std::int64_t bins = options.framing.family->binCount(options.framing.length);
    if (isPicture(options.format)) return 1;
    return options.format == Format::Npy ? 16 * bins : 160 * bins + 100;
}

Json jsonOf(const Piece& piece) { return {{"file", piece.file}, {"first", piece.first}, {"count", piece.count}}; }
Piece pieceOf(const Json& json) { return {json.at("file"), json.at("first"), json.at("count")}; }

}  // namespace

PieceResult run(const Piece& piece, const BatchOptions& options, const std::vector<BatchFile>& files) {
    PieceResult result{piece, {}, {}};
    const BatchFile& file = files[piece.file];
    if (piece.count == 0) {
        result.result = runFile(options, file);
        return result;
    }
    try {
        result.bytes = runPiece(optionsFor(options, file), piece.first, piece.count);
    } catch (const std::exception& error) {
        result.result = resultOf(error);
    }
    return result;
}

std::string textOf(const Piece& piece) { return jsonLine(jsonOf(piece)); }
Piece pieceOf(const std::string& text) { return pieceOf(Json::parse(text)); }

std::string textOf(const PieceResult& result) {
    return jsonLine({{"piece", jsonOf(result.piece)}, {"result", jsonOf(result.result)}}) + result.bytes;
}

PieceResult pieceResultOf(const std::string& text) {
    const std::size_t end = text.find('\n') + 1;
    const Json json = Json::parse(text.substr(0, end));
    return {pieceOf(json.at("piece")), resultOf(json.at("result")), text.substr(end)};
}

Dealer::Dealer(const BatchOptions& given, const std::vector<BatchFile>& all, std::int64_t most,
               std::function<bool(const BatchFile&)> done)
    : options(given), files(all), mostSamples(most), isDone(std::move(done)) {}
Dealer::~Dealer() = default;

std::int64_t Dealer::framesInPiece(const RunShape& shape) const {
    const std::int64_t byTime = mostSamples / options.each.framing.hop;
    const std::int64_t bySize = mostBytes / bytesOfFrame(options.each);
    const std::int64_t frames = std::max<std::int64_t>(1, std::min(byTime, bySize));
    return std::max<std::int64_t>(1, frames / shape.step) * shape.step;
}

std::optional<Piece> Dealer::nextPiece(std::size_t file, Recording& recording) {
    if (recording.dealt == recording.shape.frames || !recording.collector) return {};
    const Piece piece{file, recording.dealt,
                      std::min(recording.framesInPiece, recording.shape.frames - recording.dealt)};
    recording.dealt += piece.count;
    ++recording.underWay;
    return piece;
}

std::optional<Piece> Dealer::next() {
    if (!wholes.empty()) {
        const Piece whole{wholes.back(), 0, 0};
        wholes.pop_back();
        return whole;
    }
    // Pieces of a recording that is begun come first, so that few of them wait for their turn.
    for (auto& [file, recording] : recordings) {
        if (auto piece = nextPiece(file, recording)) return piece;
    }
    while (nextFile < files.size()) {
        const std::size_t file = nextFile++;
        if (isDone(files[file])) continue;
        const Piece whole{file, 0, 0};
        Recording recording;
        try {
            const Options one = optionsFor(options, files[file]);
            if (one.input.allowsDamage) return whole;  // a damaged file may hold less than it says
            if (one.input.channel == everyChannel) return whole;
            recording.shape = shapeOf(one);
            recording.framesInPiece = framesInPiece(recording.shape);
            if (recording.shape.frames == 0 || recording.shape.samples <= mostSamples) return whole;
            std::filesystem::create_directories(std::filesystem::path(one.output).parent_path());
            recording.collector = std::make_unique<PieceCollector>(one);
        } catch (const std::exception&) {
            return whole;  // which reports what is wrong
        }
        return nextPiece(file, recordings.emplace(file, std::move(recording)).first->second);
    }
    return {};
}

std::optional<FileResult> Dealer::take(const PieceResult& given) {
    if (given.piece.count == 0) return given.result;
    Recording& recording = recordings.at(given.piece.file);
    --recording.underWay;
    recording.waiting.emplace(given.piece.first, given);
    bool isWell = recording.collector && given.result.status == 0;
    try {
        while (isWell && !recording.waiting.empty() && recording.waiting.begin()->first == recording.written) {
            const PieceResult& piece = recording.waiting.begin()->second;
            recording.collector->add(piece.bytes, piece.piece.count);
            recording.written += piece.piece.count;
            recording.waiting.erase(recording.waiting.begin());
        }
        if (isWell && recording.written == recording.shape.frames) recording.collector->close();
    } catch (const std::exception&) {
        isWell = false;
    }
    if (!isWell) recording.collector.reset();  // which leaves an earlier output as it was
    if (isWell && recording.written == recording.shape.frames) {
        const FileResult result{0, "", recording.shape.samples, recording.shape.frames, {}};
        recordings.erase(given.piece.file);
        return result;
    }
    if (!isWell && recording.underWay == 0) {
        wholes.push_back(given.piece.file);
        recordings.erase(given.piece.file);
    }
    return {};
}

}  // namespace spectrum
