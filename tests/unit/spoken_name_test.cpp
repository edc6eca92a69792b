#include "platform/control.h"

#include <gtest/gtest.h>

#include "platform/controls.h"

namespace {
TEST(SpokenNameTest, ACaptionIsSpokenWithoutItsColon) {
    Label label;
    label.SetCaption(" Sample name: ");
    EXPECT_EQ(SpokenName(label), "Sample name");
}

TEST(SpokenNameTest, ABoxIsCalledAsTheLabelBesideItReadsNow) {
    Label label;
    TextBox box;
    box.SetText("12");
    box.named_by = &label;
    label.SetCaption("Subtotal-1:");
    EXPECT_EQ(SpokenName(box), "Subtotal-1");
    label.SetCaption("Trees:");
    EXPECT_EQ(SpokenName(box), "Trees");
}

TEST(SpokenNameTest, ALabelRenamedToNothingIsCalledAsItWasDesigned) {
    Label label;
    OptionButton option;
    option.SetCaption("Set alarm");
    option.named_by = &label;
    label.SetCaption("Subtotal-1:");
    label.KeepDesign();
    label.SetCaption(":");
    EXPECT_EQ(SpokenName(option), "Set alarm: Subtotal-1");
    label.SetCaption("Trees:");
    EXPECT_EQ(SpokenName(option), "Set alarm: Trees");
}

TEST(SpokenNameTest, TheParts) {
    struct {
        const char *name, *caption, *label, *spoken;
    } const cases[] = {
        {"", "Set alarm", "All total:", "Set alarm: All total"},
        {"Taxon 7", "---", "", "Taxon 7"},
        {"Taxon 7", "Pinus", "", "Taxon 7: Pinus"},
        {"Taxon", "7: ---", "", "Taxon: 7"},
        {"Taxon 7", "\xC3\x89", "", "Taxon 7: \xC3\x89"},
        {"", "", "", ""},
        {"", "%", "", ""},
        {"Percent", "%", "", "Percent"},
    };
    for (const auto& each : cases) {
        Label label;
        Button button;
        button.accessible_name = each.name;
        button.named_by = &label;
        button.SetCaption(each.caption);
        label.SetCaption(each.label);
        EXPECT_EQ(SpokenName(button), each.spoken);
    }
}

TEST(SpokenNameTest, AMenuItemIsSpokenWithoutTheMarkOfItsAccessKey) {
    MenuItem item;
    item.SetCaption("% &Basis");
    EXPECT_EQ(SpokenName(item), "% Basis");
}
}  // namespace
