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
constexpr std::size_t kVersionLength = 2;
constexpr std::size_t kCachedValue = 8;

class Writer {
  public:
    explicit Writer(WksDialect dialect) : dialect_(dialect) {}

    std::string run(const SheetGrid& sheet) {
        beginRecord(kRecordStart, kVersionLength);
        out_ += int16ToBytes(kWksVersion);
        for (int row = 0; row < sheet.rows(); ++row) {
            for (int column = 0; column < sheet.columns(); ++column) {
                at_ = {row, column};
                std::visit(*this, sheet.at(at_));
            }
        }
        beginRecord(kRecordEnd, 0);
        return std::move(out_);
    }

    void operator()(std::monostate) const {}
    void operator()(std::int16_t value) {
        beginCell(kRecordInteger, kIntegerBody, kFormatByte);
        out_ += int16ToBytes(value);
    }
    void operator()(double value) {
        beginCell(kRecordNumber, kNumberBody, kFormatByte);
        out_ += doubleToBytes(value);
    }
    void operator()(const Label& label) {
        beginCell(kRecordLabel, kLabelFrame + label.text.size(), kFormatByte);
        out_.append(1, kLabelPrefix).append(label.text).append(1, '\0');
    }
    void operator()(const Formula& formula) {
        const std::string tokens = EncodeFormula(formula.text, at_, dialect_);
        beginCell(kRecordFormula, kFormulaFrame + tokens.size(), kFormulaFormatByte);
        out_.append(kCachedValue, '\0').append(int16ToBytes(static_cast<int>(tokens.size()))).append(tokens);
    }

  private:
    void beginRecord(int type, std::size_t length) {
        if (length > kLongestBody) {
            throw RunTimeError(ErrorNumber::Overflow, "a cell is too long for a worksheet file");
        }
        out_.append(int16ToBytes(type)).append(int16ToBytes(static_cast<int>(length)));
    }
    void beginCell(int type, std::size_t length, int format) {
        beginRecord(type, length);
        out_.append(1, static_cast<char>(format))
            .append(int16ToBytes(at_.column))
            .append(int16ToBytes(at_.row));
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
