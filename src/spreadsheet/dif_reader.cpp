#include "spreadsheet/dif_reader.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "base/byte_text.h"
#include "base/number_text.h"
#include "spreadsheet/byte_reader.h"

namespace velmora {
namespace {

/// The two numbers of a line "type,value".
struct Pair {
    double type = 0;
    double value = 0;
};

Pair parsePair(std::string_view line) {
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos) {
        return {numericValue(line), 0};
    }
    return {numericValue(line.substr(0, comma)), numericValue(line.substr(comma + 1))};
}

int clampCount(double count, int most) {
    return static_cast<int>(std::clamp(count, 0.0, static_cast<double>(most)));
}

class Reader {
  public:
    Reader(File& file, LeftOut* leftOut) : lines_(file), leftOut_(leftOut) {}

    SheetGrid run() {
        if (readHeader()) {
            while (readItem()) {
            }
        }
        if (leftOut_ != nullptr) {
            leftOut_->end = !ended_;
        }
        return std::move(sheet_);
    }

  private:
    /// Reads up to the data; false when the file ends before.
    bool readHeader() {
        std::string topic;
        std::string numbers;
        std::string text;
        int rows = 0;
        int columns = 0;
        while (lines_.next(topic)) {
            topic = upperCase(trimBlanks(topic));
            lines_.next(numbers);
            lines_.next(text);
            if (topic == "VECTORS") {
                columns = clampCount(parsePair(numbers).value, kSheetColumns);
            } else if (topic == "TUPLES") {
                rows = clampCount(parsePair(numbers).value, kSheetRows);
            } else if (topic == "DATA") {
                sheet_ = SheetGrid(rows, columns);
                return true;
            }
        }
        return false;
    }

    /// Reads one item of the data; false when there is no further one.
    bool readItem() {
        std::string numbers;
        if (!lines_.next(numbers) || !lines_.next(text_)) {
            return false;
        }
        text_ = trimBlanks(text_);
        const Pair pair = parsePair(numbers);
        if (pair.type == -1) {
            return readMark();
        }
        if (pair.type == 1) {
            storeText();
        } else if (pair.type == 0) {
            storeValue(pair.value);
        }
        return true;
    }

    bool readMark() {
        const std::string mark = upperCase(text_);
        if (mark == "BOT") {
            ++at_.row;
            at_.column = 0;
        }
        ended_ = mark == "EOD";
        // Behind the last row only what is left out is of interest.
        return !ended_ && (at_.row < kSheetRows || leftOut_ != nullptr);
    }

    void storeText() {
        const std::size_t close = text_.rfind('"');
        if (text_.empty() || text_.front() != '"' || close < 2) {
            return;
        }
        if (leftOut_ != nullptr && close - 1 > kLongestCellText) {
            ++leftOut_->texts;
        }
        store(Label{text_.substr(1, std::min(close - 1, kLongestCellText))});
    }

    void storeValue(double value) {
        const std::string indicator = upperCase(text_);
        if (indicator == "V") {
            store(value);
        } else {
            store(Formula{indicator == "ERROR" ? "ERR" : text_});
        }
    }

    void store(Cell cell) {
        if (sheet_.contains(at_)) {
            sheet_.at(at_) = std::move(cell);
        } else if (leftOut_ != nullptr) {
            ++leftOut_->cells;
        }
        at_.column = std::min(at_.column + 1, kSheetColumns);
    }

    SheetLines lines_;
    SheetGrid sheet_;
    CellPosition at_{-1, 0};
    std::string text_;
    bool ended_ = false;
    LeftOut* leftOut_;
};

}  // namespace

SheetGrid readDif(File& file, LeftOut* leftOut) {
    return Reader(file, leftOut).run();
}

}  // namespace velmora
