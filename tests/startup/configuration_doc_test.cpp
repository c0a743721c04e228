// The user guide's page on the configuration file says what the program does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "services/strings.h"
#include "startup/messages.h"
#include "startup/settings.h"
#include "support/ini_rig.h"

namespace velmora {
namespace {

/// The cells of a table row of the page.
using Cells = std::vector<std::string>;

std::string trimmed(const std::string& cell) {
    const std::size_t first = cell.find_first_not_of(' ');
    return first == std::string::npos ? "" : cell.substr(first, cell.find_last_not_of(' ') - first + 1);
}

/// A cell without the backquotes around it.
std::string literal(const std::string& cell) {
    return cell.size() >= 2 && cell.front() == '`' ? cell.substr(1, cell.size() - 2) : cell;
}

/// The rows of the page's tables by section and key, for headings that name a [section].
class ConfigurationPage : public ::testing::Test {
  protected:
    ConfigurationPage() {
        std::ifstream page(VELMORA_SOURCE_DIR "/docs/configuration.md");
        EXPECT_TRUE(page) << "docs/configuration.md is missing";
        std::string section;
        for (std::string line; std::getline(page, line);) {
            if (line.starts_with("## ")) {
                const std::size_t open = line.find('[');
                section = open == std::string::npos ? "" : line.substr(open + 1, line.find(']') - open - 1);
            }
            if (line.starts_with("| `") && !section.empty()) {
                const Cells cells = split(line);
                EXPECT_TRUE(rows_.emplace(section + "." + literal(cells[0]), cells).second) << line;
            }
        }
    }
    static Cells split(const std::string& line) {
        Cells cells;
        for (std::size_t begin = 1; begin < line.size();) {
            const std::size_t end = line.find('|', begin);
            cells.push_back(trimmed(line.substr(begin, end - begin)));
            begin = end + 1;
        }
        return cells;
    }
    static std::string typeWord(SettingType type) {
        switch (type) {
            case SettingType::Path:
                return "folder";
            case SettingType::Integer:
                return "number";
            case SettingType::Boolean:
                return "yes/no";
            case SettingType::Text:
                return "text";
        }
        return {};
    }
    std::map<std::string, Cells> rows_;
};

TEST_F(ConfigurationPage, HasEverySettingAndTextAndNoOther) {
    std::set<std::string> read;
    for (const SettingRow& row : settingsTable()) {
        read.insert(std::string(row.section) + "." + std::string(row.key));
    }
    for (const MessageKey& message : messageKeys()) {
        read.insert(std::string(message.section) + "." + std::string(message.key));
    }
    std::set<std::string> documented;
    for (const auto& [key, cells] : rows_) {
        documented.insert(key);
    }
    EXPECT_EQ(documented, read);
}

TEST_F(ConfigurationPage, GivesTypeAndDefaultOfEverySetting) {
    for (const SettingRow& row : settingsTable()) {
        const Cells& cells = rows_[std::string(row.section) + "." + std::string(row.key)];
        ASSERT_EQ(cells.size(), 4U) << row.key;
        EXPECT_EQ(cells[1], typeWord(row.type)) << row.key;
        EXPECT_EQ(cells[2], row.defaultText) << row.key;
    }
}

TEST_F(ConfigurationPage, GivesTheDefaultOfEveryText) {
    // What the page says, written into a file and read, is the catalogue that is there without a file.
    std::string file;
    for (const MessageKey& message : messageKeys()) {
        const Cells& cells = rows_[std::string(message.section) + "." + std::string(message.key)];
        file += "[" + std::string(message.section) + "]\r\n" + std::string(message.key) + "=";
        if (message.section == "DisplayStrings") {
            ASSERT_EQ(cells.size(), 4U) << message.key;
            const std::string line2 = cells[3] == "one blank" ? " " : literal(cells[3]);
            file += "\"" + literal(cells[2]) + "\",\"" + line2 + "\"\r\n";
        } else {
            ASSERT_EQ(cells.size(), 2U) << message.key;
            file += "\"" + literal(cells[1]) + "\"\r\n";
        }
        test::IniRig rig;
        rig.given(file);
        Strings strings;
        get_Messages(rig.ini, strings);
        rig.given("");
        Strings builtIn;
        get_Messages(rig.ini, builtIn);
        EXPECT_EQ(strings.DisplayStrings, builtIn.DisplayStrings) << message.key;
        const auto singles = [](const Strings& texts) {
            return std::vector{texts.Files,        texts.Bytes,         texts.Received,
                               texts.Sent,         texts.Error,         texts.FolderCaption,
                               texts.DownloadPath, texts.BadBlockFile,  texts.BadBootFile,
                               texts.FileNotFound, texts.TooManyErrors, texts.UserInterrupt,
                               texts.LineDown,     texts.OnExitAskText, texts.OnShutdownAskText};
        };
        EXPECT_EQ(singles(strings), singles(builtIn)) << message.key;
        file.clear();
    }
}

}  // namespace
}  // namespace velmora
