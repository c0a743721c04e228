// What the documents show to be typed or written, tried as it stands there.
#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

namespace fs = std::filesystem;

/// Lines of a document that are set as they are to be typed: between fences, or indented.
struct CodeBlock {
    std::string document;
    std::vector<std::string> lines;
};

std::string withoutIndent(const std::string& line) {
    return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

std::vector<CodeBlock> codeBlocksOf(const fs::path& document) {
    std::vector<CodeBlock> blocks;
    bool fenced = false;
    bool before = false;  // the line before belonged to a block
    std::istringstream lines(contentsOf(document));
    for (std::string line; std::getline(lines, line);) {
        const std::string text = withoutIndent(line);
        if (text.starts_with("```")) {
            fenced = !fenced;
            before = false;
            continue;
        }
        // An empty line within a block is a line of it.
        const bool inside = fenced || line.starts_with("    ") || (before && text.empty());
        if (inside && !before) {
            blocks.push_back({document.filename().string(), {}});
        }
        if (inside) {
            blocks.back().lines.push_back(text);
        }
        before = inside;
    }
    for (CodeBlock& block : blocks) {
        while (!block.lines.empty() && block.lines.back().empty()) {
            block.lines.pop_back();
        }
    }
    return blocks;
}

std::vector<CodeBlock> codeBlocks() {
    std::vector<CodeBlock> blocks = codeBlocksOf(VELMORA_SOURCE_DIR "/README.md");
    for (const fs::directory_entry& entry : fs::directory_iterator(VELMORA_SOURCE_DIR "/docs")) {
        if (entry.path().extension() == ".md") {
            const std::vector<CodeBlock> more = codeBlocksOf(entry.path());
            blocks.insert(blocks.end(), more.begin(), more.end());
        }
    }
    return blocks;
}

bool isConfiguration(const CodeBlock& block) {
    return std::ranges::any_of(block.lines, [](const std::string& line) {
        return line.starts_with('[') && line.find(']') != std::string::npos;
    });
}

/// The program that a line starts, without the folder that it is built into.
std::string programOf(const std::string& line) {
    const std::string word = line.substr(0, line.find(' '));
    return word.substr(word.rfind('/') + 1);
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size()) {
        text.replace(at, what.size(), by);
    }
    return text;
}

/// Whether somebody is to type this, rather than to read it.
bool isShellCommand(const std::string& line) {
    static const std::set<std::string> kStarters{"sudo",  "systemctl", "journalctl", "apt",   "cmake",
                                                 "mkdir", "ln",        "cp",         "tshark"};
    return kStarters.contains(programOf(line)) || programOf(line).starts_with("velmora") ||
           line.starts_with("scripts/");
}

/// What is not run by these tests, and why: another test runs it, or it takes what no test machine has.
struct RunElsewhere {
    std::string begin;  ///< of the line
    std::string where;  ///< a file of this project that has `word`, or nothing
    std::string word;
};

const std::vector<RunElsewhere>& linesRunElsewhere() {
    static const std::vector<RunElsewhere> kLines{
        {"scripts/demo.sh", "scripts/test-bare.sh", "scripts/demo.sh"},
        {"scripts/test.sh", ".ci/run", "scripts/test.sh"},
        {"scripts/run.sh", "", "stays open until its user closes it"},
        {"scripts/simulate.sh", "scripts/test.sh", "simulate.sh"},
        {"scripts/fuzz.sh --hours", "", "takes hours"},
        {"scripts/fuzz.sh", "scripts/test.sh", "scripts/fuzz.sh 10"},
        {"scripts/coverage.sh", "scripts/test.sh", "scripts/coverage.sh"},
        {"scripts/mutate.sh", "",
         "builds once for each change; tests/scripts/mutants_test.py tests what it changes"},
        {"velmora-doctor", "tests/e2e/cable_doctor_test.cpp", "velmora-doctor"},
        {"sudo apt install ./velmora", "scripts/try-packages.sh", "apt-get install"},
        {"cmake -S . -B", "scripts/build.sh", "cmake -S . -B"},
        {"cmake --build", "scripts/build.sh", "cmake --build"},
        {"sudo cmake --install", "tests/packaging/install_test.py", "--install"},
        {"sudo systemd-sysusers", "", "changes the machine"},
        {"sudo systemd-tmpfiles", "", "changes the machine"},
        {"sudo systemctl", "", "takes a machine that systemd has started"},
        {"journalctl", "", "takes a machine that systemd has started"},
        {"sudo usermod", "", "changes the machine"},
    };
    return kLines;
}

