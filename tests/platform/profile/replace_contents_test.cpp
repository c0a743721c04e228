#include "platform/profile/replace_contents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/memory_files.h"
#include "support/plain_path_rules.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;

const std::string kFile = "/home/velmora.ini";

class ReplacedContents : public ::testing::Test {
  protected:
    ReplacedContents() { files_.addFile(kFile, "old"); }

    test::MemoryFiles files_;
    test::PlainPathRules rules_;
};

TEST_F(ReplacedContents, AreTheNewOnes) {
    replaceContents(files_, rules_, kFile, "new");
    EXPECT_EQ(files_.content(kFile), "new");
    EXPECT_THAT(files_.paths(), ElementsAre(kFile));
}

TEST_F(ReplacedContents, AreWhatTheEditLeft) {
    replaceContents(files_, rules_, kFile, "new", [&](const std::string& path) {
        EXPECT_EQ(files_.content(path), "new");
        EXPECT_EQ(files_.openFiles(), 0);
        EXPECT_EQ(files_.content(kFile), "old");
        files_.open(path, OpenMode::Create)->write("edited");
        return true;
    });
    EXPECT_EQ(files_.content(kFile), "edited");
    EXPECT_THAT(files_.paths(), ElementsAre(kFile));
}

TEST_F(ReplacedContents, AreTheOldOnesWhenTheEditIsNotWorthKeeping) {
    replaceContents(files_, rules_, kFile, "new", [](const std::string&) { return false; });
    EXPECT_EQ(files_.content(kFile), "old");
    EXPECT_THAT(files_.paths(), ElementsAre(kFile));
}

TEST_F(ReplacedContents, AreTheOldOnesWhenTheEditFails) {
    const auto failing = [](const std::string&) -> bool { throw RunTimeError(ErrorNumber::DiskFull); };
    EXPECT_THROW(replaceContents(files_, rules_, kFile, "new", failing), RunTimeError);
    EXPECT_EQ(files_.content(kFile), "old");
    EXPECT_THAT(files_.paths(), ElementsAre(kFile));
}

}  // namespace
}  // namespace velmora
