#include "spreadsheet/dif_writer.h"

#include <cmath>

#include "base/number_text.h"

namespace velmora {
namespace {

constexpr const char* kLineEnd = "\r\n";
constexpr const char* kEmptyString = "\"\"";

class Writer {
  public:
    std::string run(const SheetGrid& sheet) {
        header("TABLE", 1);
        header("VECTORS", sheet.columns());
        header("TUPLES", sheet.rows());
        header("DATA", 0);
        for (int row = 0; row < sheet.rows(); ++row) {
            item("-1,0", "BOT");
            for (int column = 0; column < sheet.columns(); ++column) {
                std::visit(*this, sheet.at({row, column}));
            }
        }
        item("-1,0", "EOD");
        return std::move(out_);
    }

    void operator()(std::monostate) { item("1,0", kEmptyString); }
    void operator()(std::int16_t value) { item("0," + std::to_string(value), "V"); }
    void operator()(double value) {
        if (std::isfinite(value)) {
            item("0," + plainText(value), "V");
        } else {
            item("0,0", "ERROR");
        }
    }
    void operator()(const Label& label) { item("1,0", quoted(label.text)); }
    void operator()(const Formula& formula) { item("1,0", quoted(formula.text)); }

  private:
    static std::string quoted(const std::string& text) { return "\"" + text + "\""; }
    void header(const std::string& topic, int value) {
        out_ += topic + kLineEnd;
        item("0," + std::to_string(value), kEmptyString);
    }
    void item(const std::string& numbers, const std::string& text) {
        out_ += numbers + kLineEnd + text + kLineEnd;
    }

    std::string out_;
};

}  // namespace

std::string writeDif(const SheetGrid& sheet) {
    return Writer().run(sheet);
}

}  // namespace velmora
