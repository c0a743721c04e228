#include <gtest/gtest.h>
#include <shlobj.h>

#include "recording_window.h"
#include "ui/win32/c_sh_folder.h"
#include "ui/win32/sh_folder_callback.h"

namespace velmora {
namespace {

class ShFolderCallback : public testing::Test {
  protected:
    ShFolderCallback() {
        folder.Initialized = [this] { events.emplace_back("initialized"); };
        folder.SelectionChanged = [this] { events.emplace_back("selection"); };
        folder.ValidationFailed = [this](const std::string& typed) { events.push_back("failed " + typed); };
    }

    int call(UINT message, LPARAM detail = 0) {
        return shFolderCallback(window.handle(), message, detail, reinterpret_cast<LPARAM>(&folder));
    }

    test::RecordingWindow window;
    cSHFolder folder;
    std::vector<std::string> events;
};

TEST_F(ShFolderCallback, AnOpenedDialogIsRememberedAndAnnounced) {
    folder.Initialized = [this] {
        EXPECT_EQ(folder.hWnd(), window.handle());
        events.emplace_back("initialized");
    };
    EXPECT_EQ(folder.hWnd(), nullptr);
    EXPECT_EQ(call(BFFM_INITIALIZED), 0);
    EXPECT_EQ(folder.hWnd(), window.handle());
    EXPECT_EQ(events, std::vector<std::string>{"initialized"});
}

TEST_F(ShFolderCallback, AMovedSelectionIsAnnounced) {
    EXPECT_EQ(call(BFFM_SELCHANGED), 0);
    EXPECT_EQ(events, std::vector<std::string>{"selection"});
}

TEST_F(ShFolderCallback, AFailedValidationIsAnnouncedAndKeepsTheDialogOpen) {
    EXPECT_EQ(call(BFFM_VALIDATEFAILEDA, reinterpret_cast<LPARAM>("B\xFC"
                                                                  "cher")),
              1);
    EXPECT_EQ(call(BFFM_VALIDATEFAILEDA), 1);
    EXPECT_EQ(events, (std::vector<std::string>{"failed B\xFC"
                                                "cher",
                                                "failed "}));
}

TEST_F(ShFolderCallback, OtherMessagesDoNothing) {
    EXPECT_EQ(call(BFFM_IUNKNOWN), 0);
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(folder.hWnd(), nullptr);
}

TEST_F(ShFolderCallback, EventsWithoutAnOwnerDoNothing) {
    cSHFolder silent;
    const auto parameter = reinterpret_cast<LPARAM>(&silent);
    EXPECT_EQ(shFolderCallback(window.handle(), BFFM_INITIALIZED, 0, parameter), 0);
    EXPECT_EQ(shFolderCallback(window.handle(), BFFM_SELCHANGED, 0, parameter), 0);
    EXPECT_EQ(shFolderCallback(window.handle(), BFFM_VALIDATEFAILEDA, 0, parameter), 1);
    EXPECT_EQ(silent.hWnd(), window.handle());
}

TEST_F(ShFolderCallback, ADialogOfNobodyIsLeftAlone) {
    EXPECT_EQ(shFolderCallback(window.handle(), BFFM_INITIALIZED, 0, 0), 0);
    EXPECT_TRUE(window.messages().empty());
}

}  // namespace
}  // namespace velmora
