#include "doctor/doctor_report.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(DoctorReportTest, AStepIsOneLine) {
    EXPECT_EQ(findingLine({DoctorStep::Echo, StepStatus::Well, "Good."}), "  ok     Good.");
    EXPECT_EQ(findingLine({DoctorStep::Echo, StepStatus::Fault, "Bad."}), "  FAULT  Bad.");
}

TEST(DoctorReportTest, AVerdictTellsWhatHelps) {
    EXPECT_EQ(verdictText({}), "The line is well.\n");
    EXPECT_EQ(verdictText({Cause::OtherProtocol, 80, "It says C."}),
              "The Organiser speaks, but not the protocol of the server. It says C.\n"
              "What helps: Set PROTOCOL to PSION in the Organiser's COMMS/SETUP menu.\n"
              "Cause: other-protocol, 80 % sure\n");
    EXPECT_EQ(verdictText({Cause::LineStuck, 70, {}}).find("low.\nWhat"), 34U);
}

TEST(DoctorReportTest, ProgramsGetOneObject) {
    const Diagnosis diagnosis{{Cause::Modem, 95, {}},
                              {{DoctorStep::ModemLines, StepStatus::Unknown, "None."},
                               {DoctorStep::OtherForms, StepStatus::Noted, "Some."}}};
    EXPECT_EQ(diagnosisAsJson("COM7", diagnosis), R"({
  "port": "COM7",
  "cause": "modem",
  "confidence": 95,
  "finding": "A modem is on the line, not an Organiser: it answers AT.",
  "detail": "",
  "advice": "Connect the Organiser's cable to this port, or choose the port that it is connected to.",
  "findings": [
    {
      "step": "modem-lines",
      "status": "unknown",
      "text": "None."
    },
    {
      "step": "other-forms",
      "status": "noted",
      "text": "Some."
    }
  ]
}
)");
}

}  // namespace
}  // namespace velmora
