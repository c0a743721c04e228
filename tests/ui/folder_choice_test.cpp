#include "ui/folder_choice.h"

#include <gtest/gtest.h>

#include "support/recording_store.h"
#include "support/recording_view.h"
#include "support/scripted_box.h"

namespace velmora {
namespace {

class FolderChoice : public testing::Test {
  protected:
    void choose(const std::string& answer) {
        chooseDownloadFolder(
            [&](const FolderQuestion& question) {
                asked = question;
                return answer;
            },
            strings, transfer, store, view, box);
    }

    Strings strings;
    TransferSettings transfer{"/home/me/psion", 0};
    test::RecordingStore store;
    test::RecordingView view;
    test::ScriptedBox box;
    FolderQuestion asked;
};

TEST_F(FolderChoice, AsksWithCaptionPromptAndTheCurrentFolder) {
    choose("");
    EXPECT_EQ(asked.caption, "Velmora - Select folder");
    EXPECT_EQ(asked.prompt, "Select the folder for up/downloading files:");
    EXPECT_EQ(asked.startFolder, "/home/me/psion");
}

TEST_F(FolderChoice, TakesTheAnswerOverAndSavesIt) {
    choose("/srv/organiser");
    EXPECT_EQ(transfer.DownloadPath, "/srv/organiser");
    EXPECT_EQ(store.entries, std::vector<std::string>{"[Settings] DownloadPath=/srv/organiser"});
    EXPECT_EQ(view.focus, std::vector<MainButton>{MainButton::StartStop});
}

TEST_F(FolderChoice, ACancelChangesNothingButTheFocus) {
    choose("");
    EXPECT_EQ(transfer.DownloadPath, "/home/me/psion");
    EXPECT_TRUE(store.entries.empty());
    EXPECT_EQ(view.focus, std::vector<MainButton>{MainButton::StartStop});
}

TEST_F(FolderChoice, AFinalSeparatorIsRemovedExceptFromARoot) {
    choose("/srv/organiser/");
    EXPECT_EQ(transfer.DownloadPath, "/srv/organiser");
    choose("C:\\psion\\");
    EXPECT_EQ(transfer.DownloadPath, "C:\\psion");
    choose("/");
    EXPECT_EQ(transfer.DownloadPath, "/");
    choose("C:\\");
    EXPECT_EQ(transfer.DownloadPath, "C:\\");
    EXPECT_EQ(store.entries.back(), "[Settings] DownloadPath=C:\\");
}

TEST_F(FolderChoice, AFolderThatCannotBeSavedIsUsedAndSaidSo) {
    store.failure = ErrorNumber::DiskFull;
    choose("/srv/organiser");
    EXPECT_EQ(transfer.DownloadPath, "/srv/organiser");
    ASSERT_EQ(box.informed.size(), 1U);
    EXPECT_NE(box.informed[0].text.find("Disk full"), std::string::npos);
    EXPECT_EQ(view.focus.size(), 1U);
}

TEST_F(FolderChoice, TheDefaultPromptIsKeptAsItStands) {
    EXPECT_EQ(FolderQuestion().prompt, "W\xE4hlen Sie einen Ordner aus");
}

}  // namespace
}  // namespace velmora
