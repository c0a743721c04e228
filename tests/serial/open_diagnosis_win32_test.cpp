#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "serial/comm_errors_win32.h"
#include "serial/open_diagnosis.h"
#include "serial/system_text.h"

namespace velmora {
namespace {

DeviceFacts presentPort() {
    DeviceFacts facts;
    facts.exists = true;
    facts.mayOpen = true;
    return facts;
}

TEST(OpenDiagnosisWin32Test, TheManyWordsForAPulledAdapterAreOneSentence) {
    for (const SystemError code :
         {SystemError{ERROR_NOT_READY}, SystemError{ERROR_BAD_COMMAND}, SystemError{ERROR_GEN_FAILURE},
          kNoSuchDevice, SystemError{ERROR_OPERATION_ABORTED}, SystemError{ERROR_IO_DEVICE},
          SystemError{ERROR_DEVICE_NOT_CONNECTED}, SystemError{ERROR_DEVICE_REMOVED}}) {
        EXPECT_EQ(describeOpenFailure("COM7", code, presentPort(), ""),
                  "COM7 does not respond; is the adapter still plugged in?")
            << code;
    }
}

TEST(OpenDiagnosisWin32Test, AnAdapterThatGoesBeforeItsPortsNameDoesIsThatSentenceToo) {
    for (const SystemError code :
         {openFailure(kNoSuchDevice), openFailure(ERROR_DEVICE_NOT_CONNECTED), kNoSuchPort}) {
        EXPECT_EQ(describeOpenFailure("COM7", code, presentPort(), ""),
                  "COM7 does not respond; is the adapter still plugged in?")
            << code;
    }
}

TEST(OpenDiagnosisWin32Test, ADeviceThatNoBytesGoThroughIsNoSerialPort) {
    for (const SystemError code : {ERROR_INVALID_FUNCTION, ERROR_INVALID_HANDLE}) {
        EXPECT_EQ(describeOpenFailure("NUL", code, presentPort(), ""), "NUL is not a serial port.") << code;
    }
}

TEST(OpenDiagnosisWin32Test, APulledAdapterWhosePortIsGoneDoesNotExist) {
    EXPECT_EQ(describeOpenFailure("COM7", ERROR_GEN_FAILURE, DeviceFacts{}, ""),
              "COM7 does not exist; is the adapter plugged in, and is it the right port?");
}

TEST(OpenDiagnosisWin32Test, OtherFailuresAreToldInTheSystemsWords) {
    const std::string sentence = describeOpenFailure("COM7", ERROR_NOT_ENOUGH_MEMORY, presentPort(), "");
    EXPECT_EQ(sentence, "COM7 cannot be opened: " + systemText(ERROR_NOT_ENOUGH_MEMORY));
    EXPECT_TRUE(sentence.ends_with('.') && !sentence.ends_with("..")) << sentence;
    EXPECT_EQ(sentence.find_first_of("\r\n"), std::string::npos);
}

TEST(OpenDiagnosisWin32Test, ANumberWithoutWordsIsToldAsItIs) {
    EXPECT_EQ(describeOpenFailure("COM7", 987'654'321, presentPort(), ""),
              "COM7 cannot be opened: error 987654321.");
}

}  // namespace
}  // namespace velmora
