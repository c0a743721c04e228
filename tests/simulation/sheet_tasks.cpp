// Spreadsheets of the service PLAN.
#include <set>

#include "organiser/sheet_client.h"
#include "sheet_contents.h"
#include "task.h"
#include "violation.h"

namespace velmora::simulation {
namespace {

std::vector<SimulatedCell> anyCells(Random& random) {
    static const std::vector<std::string> kTexts = {"1",     "-32768", "40000",       "2.5",
                                                    "1.0E9", "=A1+B1", "=SUM(A1:B2)", "0"};
    std::vector<SimulatedCell> cells;
    std::set<std::pair<int, int>> taken;
    for (std::uint64_t count = random.between(1, 8); count > 0; --count) {
        SimulatedCell cell;
        cell.column = static_cast<int>(random.below(random.chance(1, 8) ? 26 : 4));
        cell.row = static_cast<int>(random.below(random.chance(1, 8) ? 99 : 4));
        const bool isLabel = random.chance(1, 3);
        cell.type = isLabel ? SheetCell::kLabel : SheetCell::kNumberOrFormula;
        cell.text = isLabel ? "Label " + std::to_string(random.below(100)) : random.pick(kTexts);
        if (taken.insert({cell.row, cell.column}).second) {
            cells.push_back(cell);
        }
    }
    return cells;
}

std::vector<SheetCell> forOrganiser(const std::vector<SimulatedCell>& cells) {
    std::vector<SheetCell> all;
    for (const SimulatedCell& cell : cells) {
        all.push_back({cell.column, cell.row, static_cast<std::uint8_t>(cell.type), cell.text});
    }
    return all;
}

std::size_t bytesOf(const std::vector<SheetCell>& cells) {
    std::size_t sum = 0;
    for (const SheetCell& cell : cells) {
        sum += cell.text.size() + 3;
    }
    return sum;
}

std::string extensionOf(int format) {
    static const std::vector<std::string> kExtensions = {"", "", ".WKS", ".DIF", ".CSV", ".TXT", ".TAB"};
    return kExtensions[static_cast<std::size_t>(format)];
}

}  // namespace

Task makeSheetSaving(TaskContext& context) {
    Random& random = context.random;
    const int format = static_cast<int>(random.between(2, 6));
    const std::string name = "S" + std::to_string(random.below(4)) + extensionOf(format);
    const std::vector<SimulatedCell> cells = anyCells(random);
    Task task;
    task.path = pathOf(name);
    FileContent content{
        sheetFile(cells, format, context.settings.commonWorksheets), Form::Sheet, format, false, {}};
    task.saving = Saving{task.path, true, content, {}};
    if (context.files.find(task.path) == nullptr) {
        // Whether the file can be written is tried with an empty one, which stays if it cannot be deleted.
        task.saving->partial.push_back({{}, Form::Other, 0, false, {}});
    }
    const std::vector<SheetCell> sent = forOrganiser(cells);
    task.statistics = {2 + bytesOf(sent), 0, 1, 0};
    task.converse = [=](OrganiserLink& link) {
        Progress progress;
        SheetClient(link, progress).save(name, format, sent);
    };
    return task;
}

Task makeSheetLoading(const std::string& path, TaskContext& context) {
    const FileContent& content = context.files.find(path)->now;
    const std::string& inOrder = content.records.empty() ? content.bytes : content.records.front();
    const std::vector<SheetCell> expected =
        forOrganiser(cellsOfFile(inOrder, content.variety, context.settings.commonWorksheets));
    Task task;
    task.path = path;
    task.statistics = {0, bytesOf(expected), 0, 1};
    task.converse = [=, format = content.variety](OrganiserLink& link) {
        Progress progress;
        const std::string name = path.substr(path.rfind('/') + 1);
        require(SheetClient(link, progress).load(name, format) == expected,
                "A sheet came with other cells than its file has: " + path + ".");
    };
    return task;
}

void putSheet(TaskContext& context) {
    constexpr int kWorksheet = 2;
    const std::string bytes = sheetFile(anyCells(context.random), kWorksheet, false);
    context.files.put(pathOf("S" + std::to_string(context.random.below(4)) + ".WKS"),
                      {shuffled(bytes, context.random), Form::Sheet, kWorksheet, false, {bytes}});
}

}  // namespace velmora::simulation
