// The shell's real dialog, answered by its own Initialized event. It needs a display.
#include <gtest/gtest.h>
#include <shlobj.h>
// Needs the system's header before it.
#include <commctrl.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "ui/win32/c_sh_folder.h"

namespace velmora {
namespace {

std::string textOf(HWND window) {
    char text[300];
    GetWindowTextA(window, text, sizeof text);
    return text;
}

/// The texts of all controls of a dialog.
std::vector<std::string> controlTexts(HWND dialog) {
    std::vector<std::string> texts;
    EnumChildWindows(
        dialog,
        [](HWND control, LPARAM list) -> BOOL {
            reinterpret_cast<std::vector<std::string>*>(list)->push_back(textOf(control));
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&texts));
    return texts;
}

/// What the first line of a dialog's tree says.
std::string topOfTree(HWND dialog) {
    HWND tree = nullptr;
    EnumChildWindows(
        dialog,
        [](HWND control, LPARAM found) -> BOOL {
            char kind[100];
            GetClassNameA(control, kind, sizeof kind);
            if (std::string(kind) != WC_TREEVIEWA) {
                return TRUE;
            }
            *reinterpret_cast<HWND*>(found) = control;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&tree));
    char text[MAX_PATH] = "";
    TVITEMA item{};
    item.mask = TVIF_TEXT;
    item.hItem = TreeView_GetRoot(tree);
    item.pszText = text;
    item.cchTextMax = sizeof text;
    SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
    return text;
}

class FolderDialog : public testing::Test {
  protected:
    // A dialog that nobody can see is not made.
    static bool canShow() {
        const HWND window = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                            GetModuleHandleA(nullptr), nullptr);
        return window != nullptr && DestroyWindow(window) != FALSE;
    }
    void SetUp() override {
        if (!canShow()) {
            GTEST_SKIP() << "no display";
        }
        char temporary[MAX_PATH];
        ASSERT_NE(GetTempPathA(sizeof temporary, temporary), 0U);
        place = std::string(temporary) + "velmora-folder-" + std::to_string(GetCurrentProcessId());
        inner = place + "\\Gr\xFC\xDF";
        ASSERT_TRUE(CreateDirectoryA(place.c_str(), nullptr));
        ASSERT_TRUE(CreateDirectoryA(inner.c_str(), nullptr));
    }
    void TearDown() override {
        RemoveDirectoryA(inner.c_str());
        RemoveDirectoryA(place.c_str());
    }

    void answerWith(WPARAM button) {
        folder.Initialized = [this, button] {
            EXPECT_NE(folder.hWnd(), nullptr);
            PostMessageA(folder.hWnd(), WM_COMMAND, button, 0);
        };
    }

    /// Shows the dialog until it is answered with a folder. Wine's overlooks now and then which folder it is
    /// to begin with, and then answers with the desktop.
    static std::string answerOf(const std::function<std::string()>& dialog, const std::string& wanted) {
        std::string chosen;
        for (int attempt = 0; attempt < 6 && chosen != wanted; ++attempt) {
            chosen = dialog();
        }
        return chosen;
    }
    std::string browseFor(const std::string& wanted) {
        return answerOf([this] { return folder.BrowseForFolder(nullptr); }, wanted);
    }

