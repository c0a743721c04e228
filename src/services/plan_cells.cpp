#include "services/plan_cells.h"

#include <cmath>
#include <variant>

#include "base/number_text.h"
#include "spreadsheet/sheet_number_text.h"

namespace velmora {
namespace {

struct Encoder {
    CellMessage operator()(std::monostate) const { return {}; }
    CellMessage operator()(std::int16_t value) const { return {kCellValue, std::to_string(value)}; }
    CellMessage operator()(double value) const {
        const std::string text = exponentText(value);
        return {kCellValue, std::isfinite(value) ? text : "=" + text};
    }
    CellMessage operator()(const Label& label) const { return {kCellLabel, label.text}; }
    CellMessage operator()(const Formula& formula) const { return {kCellValue, "=" + formula.text}; }
};

}  // namespace

CellMessage cellMessage(const Cell& cell) {
    return std::visit(Encoder{}, cell);
}

Cell numberCell(std::string_view text) {
    constexpr double kIntegerLimit = 32'768;
    const double value = numericValue(text);
    const bool isInteger = text.find('.') == std::string_view::npos && std::abs(value) < kIntegerLimit &&
                           std::trunc(value) == value;
    if (isInteger) {
        return static_cast<std::int16_t>(value);
    }
    return value;
}

}  // namespace velmora
