#include "diagram/cluster_tree.h"

#include <filesystem>
#include <random>

#include "diagram/data/coniss.h"
#include "platform/services.h"
#include "platform/user.h"
#include "unit/diagram_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
constexpr const char* kList = "/sheets/merges.csv";

class MergeListTest : public DiagramTest {
protected:
    void OpenTree() {
        Open(frmMain.mnuBar);
        ClickControl(frmDiagram.nmuConiss);
        Played();
    }
    static void ExpectAtRest() {
        EXPECT_FALSE(frmMain.ProgressBar1.Visible());
        EXPECT_EQ(frmMain.ProgressBar1.Value(), 0);
        EXPECT_EQ(MousePointer, kPointerDefault);
    }
};

TEST_F(MergeListTest, TheRootStandsFirstAndNumbersAreShort) {
    Sheet({"a", "b", "c"}, {{1, 2}, {1, 2}, {0, 1}});
    OpenTree();
    AnswerDialog(kList);
    PressMouse(frmDiagram.Picture2, {MouseButton::Right, 0, 15});
    ClickControl(frmDiagram.mnuSaveConiss);
    EXPECT_EQ(files_.bytes[kList], "\"Depth from\",\"Depth to\",\"Sum square\"\r\n15,30,0.22222221\r\n10,20,0\r\n");
    EXPECT_EQ(Played(), Texts{"WaveSave"});
    ExpectAtRest();
}

TEST_F(MergeListTest, NothingOfALongerFileIsLeft) {
    const std::string path = PathText(std::filesystem::path(testing::TempDir()) / ("merges " + std::to_string(std::random_device()())));
    services_.disk.OpenForWriting(path)->Replace(std::string(1000, 'x'));
    Sheet({"a", "b"}, {{1}, {0, 1}});
    OpenTree();
    services.files = &services_.disk;
    AnswerDialog(path);
    SaveMergeList();
    EXPECT_EQ(services_.disk.ReadAll(path), "\"Depth from\",\"Depth to\",\"Sum square\"\r\n10,20,2\r\n");
    std::filesystem::remove(path);
}

TEST_F(MergeListTest, TheDialogOffersDataFilesAndAsksBeforeOverwriting) {
    Sheet({"a", "b"}, {{1}, {0, 1}});
    OpenTree();
    CancelDialog();
    SaveMergeList();
    ASSERT_EQ(services_.dialogs.asked.size(), 1U);
    const FileQuestion& question = services_.dialogs.asked[0];
    EXPECT_EQ(question.kind, FileQuestion::Kind::Save);
    EXPECT_EQ(question.filter, "DataFile(*.csv)|*.csv");
    EXPECT_TRUE(question.ask_before_overwriting);
}

TEST_F(MergeListTest, TheBarCountsTheLinesAgainst135) {
    Sheet({"a", "b", "c", "d"}, {{1}, {0, 1}, {1}, {1}});
    OpenTree();
    const BarWatch bar;
    AnswerDialog(kList);
    SaveMergeList();
    EXPECT_EQ(bar.seen, (Texts{"1 of 135", "2 of 135", "3 of 135"}));
}

TEST_F(MergeListTest, WithoutSoundItIsSilent) {
    Sheet({"a", "b"}, {{1}, {0, 1}});
    OpenTree();
    SoundOn = false;
    AnswerDialog(kList);
    SaveMergeList();
    EXPECT_EQ(Played(), Texts{});
    EXPECT_EQ(FileLine(kList, 2), "10,20,2");
}

TEST_F(MergeListTest, MoreSamplesThanTheBarCountsAreAllWritten) {
    Texts names;
    for (int sample = 1; sample <= 140; ++sample) names.push_back("s" + std::to_string(sample));
    Sheet(names, std::vector<std::vector<int>>(140, {1}));
    OpenTree();
    AnswerDialog(kList);
    SaveMergeList();
    EXPECT_EQ(FileLine(kList, 140), "10,20,0");
    ExpectAtRest();
}

TEST_F(MergeListTest, CancelWritesNothing) {
    Sheet({"a", "b"}, {{1}, {0, 1}});
    OpenTree();
    CancelDialog();
    SaveMergeList();
    EXPECT_FALSE(files_.bytes.contains(kList));
    EXPECT_EQ(Played(), Texts{});
    ExpectAtRest();
}

TEST_F(MergeListTest, AFileThatCannotBeWrittenIsPassedOverInSilence) {
    Sheet({"a", "b"}, {{1}, {0, 1}});
    OpenTree();
    files_.locked.insert(kList);
    AnswerDialog(kList);
    SaveMergeList();
    EXPECT_EQ(Played(), Texts{});
    EXPECT_EQ(MessageCount(), 0U);
    ExpectAtRest();
}

TEST_F(MergeListTest, ADiskThatFillsIsPassedOverInSilenceWhereverItStrikes) {
    Sheet({"a", "b"}, {{1}, {0, 1}});
    OpenTree();
    AnswerDialog(kList);
    SaveMergeList();
    const std::string whole = files_.bytes[kList];
    for (std::size_t room = 0; room < whole.size(); ++room) {
        files_.room[kList] = room;
        Played();
        AnswerDialog(kList);
        SaveMergeList();
        ASSERT_EQ(Played(), Texts{}) << room << " bytes";
        ASSERT_EQ(MessageCount(), 0U) << room << " bytes";
        ExpectAtRest();
    }
    files_.room.clear();
    AnswerDialog(kList);
    SaveMergeList();
    EXPECT_EQ(files_.bytes[kList], whole);
}
}  // namespace