bool isRunElsewhere(const std::string& line) {
    return std::ranges::any_of(linesRunElsewhere(),
                               [&line](const RunElsewhere& each) { return line.starts_with(each.begin); });
}

/// The documents speak of the first adapter as the server's and of the second as the Organiser's, and of
/// files that their reader has.
class DocumentExamples : public ServerFixture {
  protected:
    void SetUp() override {
        if (serverSide->windows() || organiserSide->windows()) {
            GTEST_SKIP() << "what is typed is for this system's shell";
        }
        ServerFixture::SetUp();
        writeFile(home / "contacts.csv", "Ada,0171\r\n");
        writeFile(home / "plan.tab", "Tea\t1.25\r\nCup\t3\r\n");
        ASSERT_EQ(filesTool({"sheet", (home / "plan.tab").string(), (home / "plan.wks").string()}).status, 0);
    }

    /// Starts a line as the reader would, in a folder with the reader's files.
    std::unique_ptr<Process> type(const std::string& line) const {
        std::string typed = replaced(line, "/dev/ttyUSB0", serverPort);
        typed = replaced(typed, "/dev/ttyUSB1", organiserPort);
        typed = replaced(typed, "~/psion", psion.string());
        typed = replaced(typed, "build/bin/", "");
        const std::string dissector = VELMORA_SOURCE_DIR "/packaging/wireshark";
        typed = replaced(typed, "/usr/share/velmora/wireshark/Velmora", dissector + "/profile");
        typed = replaced(typed, "/usr/share/velmora/wireshark", dissector);
        std::map<std::string, std::string> environment = organiserSide->environment(home, zone);
        environment["PATH"] = nativePrograms().string() + ":" + nativeTools().string() + ":/usr/bin:/bin";
        return std::make_unique<Process>(
            std::vector<std::string>{"sh", "-c", "cd \"$HOME\" && exec " + typed}, environment);
    }
};

TEST_F(DocumentExamples, EveryConfigurationStartsTheServerAndIsLeftAsItIs) {
    int tried = 0;
    for (const CodeBlock& block : codeBlocks()) {
        if (!isConfiguration(block)) {
            continue;
        }
        SCOPED_TRACE(block.document + ", the one with " + block.lines.back());
        ++tried;
        std::string text;
        for (const std::string& line : block.lines) {
            text += line + "\n";
        }
        const fs::path file = home / "Example.ini";
        writeFile(file, text);
        startServer({"--config", file.string()});
        stopServer();
        EXPECT_EQ(server->wait(), 0) << server->error();
        EXPECT_TRUE(contentsOf(file) == text) << "it is too short, and was replaced by the default file";
    }
    EXPECT_GE(tried, 3);
}

