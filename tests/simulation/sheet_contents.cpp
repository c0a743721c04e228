#include "sheet_contents.h"

#include <algorithm>

#include "base/files.h"
#include "services/plan_cells.h"
#include "spreadsheet/number_locale.h"
#include "spreadsheet/spreadsheet.h"

namespace velmora::simulation {
namespace {

/// Bytes as a file that can only be read.
class BytesFile : public File {
  public:
    explicit BytesFile(const std::string& bytes) : bytes_(bytes) {}
    std::size_t read(char* buffer, std::size_t count) override {
        const std::size_t taken = bytes_.copy(buffer, count, std::min<std::size_t>(position_, bytes_.size()));
        position_ += taken;
        return taken;
    }
    void write(std::string_view) override {}
    std::uint64_t position() const override { return position_; }
    void seek(std::uint64_t position) override { position_ = position; }
    std::uint64_t size() const override { return bytes_.size(); }
    void flush() override {}
    bool isInPlace() const override { return true; }
    void close() override {}

  private:
    const std::string& bytes_;
    std::size_t position_ = 0;
};

SpreadsheetSettings settingsFor(bool commonWorksheets) {
    SpreadsheetSettings settings;
    settings.locale = namedNumberLocale("").value_or(NumberLocale{});
    settings.wksDialect = commonWorksheets ? WksDialect::Common : WksDialect::Own;
    return settings;
}

/// The sheet that a server collects; the first message for a cell counts.
SheetGrid gridOf(const std::vector<SimulatedCell>& cells, bool keepsFormulas) {
    int rows = 0;
    int columns = 0;
    for (const SimulatedCell& cell : cells) {
        rows = std::max(rows, cell.row + 1);
        columns = std::max(columns, cell.column + 1);
    }
    SheetGrid grid(rows, columns);
    for (const SimulatedCell& cell : cells) {
        Cell& place = grid.at({cell.row, cell.column});
        if (!isEmpty(place)) {
            continue;
        }
        if (cell.type == kCellLabel) {
            place = Label{cell.text};
        } else if (!cell.text.starts_with('=')) {
            place = numberCell(cell.text);
        } else if (keepsFormulas) {
            place = Formula{cell.text.substr(1)};
        }
    }
    return grid;
}

std::vector<SimulatedCell> cellsOf(const SheetGrid& grid) {
    std::vector<SimulatedCell> cells;
    for (int row = 0; row < std::min(grid.rows(), kSheetRows); ++row) {
        for (int column = 0; column < std::min(grid.columns(), kSheetColumns); ++column) {
            if (!isEmpty(grid.at({row, column}))) {
                const CellMessage message = cellMessage(grid.at({row, column}));
                cells.push_back({column, row, message.type, message.text});
            }
        }
    }
    return cells;
}

}  // namespace

std::string sheetFile(const std::vector<SimulatedCell>& cells, int format, bool commonWorksheets) {
    return sheetBytes(gridOf(cells, KeepsFormulas(format)), format, settingsFor(commonWorksheets));
}

std::vector<SimulatedCell> cellsOfFile(const std::string& bytes, int format, bool commonWorksheets) {
    BytesFile file(bytes);
    return cellsOf(sheetFromFile(file, format, settingsFor(commonWorksheets)));
}

std::vector<SimulatedCell> asReturned(const std::vector<SimulatedCell>& cells) {
    return cellsOf(gridOf(cells, true));
}

std::string shuffled(const std::string& bytes, Random& random) {
    constexpr std::size_t kHead = 4;  // type and length of a record, least significant byte first
    std::vector<std::string> records;
    for (std::size_t at = 0; at + kHead <= bytes.size();) {
        const std::size_t length =
            static_cast<unsigned char>(bytes[at + 2]) + 256U * static_cast<unsigned char>(bytes[at + 3]);
        records.push_back(bytes.substr(at, kHead + length));
        at += kHead + length;
    }
    // The first and the last begin and end the file.
    for (std::size_t i = records.size() - 1; i-- > 2;) {
        std::swap(records[i], records[random.between(1, i)]);
    }
    std::string all;
    for (const std::string& record : records) {
        all += record;
    }
    return all;
}

}  // namespace velmora::simulation
