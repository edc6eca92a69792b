#include "diagram/cluster_tree.h"

#include "diagram/data/coniss.h"
#include "platform/services.h"
#include "platform/user.h"
#include "unit/diagram_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
class ClusterTreeTest : public DiagramTest {
protected:
    static void OpenTree() {
        Open(frmMain.mnuBar);
        ClickControl(frmDiagram.nmuConiss);
    }
    static int DrawnInTree(const std::string& operation) { return Drawn(frmDiagram.Picture2, operation); }
};

TEST_F(ClusterTreeTest, TheRootLeavesATenthForItsStem) {
    Sheet({"a", "b", "c"}, {{1}, {1, 1}, {0, 0, 1}});
    OpenTree();
    ASSERT_EQ(MergeHeight[2], 2.125F);
    EXPECT_DOUBLE_EQ(frmDiagram.Picture2.ScaleWidth(), 1.1 * 2.125);
    EXPECT_EQ(frmDiagram.Picture2.ScaleTop(), frmDiagram.Picture1.ScaleTop());
    EXPECT_EQ(frmDiagram.Picture2.ScaleHeight(), frmDiagram.Picture1.ScaleHeight());
    EXPECT_EQ(DrawnInTree("line 0 22.5 2.3375 22.5 0,0,0"), 1);
}

TEST_F(ClusterTreeTest, EachBracketWipesWhatLiesUnderIt) {
    Sheet({"a", "b", "c"}, {{1}, {1, 1}, {0, 0, 1}});
    OpenTree();
    const auto& drawn = frmDiagram.Picture2.Operations();
    ASSERT_EQ(drawn.size(), 14U);  // ground, stem, two brackets of four, two pairs of ticks
    EXPECT_EQ(drawn[2].shape, DrawOperation::Shape::Rectangle);
    EXPECT_EQ(drawn[6].shape, DrawOperation::Shape::Rectangle);
    EXPECT_EQ(DrawnInTree("rect 0 15 2.125 30 255,255,255"), 1);
    EXPECT_EQ(DrawnInTree("rect 0 10 0.5 20 255,255,255"), 1);
    EXPECT_EQ(DrawnInTree("line 0.5 10 0.5 20 0,0,0"), 1);
    EXPECT_EQ(DrawnInTree("line 0 10 0.5 10 0,0,0"), 1);
    EXPECT_EQ(DrawnInTree("line 0 20 0.5 20 0,0,0"), 1);
}

TEST_F(ClusterTreeTest, TicksStandAtWholeSumsOfSquares) {
    Sheet({"a", "b"}, {{1}, {0, 1}});
    OpenTree();
    struct {
        float root;
        int ticks;
    } cases[] = {{0, 1}, {0.5F, 1}, {1.6F, 1}, {1.7F, 2}, {2.5F, 2}, {2.51F, 3}, {5, 5}};
    for (const auto& each : cases) {
        MergeHeight[1] = each.root;
        DrawClusterTree();
        int ticks = 0;
        for (int x = 1; x <= 9; ++x) ticks += DrawnInTree("line " + std::to_string(x) + " 9.75 " + std::to_string(x) + " 9.834 0,0,0");
        EXPECT_EQ(ticks, each.ticks) << each.root;
        EXPECT_EQ(DrawnInTree("line 1 20.25 1 20.124 0,0,0"), 1) << each.root;
    }
}

TEST_F(ClusterTreeTest, ARootOfNoHeightIsDrawnWithoutWidth) {
    Sheet({"a", "b"}, {{1}, {1}});
    OpenTree();
    EXPECT_EQ(frmDiagram.Picture2.ScaleWidth(), 0);
    EXPECT_EQ(DrawnInTree("line 0 10 0 20 0,0,0"), 1);
}

TEST_F(ClusterTreeTest, ARootOfMillionsHasNoMillionsOfTicks) {
    Sheet({"a", "b"}, {{4000, -3999}, {-3999, 4000}});
    OpenTree();
    EXPECT_GT(MergeHeight[1], 1e8F);
    EXPECT_LT(frmDiagram.Picture2.Operations().size(), 30'000U);
}

TEST_F(ClusterTreeTest, TheLineOfTheSampleCrossesTheTreeToo) {
    Sheet({"a", "b"}, {{1}, {0, 1}});
    Open(frmMain.mnuBar);
    ClickControl(frmDiagram.Check1);
    ClickControl(frmDiagram.nmuConiss);
    EXPECT_EQ(DrawnInTree("line 0 20 500 20 0,0,255"), 1);
    EXPECT_EQ(frmDiagram.Picture2.PersistentCount() + 1, frmDiagram.Picture2.Operations().size());
    ClickControl(frmDiagram.nmuConiss);
    EXPECT_FALSE(frmDiagram.Picture2.Visible());
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 0 20 500 20 0,0,255"), 1);
}
}  // namespace