TEST_F(DocumentExamples, EveryCommandDoesItsWork) {
    const std::set<std::string> kPlainPrograms{"velmora-files", "tshark", "mkdir", "ln", "cp"};
    std::set<std::string> tried;
    for (const CodeBlock& block : codeBlocks()) {
        if (std::ranges::any_of(block.lines, [](const std::string& line) { return line.ends_with('&'); })) {
            continue;  // lines that work together; scripts/test-packages.sh runs them
        }
        for (const std::string& line : block.lines) {
            const std::string program = programOf(line);
            SCOPED_TRACE(block.document + ": " + line);
            if (program == "velmorad" && line.find("--print-config") != std::string::npos) {
                const Finished done = finished(*type(line));
                EXPECT_EQ(done.status, 0) << done.error;
            } else if (program == "velmora-cable") {
                const auto joined = type(line);
                EXPECT_TRUE(joined->waitForOutput("/dev/pts/")) << joined->error();
                joined->signal(SIGTERM);
                EXPECT_EQ(joined->wait(), 0) << joined->error();
            } else if (program == "velmorad") {
                server = type(line);
                EXPECT_TRUE(server->waitForOutput("Waiting for link")) << server->output() << server->error();
                stopServer();
                EXPECT_EQ(server->wait(), 0) << server->error();
            } else if (program == "velmora-organiser") {
                startServer();
                const Finished done = finished(*type(line));
                EXPECT_EQ(done.status, 0) << done.error;
                stopServer();
                EXPECT_EQ(server->wait(), 0) << server->error();
            } else if (kPlainPrograms.contains(program)) {
                const Finished done = finished(*type(line));
                EXPECT_EQ(done.status, 0) << done.error;
            } else {
                EXPECT_TRUE(!isShellCommand(line) || isRunElsewhere(line)) << "nothing runs this line";
                continue;
            }
            tried.insert(program);
        }
    }
    std::set<std::string> expected = kPlainPrograms;
    expected.insert({"velmora-cable", "velmora-organiser", "velmorad"});
    EXPECT_EQ(tried, expected);
}

TEST_F(DocumentExamples, WhatIsSaidToBeRunElsewhereIsThere) {
    for (const RunElsewhere& line : linesRunElsewhere()) {
        if (!line.where.empty()) {
            EXPECT_NE(contentsOf(fs::path(VELMORA_SOURCE_DIR) / line.where).find(line.word),
                      std::string::npos)
                << line.begin;
        }
    }
}

/// The last cells of a table's rows that hold nothing but a command.
std::vector<std::string> commandsInTables(const fs::path& document) {
    std::vector<std::string> commands;
    std::istringstream lines(contentsOf(document));
    const std::string begin = "| `velmora-organiser ";
    for (std::string line; std::getline(lines, line);) {
        const auto at = line.rfind(begin);
        if (at != std::string::npos && line.ends_with("` |")) {
            commands.push_back(line.substr(at + 3, line.size() - at - 6));
        }
    }
    return commands;
}

TEST_F(DocumentExamples, EachServiceAnswersAsTheTableOfServicesSays) {
    writeFile(home / "FILE", "Ada\t0171\r\n");
    writeFile(psion / "Name", "Ada\r\n");
    writeFile(psion / "Name.odb", "Ada\r\n");
    fs::copy_file(home / "plan.wks", psion / "Name.wks");
    const std::string oneByteOfCode("\0\1\x42\0\x42\0\0\0\0", 9);
    writeFile(psion / "Name.bin", oneByteOfCode);
    const fs::path config = home / "Obedient.ini";
    writeFile(config, "[OnExit]\nAskUser=False\nStopServer=True\nAllowShutdown=True\n");
    const std::vector<std::string> commands = commandsInTables(VELMORA_SOURCE_DIR "/docs/user-guide.md");
    EXPECT_EQ(commands.size(), 11U);
    for (const std::string& command : commands) {
        SCOPED_TRACE(command);
        startServer({"--config", config.string()});
        const Finished done = finished(*type(command + " --device /dev/ttyUSB1"));
        EXPECT_EQ(done.status, 0) << done.error;
        const bool endsTheServer = command.ends_with(" exit") || command.ends_with(" shutdown");
        if (!endsTheServer) {
            stopServer();
        }
        EXPECT_EQ(server->wait(), 0) << server->error();
    }
}

TEST_F(DocumentExamples, EveryScriptThatIsNamedIsThere) {
    int found = 0;
    for (const CodeBlock& block : codeBlocks()) {
        for (const std::string& line : block.lines) {
            for (std::size_t at = 0; (at = line.find("scripts/", at)) != std::string::npos; ++at) {
                const std::string name = line.substr(at, line.find_first_of(" ;", at) - at);
                EXPECT_TRUE(fs::exists(fs::path(VELMORA_SOURCE_DIR) / name))
                    << block.document << ": " << name;
                ++found;
            }
        }
    }
    EXPECT_GE(found, 4);
}

}  // namespace
}  // namespace velmora::e2e
