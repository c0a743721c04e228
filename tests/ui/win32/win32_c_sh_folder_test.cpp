#include <gtest/gtest.h>
#include <shlobj.h>

#include "recording_window.h"
#include "ui/win32/c_sh_folder.h"

namespace velmora {
namespace {

using Message = test::RecordingWindow::Message;
using Messages = std::vector<Message>;

/// A folder browser whose dialog is a window of the test.
class CSHFolder : public testing::Test {
  protected:
    void open() { folder.dialogOpened(dialog.handle()); }

    test::RecordingWindow dialog;
    cSHFolder folder;
};

TEST_F(CSHFolder, AnOpeningDialogGetsWhatWasSetInItsOrder) {
    folder.setCaption("Velmora - Ordner w\xE4hlen");
    folder.setDefaultPIDL(CSIDL_WINDOWS);
    folder.setStatusText("Gr\xFC\xDF");
    folder.setDefaultPath("C:\\Gr\xFC\xDF");
    bool captionStood = false;
    folder.Initialized = [&] { captionStood = dialog.caption() == "Velmora - Ordner w\xE4hlen"; };
    open();
    char windows[MAX_PATH];
    GetWindowsDirectoryA(windows, sizeof windows);
    EXPECT_EQ(dialog.messages(), (Messages{{BFFM_SETSELECTIONA, TRUE, "C:\\Gr\xFC\xDF"},
                                           {BFFM_SETSTATUSTEXTA, 0, "Gr\xFC\xDF"},
                                           {BFFM_SETSELECTIONA, FALSE, windows}}));
    EXPECT_TRUE(captionStood) << "the owner hears of the dialog when it is ready";
}

TEST_F(CSHFolder, WhatWasNotSetIsNotSent) {
    open();
    EXPECT_TRUE(dialog.messages().empty());
    EXPECT_EQ(dialog.caption(), "");
}

TEST_F(CSHFolder, ANumberOfNoFolderSelectsNothing) {
    folder.setDefaultPIDL(9999);
    open();
    EXPECT_TRUE(dialog.messages().empty());
}

TEST_F(CSHFolder, AnOpenDialogGetsChangesAtOnce) {
    open();
    folder.setDefaultPath("C:\\windows");
    folder.setStatusText("later");
    folder.setStatusText("");
    folder.setOKEnabled(false);
    folder.setOKEnabled(true);
    folder.setCaption("Other");
    EXPECT_EQ(dialog.messages(), (Messages{{BFFM_SETSELECTIONA, TRUE, "C:\\windows"},
                                           {BFFM_SETSTATUSTEXTA, 0, "later"},
                                           {BFFM_SETSTATUSTEXTA, 0, ""},
                                           {BFFM_ENABLEOK, 0, "0"},
                                           {BFFM_ENABLEOK, 0, "1"}}));
    EXPECT_EQ(dialog.caption(), "Other");
}

TEST_F(CSHFolder, WithoutADialogNothingIsSent) {
    folder.setOKEnabled(false);
    folder.CenterDialog();
    folder.Cancel();
    EXPECT_EQ(folder.hWnd(), nullptr);
    EXPECT_TRUE(dialog.messages().empty());
}

TEST_F(CSHFolder, CentresWithIntegerHalvingAndWithoutResizing) {
    open();
    folder.CenterDialog();
    const RECT frame = dialog.frame();
    EXPECT_EQ(frame.left, (GetSystemMetrics(SM_CXSCREEN) - 301) / 2);
    EXPECT_EQ(frame.top, (GetSystemMetrics(SM_CYSCREEN) - 200) / 2);
    EXPECT_EQ(frame.right - frame.left, 301);
    EXPECT_EQ(frame.bottom - frame.top, 200);
    EXPECT_EQ(dialog.positionFlags() & (SWP_NOSIZE | SWP_NOZORDER | SWP_NOMOVE),
              UINT{SWP_NOSIZE | SWP_NOZORDER});
}

TEST_F(CSHFolder, CancelPressesTheButtonWhenTheDialogReadsItsMessages) {
    open();
    folder.Cancel();
    EXPECT_TRUE(dialog.messages().empty());
    MSG message;
    while (PeekMessageA(&message, dialog.handle(), 0, 0, PM_REMOVE) != FALSE) {
        DispatchMessageA(&message);
    }
    EXPECT_EQ(dialog.messages(), (Messages{{WM_COMMAND, IDCANCEL, "0"}}));
}

}  // namespace
}  // namespace velmora
