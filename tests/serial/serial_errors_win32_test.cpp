// The table of serial errors on COM ports.
#include <gtest/gtest.h>

#include "serial/comm_win32.h"
#include "support/com_ports.h"
#include "support/serial_error_cases.h"

namespace velmora {
namespace {

class SerialErrorsTest : public ::testing::TestWithParam<test::SerialErrorCase> {};

TEST_P(SerialErrorsTest, HaveTheirNumbersAndTexts) {
    const test::ComPorts com;
    const PortNames names;
    test::SerialErrorPorts ports{test::ComPorts::number(com.port), test::ComPorts::number(com.missing),
                                 test::ComPorts::number(com.held)};
    Win32CommDevice holder{names};
    if (ports.held == 0 && test::portsAreExclusive() && !com.farPort.empty()) {
        ASSERT_EQ(holder.open(com.farPort), kSuccess);
        ports.held = test::ComPorts::number(com.farPort);
    }
    test::checkSerialError(GetParam(), ports, names);
}

INSTANTIATE_TEST_SUITE_P(Table, SerialErrorsTest, test::serialErrorCases(),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace velmora