    std::string place;
    std::string inner;
    cSHFolder folder;
};

TEST_F(FolderDialog, OkReturnsThePreselectedFolderAndKeepsItsName) {
    for (const bool newDialog : {false, true}) {
        folder.setNewDialog(newDialog);
        folder.setDefaultPath(inner);
        answerWith(IDOK);
        EXPECT_EQ(browseFor(inner), inner);
        EXPECT_EQ(folder.DisplayName(), inner);
        EXPECT_EQ(folder.hWnd(), nullptr);
    }
}

TEST_F(FolderDialog, CancelIsEmptyAndForgetsTheLastChoice) {
    folder.setDefaultPath(place);
    answerWith(IDOK);
    EXPECT_EQ(browseFor(place), place);
    answerWith(IDCANCEL);
    EXPECT_EQ(folder.BrowseForFolder(nullptr), "");
    EXPECT_EQ(folder.DisplayName(), "");
    EXPECT_EQ(folder.hWnd(), nullptr);
    EXPECT_FALSE(folder.choiceHasNoName());
}

TEST_F(FolderDialog, AnAnswerThatTheProgramGaveIsToldFromTheUsers) {
    folder.Initialized = [&] { folder.Cancel(); };
    EXPECT_EQ(folder.BrowseForFolder(nullptr), "");
    EXPECT_TRUE(folder.cancelled());
    answerWith(IDCANCEL);
    EXPECT_EQ(folder.BrowseForFolder(nullptr), "");
    EXPECT_FALSE(folder.cancelled());
}

TEST_F(FolderDialog, CaptionPromptAndStatusAreShown) {
    folder.setCaption("Velmora - Ordner f\xFCr Dateien");
    folder.setStatusTextArea(true);
    folder.setStatusText("bereit");
    std::vector<std::string> texts;
    std::string caption;
    folder.Initialized = [&] {
        texts = controlTexts(folder.hWnd());
        caption = textOf(folder.hWnd());
        folder.Cancel();
    };
    folder.BrowseForFolder(nullptr, "Wohin?");
    EXPECT_EQ(caption, "Velmora - Ordner f\xFCr Dateien");
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "Wohin?"), 1);
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "bereit"), 1);
}

TEST_F(FolderDialog, TheDefaultPromptIsGerman) {
    std::vector<std::string> texts;
    folder.Initialized = [&] {
        texts = controlTexts(folder.hWnd());
        folder.Cancel();
    };
    folder.BrowseForFolder(nullptr);
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "W\xE4hlen Sie einen Ordner aus"), 1);
}

TEST_F(FolderDialog, OkCanBeDisabled) {
    bool disabled = false;
    bool enabled = false;
    folder.setDefaultPath(place);
    folder.Initialized = [&] {
        const HWND ok = GetDlgItem(folder.hWnd(), IDOK);
        folder.setOKEnabled(false);
        disabled = IsWindowEnabled(ok) == FALSE;
        folder.setOKEnabled(true);
        enabled = IsWindowEnabled(ok) != FALSE;
        folder.Cancel();
    };
    folder.BrowseForFolder(nullptr);
    EXPECT_TRUE(disabled);
    EXPECT_TRUE(enabled);
}

TEST_F(FolderDialog, TheSelectionAnnouncesItsMoves) {
    int moves = 0;
    folder.setDefaultPath(inner);
    folder.SelectionChanged = [&] { ++moves; };
    answerWith(IDOK);
    EXPECT_EQ(browseFor(inner), inner);
    EXPECT_GE(moves, 1);
}

TEST_F(FolderDialog, AQuestionIsAskedWithItsCaptionPromptAndStart) {
    std::vector<std::string> texts;
    std::string caption;
    folder.Initialized = [&] {
        texts = controlTexts(folder.hWnd());
        caption = textOf(folder.hWnd());
        PostMessageA(folder.hWnd(), WM_COMMAND, IDOK, 0);
    };
    FolderQuestion question;
    question.caption = "Velmora - Select folder";
    question.prompt = "Select the folder for up/downloading files:";
    question.startFolder = place;
    const BrowseForFolder ask = folderBrowser(nullptr, folder);
    EXPECT_EQ(answerOf([&] { return ask(question); }, place), place);
    EXPECT_EQ(caption, question.caption);
    EXPECT_EQ(std::count(texts.begin(), texts.end(), question.prompt), 1);
}

TEST_F(FolderDialog, TheTreeBeginsAtTheRoot) {
    std::string top;
    folder.Initialized = [&] {
        top = topOfTree(folder.hWnd());
        folder.Cancel();
    };
    folder.BrowseForFolder(nullptr, std::nullopt, CSIDL_WINDOWS);
    char windows[MAX_PATH];
    GetWindowsDirectoryA(windows, sizeof windows);
    EXPECT_STRCASEEQ(("C:\\" + top).c_str(), windows);
}

}  // namespace
}  // namespace velmora
