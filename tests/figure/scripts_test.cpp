// Texts in the scripts.
#include "figure/tables/scripts.h"

#include <gtest/gtest.h>

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
    options.scripts = {true, true, {"Betula", "Pinus"}, {"Pinus"}, true, true, 7.5};
    const std::string python = PythonScript(SmallCore(), options), r = RScript(SmallCore(), options);
    for (const char* line : {"TITLE = \"small\"\n", "PERCENTAGES = \"percentages_subtotal-1.csv\"\n", "AXIS = \"Age (BP)\"\n",
                             "TAXA = [\"Betula\", \"Pinus\"]\n", "ITALIC = [\"Pinus\"]\n", "BARS = True\n", "EXAGGERATE = 7.5\n"})
        EXPECT_NE(python.find(line), std::string::npos) << line;
    for (const char* line : {"AXIS <- \"Age (BP)\"\n", "TAXA <- c(\"Betula\", \"Pinus\")\n", "ITALIC <- c(\"Pinus\")\n", "BARS <- TRUE\n"})
        EXPECT_NE(r.find(line), std::string::npos) << line;
}

TEST(ScriptsTest, WithoutAChoiceAllTaxaAreDrawnByDepth) {
    const std::string python = PythonScript(SmallCore(), {});
    EXPECT_NE(python.find("TAXA = [\"Pinus\", \"Betula\", \"Poaceae\", \"Lycopodium\"]\n"), std::string::npos);
    EXPECT_NE(python.find("AXIS = \"Depth (cm)\"\n"), std::string::npos);
    EXPECT_NE(python.find("BARS = False\n"), std::string::npos);
}
}  // namespace
