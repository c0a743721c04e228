// Running velmora-files in memory.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "files/files_tool.h"
#include "support/failing_files.h"
#include "support/memory_files.h"
#include "support/slash_path_rules.h"

namespace velmora::test {

class ToolTest : public ::testing::Test {
  protected:
    ToolTest() { memory.addFolder("/w"); }

    /// Runs the program; its exit status. What it printed stands in `printed` and `complaint` then.
    int run(const std::vector<std::string>& arguments, const std::string& input = {}) {
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        const int status = runFilesTool(arguments, files, rules, in, out, err);
        printed = out.str();
        complaint = err.str();
        return status;
    }
    /// Expects wrong usage with a complaint that holds a text.
    void expectUsage(const std::vector<std::string>& arguments, const std::string& text) {
        EXPECT_EQ(run(arguments), kStatusWrongUsage);
        EXPECT_NE(complaint.find(text), std::string::npos) << complaint;
        EXPECT_EQ(printed, "");
    }
    void expectPrinted(const std::string& text) const {
        EXPECT_NE(printed.find(text), std::string::npos) << printed;
    }

    MemoryFiles memory;
    FailingFiles files{memory};
    SlashPathRules rules;
    std::string printed;
    std::string complaint;
};

}  // namespace velmora::test
