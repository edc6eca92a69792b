// Texts in the scripts.
#include "figure/tables/scripts.h"

#include <gtest/gtest.h>

#include "figure/fault_of.h"
#include "figure/small_core.h"

namespace {
TEST(ScriptsTest, NoTextCanEndItsQuotes) {
    EXPECT_EQ(CodeText("Pinus"), "\"Pinus\"");
    EXPECT_EQ(CodeText("\"); stop(\""), R"("\"); stop(\"")");
    EXPECT_EQ(CodeText("\\"), R"("\\")");
    EXPECT_EQ(CodeText("a\nb\t"), R"("a\u000Ab\u0009")");
}

TEST(ScriptsTest, WhatIsNotAsciiIsEscaped) {
    EXPECT_EQ(CodeText("Öland 𝄞\x7F"), R"("\u00D6land \U0001D11E\u007F")");
    EXPECT_EQ(CodeText(std::string_view("a\0b", 3)), "\"ab\"");
    EXPECT_EQ(CodeText("a\xFF\xC3"), "\"a\"");
}

TEST(ScriptsTest, TheSettingsFollowTheOptions) {
    TableOptions options;
    options.basis = kBasisSubtotal1;
    options.age = "Age (BP)";
    options.scripts.title = "Small core";
    options.scripts.taxa = {"Betula", "Pinus"};
    options.scripts.italic = {"Pinus"};
    options.scripts.groups = {{{0, 158, 115}, {"Betula", "Pinus"}}, {{230, 159, 0}, {}}};
    options.scripts.by_age = options.scripts.zones = true;
    options.scripts.style = "dot";
    options.scripts.exaggerate = 7.5;
    options.scripts.tree = "grimm";
    const std::string python = PythonScript(SmallCore(), options), r = RScript(SmallCore(), options);
    for (const char* line :
         {"TITLE = \"Small core\"\n", "BASIS = \"subtotal-1\"\n", "AXIS = \"Age (BP)\"\n", "TAXA = [\"Betula\", \"Pinus\"]\n",
          "ITALIC = [\"Pinus\"]\n", "COLOURS = {\"#009e73\": [\"Betula\", \"Pinus\"],\n\"#e69f00\": []}\n", "STYLE = \"dot\"\n",
          "EXAGGERATE = 7.5\n", "TREE = \"merges.csv\"\n", "ZONES = True\n"})
        EXPECT_NE(python.find(line), std::string::npos) << line;
    for (const char* line : {"AXIS <- \"Age (BP)\"\n", "TAXA <- c(\"Betula\", \"Pinus\")\n", "ITALIC <- c(\"Pinus\")\n",
                             "COLOURS <- list(\"#009e73\" = c(\"Betula\", \"Pinus\"),\n\"#e69f00\" = c())\n", "ZONES <- TRUE\n"})
        EXPECT_NE(r.find(line), std::string::npos) << line;
}

TEST(ScriptsTest, WithoutAChoiceAllTaxaAreDrawnByDepthAsInTheFigure) {
    const std::string python = PythonScript(SmallCore(), {});
    for (const char* line : {"TITLE = \"\"\n", "TAXA = [\"Pinus\", \"Betula\", \"Poaceae\", \"Lycopodium\"]\n", "AXIS = \"Depth (cm)\"\n",
                             "STYLE = \"bar\"\n", "EXAGGERATE = 0\n", "TREE = \"counter_tree.csv\"\n", "ZONES = False\n"})
        EXPECT_NE(python.find(line), std::string::npos) << line;
    TableOptions options;
    options.scripts.tree = "none";
    EXPECT_NE(RScript(SmallCore(), options).find("TREE <- \"\"\n"), std::string::npos);
}

TEST(ScriptsTest, ANameOfTwoTaxaCannotBeDrawn) {
    Core core = SmallCore();
    core.taxa[1].name = "Pinus";
    TableOptions options;
    options.scripts.taxa = {"Pinus", "Poaceae"};
    constexpr const char* kFault = "a script knows the taxa by their names, and more than one is named \"Pinus\"";
    EXPECT_EQ(FaultOf([&] { PythonScript(core, options); }), kFault);
    EXPECT_EQ(FaultOf([&] { RScript(core, options); }), kFault);
    options.scripts.taxa = {"Poaceae"};
    EXPECT_EQ(FaultOf([&] { RScript(core, options); }), "");
}
}  // namespace
