#include "transfers/incomplete_save.h"

#include <gtest/gtest.h>

#include "base/system_text.h"
#include "support/simple_names.h"

namespace velmora {
namespace {

TEST(IncompleteSave, IsToldInOneLine) {
    const test::SimplePathRules rules;
    EXPECT_EQ(describe({"/psion/Memo.odb", 121'085, ""}, rules),
              "Memo.odb is incomplete: 121,085 bytes arrived.");
    EXPECT_EQ(describe({"/psion/Memo.odb", 0, "/data/Memo (2026-03-08 04.05.09).odb"}, rules),
              "Memo.odb is incomplete: 0 bytes arrived. Earlier copy: /data/Memo (2026-03-08 04.05.09).odb");
}

TEST(IncompleteSave, OfWhichNothingWasWrittenLeavesNoIncompleteFile) {
    const test::SimplePathRules rules;
    EXPECT_EQ(describe({"/psion/Plan.wks", 25, "", false}, rules),
              "Plan.wks was not saved: 25 bytes arrived.");
}

TEST(IncompleteSave, IsToldInWindows1252) {
    const test::SimplePathRules rules;
    EXPECT_EQ(describe({toSystemText("/psion/Gr\xFC\xDF.odb"), 1, toSystemText("/\xC4lter/x")}, rules),
              "Gr\xFC\xDF.odb is incomplete: 1 bytes arrived. Earlier copy: /\xC4lter/x");
}

}  // namespace
}  // namespace velmora
