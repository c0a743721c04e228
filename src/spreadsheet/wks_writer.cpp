#include "spreadsheet/wks_writer.h"

#include "base/run_time_error.h"
#include "spreadsheet/byte_conversions.h"
#include "spreadsheet/formula_encoder.h"
#include "spreadsheet/wks_records.h"

namespace velmora {
namespace {

constexpr int kFormatByte = 255;
constexpr int kFormulaFormatByte = 241;
constexpr char kLabelPrefix = '\'';

class Writer {
  public:
    explicit Writer(WksDialect dialect) : dialect_(dialect) {}

    std::string run(const SheetGrid& sheet) {
        record(kRecordStart, int16ToBytes(kWksVersion));
        for (int row = 0; row < sheet.rows(); ++row) {
            for (int column = 0; column < sheet.columns(); ++column) {
                at_ = {row, column};
                std::visit(*this, sheet.at(at_));
            }
        }
        record(kRecordEnd, {});
        return std::move(out_);
    }

    void operator()(std::monostate) const {}
    void operator()(std::int16_t value) {
        record(kRecordInteger, cellHeader(kFormatByte) + int16ToBytes(value));
    }
    void operator()(double value) { record(kRecordNumber, cellHeader(kFormatByte) + doubleToBytes(value)); }
    void operator()(const Label& label) {
        record(kRecordLabel, cellHeader(kFormatByte) + kLabelPrefix + label.text + '\0');
    }
    void operator()(const Formula& formula) {
        const std::string tokens = EncodeFormula(formula.text, at_, dialect_);
        record(kRecordFormula, cellHeader(kFormulaFormatByte) + doubleToBytes(0) +
                                   int16ToBytes(static_cast<int>(tokens.size())) + tokens);
    }

  private:
    std::string cellHeader(int format) const {
        return static_cast<char>(format) + int16ToBytes(at_.column) + int16ToBytes(at_.row);
    }
    void record(int type, const std::string& body) {
        if (body.size() > kLongestBody) {
            throw RunTimeError(ErrorNumber::Overflow, "a cell is too long for a worksheet file");
        }
        out_ += int16ToBytes(type) + int16ToBytes(static_cast<int>(body.size())) + body;
    }

    WksDialect dialect_;
    CellPosition at_;
    std::string out_;
};

}  // namespace

std::string writeWks(const SheetGrid& sheet, WksDialect dialect) {
    return Writer(dialect).run(sheet);
}

}  // namespace velmora
