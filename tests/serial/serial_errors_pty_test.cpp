// The table of serial errors on pseudo-terminals.
#include <gtest/gtest.h>

#include "serial/comm_posix.h"
#include "serial/port_names.h"
#include "support/pty_pair.h"
#include "support/serial_error_cases.h"

namespace velmora {
namespace {

class SerialErrorsTest : public ::testing::TestWithParam<test::SerialErrorCase> {};

TEST_P(SerialErrorsTest, HaveTheirNumbersAndTexts) {
    const test::PtyPair line;
    const test::PtyPair heldLine;
    PortNames names;
    const test::SerialErrorPorts ports{
        static_cast<std::int16_t>(names.numberFor(line.slavePath())),
        static_cast<std::int16_t>(names.numberFor("/dev/velmora-has-no-such-device")),
        static_cast<std::int16_t>(names.numberFor(heldLine.slavePath()))};
    PosixCommDevice holder{names};
    ASSERT_EQ(holder.open("COM" + std::to_string(ports.held)), kSuccess);
    test::checkSerialError(GetParam(), ports, names);
}

INSTANTIATE_TEST_SUITE_P(Table, SerialErrorsTest, test::serialErrorCases(),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace velmora
