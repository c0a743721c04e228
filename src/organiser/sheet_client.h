// PLAN and PLANM: spreadsheets, cell by cell.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "organiser/organiser_link.h"
#include "organiser/progress.h"

namespace velmora {

/// Limits of the Organiser's spreadsheet.
constexpr int kSheetColumns = 26;
constexpr int kSheetRows = 99;

/// One cell as it goes over the line.
struct SheetCell {
    static constexpr std::uint8_t kLabel = 34;
    static constexpr std::uint8_t kNumberOrFormula = 135;

    int column = 0;  ///< 0 to 25
    int row = 0;     ///< 0 to 98
    std::uint8_t type = kNumberOrFormula;
    std::string text;  ///< of a label; of a number; of a formula with its "="

    friend bool operator==(const SheetCell&, const SheetCell&) = default;
};

/// A worksheet format that the server offers.
struct OfferedFormat {
    std::string name;
    int code = 0;  ///< 1 to 6

    friend bool operator==(const OfferedFormat&, const OfferedFormat&) = default;
};

/// The conversations of the services. Throws LinkFailure and LineError; a refusal whose reason is the number
/// of a failed file operation on the server says so in its text.
class SheetClient {
  public:
    /// Both must outlive the client.
    SheetClient(OrganiserLink& link, Progress& progress) : link_(link), progress_(progress) {}

    /// The formats that the server's menu lists.
    std::vector<OfferedFormat> formats();
    /// Sends a sheet, as large as its last column and row, into a worksheet file of `format`.
    void save(std::string_view name, int format, const std::vector<SheetCell>& cells);
    /// Fetches the cells of a worksheet file row by row.
    std::vector<SheetCell> load(std::string_view name, int format);

  private:
    void sendCells(std::string_view name, const std::vector<SheetCell>& cells);

    OrganiserLink& link_;
    Progress& progress_;
};

/// The entries of a format menu: length, name, 0, code; a 0 after the last. Throws Unexpected.
std::vector<OfferedFormat> decodeFormats(std::string_view menu);

}  // namespace velmora
