#include "doctor/port_examination.h"

#include <gtest/gtest.h>

#include "support/no_yield.h"

namespace velmora {
namespace {

TEST(PortExaminationTest, APortWithoutADeviceIsMissingUnderTheNameThatIsShown) {
    PortNames names;
    test::NoYield yield;
    const Diagnosis diagnosis =
        examinePort({names, 4711, "COM4711", {}}, {yield, [] { return ExaminedLine::Time(0); }});
    EXPECT_EQ(diagnosis.verdict.cause, Cause::DeviceMissing);
    EXPECT_NE(diagnosis.verdict.detail.find("COM4711"), std::string::npos) << diagnosis.verdict.detail;
}

}  // namespace
}  // namespace velmora
