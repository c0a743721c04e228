// How fast worksheets and formulas are converted. Targets on a desktop of today: a full sheet of formulas
// written and read in under 5 ms each; half a million tokens a second both ways; junk records skipped in
// time linear in their number, without being kept; no file of 49 MB read for longer than 3 s.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "base/files.h"
#include "spreadsheet/byte_conversions.h"
#include "spreadsheet/formula_decoder.h"
#include "spreadsheet/formula_encoder.h"
#include "spreadsheet/formula_tables.h"
#include "spreadsheet/infix_to_rpn.h"
#include "spreadsheet/wks_reader.h"
#include "spreadsheet/wks_writer.h"

namespace velmora {
namespace {

constexpr const char* kFormula = "SUM($A$1:B9)*2.5E0+(C3-D4)/ROUND(E5,2)-A1**2";

/// A file of one pattern repeated, made while it is read.
class RepeatedFile : public File {
  public:
    RepeatedFile(std::string pattern, std::uint64_t size) : pattern_(std::move(pattern)), size_(size) {}
    std::size_t read(char* buffer, std::size_t count) override {
        const std::uint64_t left = size_ - std::min(position_, size_);
        const auto taken = static_cast<std::size_t>(std::min<std::uint64_t>(count, left));
        for (std::size_t done = 0; done < taken;) {
            const std::size_t offset = static_cast<std::size_t>((position_ + done) % pattern_.size());
            const std::size_t piece = std::min(taken - done, pattern_.size() - offset);
            std::memcpy(buffer + done, pattern_.data() + offset, piece);
            done += piece;
        }
        position_ += taken;
        return taken;
    }
    void write(std::string_view) override {}
    std::uint64_t position() const override { return position_; }
    void seek(std::uint64_t position) override { position_ = position; }
    std::uint64_t size() const override { return size_; }
    void flush() override {}
    bool isInPlace() const override { return true; }
    void close() override {}

  private:
    std::string pattern_;
    std::uint64_t size_;
    std::uint64_t position_ = 0;
};

SheetGrid fullSheet() {
    SheetGrid sheet(kSheetRows, kSheetColumns);
    for (int row = 0; row < kSheetRows; ++row) {
        for (int column = 0; column < kSheetColumns; ++column) {
            sheet.at({row, column}) = Formula{kFormula};
        }
    }
    return sheet;
}

std::int64_t tokensOf(const std::string& formula) {
    const std::string postfix = InfixToRpn(formula);
    return 1 + std::count(postfix.begin(), postfix.end(), ' ');
}

void BM_WriteFullSheet(benchmark::State& state) {
    const SheetGrid sheet = fullSheet();
    for (auto _ : state) {
        benchmark::DoNotOptimize(writeWks(sheet));
    }
}
BENCHMARK(BM_WriteFullSheet)->Unit(benchmark::kMillisecond);

void BM_ReadFullSheet(benchmark::State& state) {
    const std::string bytes = writeWks(fullSheet());
    for (auto _ : state) {
        RepeatedFile file(bytes, bytes.size());
        benchmark::DoNotOptimize(readWks(file));
    }
}
BENCHMARK(BM_ReadFullSheet)->Unit(benchmark::kMillisecond);

void BM_EncodeFormula(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(EncodeFormula(kFormula, {50, 10}));
    }
    state.counters["tokens/s"] = benchmark::Counter(
        static_cast<double>(state.iterations() * tokensOf(kFormula)), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_EncodeFormula);

void BM_DecodeFormula(benchmark::State& state) {
    const std::string tokens = EncodeFormula(kFormula, {50, 10});
    for (auto _ : state) {
        benchmark::DoNotOptimize(DecodeFormula(tokens, {50, 10}));
    }
    state.counters["tokens/s"] = benchmark::Counter(
        static_cast<double>(state.iterations() * tokensOf(kFormula)), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_DecodeFormula);

/// Records of 0, 20 and 60,000 bytes: many headers, and bodies to be skipped.
void BM_ReadJunk(benchmark::State& state) {
    const auto body = static_cast<std::size_t>(state.range(1));
    const std::string record =
        int16ToBytes(99) + int16ToBytes(static_cast<int>(body)) + std::string(body, 'x');
    const auto size = static_cast<std::uint64_t>(state.range(0)) * 1'000'000;
    for (auto _ : state) {
        RepeatedFile file(record, size);
        benchmark::DoNotOptimize(readWks(file));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(size));
}
BENCHMARK(BM_ReadJunk)
    ->Unit(benchmark::kMillisecond)
    ->ArgsProduct({{5, 50}, {0, 20, 60'000}})
    ->ArgNames({"MB", "body"});

/// 49 MB of formulas that fill their records and whose operands grow as far as they may: by signs, by calls
/// of many arguments, in pieces of the longest operand each.
void BM_ReadGrowingOperands(benchmark::State& state) {
    constexpr std::size_t kTokens = 0xFFFF - 15;
    constexpr int kFunction = 80;
    const auto fill = [](std::string tokens, const std::string& pattern) {
        while (tokens.size() + pattern.size() <= kTokens) {
            tokens += pattern;
        }
        return tokens;
    };
    const std::string one = "\5\1" + std::string(1, '\0');
    const std::string signs = fill(one, std::string(1, kFirstOperator));
    const std::string calls = fill(one, {static_cast<char>(kFunction), static_cast<char>(255)});
    const std::string pieces = fill({}, one + std::string(4090, kFirstOperator));
    const std::string& tokens = state.range(0) == 0 ? signs : state.range(0) == 1 ? calls : pieces;
    const std::string body = std::string(15, '\0') + tokens;
    const std::string record = int16ToBytes(16) + int16ToBytes(static_cast<int>(body.size())) + body;
    constexpr std::uint64_t kSize = 49'000'000;
    for (auto _ : state) {
        RepeatedFile file(record, kSize);
        benchmark::DoNotOptimize(readWks(file));
    }
}
BENCHMARK(BM_ReadGrowingOperands)->Unit(benchmark::kMillisecond)->DenseRange(0, 2)->ArgName("pattern");

}  // namespace
}  // namespace velmora
