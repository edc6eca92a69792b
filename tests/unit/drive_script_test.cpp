#include "drive/script.h"

#include <gtest/gtest.h>

#include <sstream>

using drive::AsDecimal;
using drive::AsWhole;
using drive::Command;
using drive::OnOneLine;
using drive::Quoted;
using drive::Script;
using drive::ScriptFault;
using drive::SplitWords;
using Words = std::vector<std::string>;

namespace {
std::vector<Command> CommandsOf(const std::string& text) {
    std::istringstream stream(text);
    Script script(stream);
    std::vector<Command> commands;
    for (Command command; script.Next(command);) commands.push_back(command);
    return commands;
}
}  // namespace

TEST(DriveScriptTest, BlankLinesAndCommentsArePassedOverAndCounted) {
    const auto commands = CommandsOf("# what it shows\n\nstart\n   \n  # more\nkey 81\r\n");
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0].words, Words{"start"});
    EXPECT_EQ(commands[0].line, 3);
    EXPECT_EQ(commands[1].words, (Words{"key", "81"}));
    EXPECT_EQ(commands[1].line, 6);
}

TEST(DriveScriptTest, AMarkAtTheHeadIsPassedOver) {
    const auto commands = CommandsOf("\xEF\xBB\xBFstart\n");
    ASSERT_EQ(commands.size(), 1u);
    EXPECT_EQ(commands[0].words, Words{"start"});
}

TEST(DriveScriptTest, LinesOfACommandStandAsTheyAre) {
    const auto commands = CommandsOf("write $W/a.csv <<END\n# no comment\n\n  \"a\",1 \nEND\nstart\n");
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_TRUE(commands[0].has_lines);
    EXPECT_EQ(commands[0].words, (Words{"write", "$W/a.csv"}));
    EXPECT_EQ(commands[0].lines, (Words{"# no comment", "", "  \"a\",1 "}));
    EXPECT_FALSE(commands[1].has_lines);
    EXPECT_EQ(commands[1].line, 6);
}

TEST(DriveScriptTest, AQuotedMarkOpensNoLines) {
    const auto commands = CommandsOf("paste \"<<END\"\n");
    ASSERT_EQ(commands.size(), 1u);
    EXPECT_FALSE(commands[0].has_lines);
    EXPECT_EQ(commands[0].words, (Words{"paste", "<<END"}));
}

TEST(DriveScriptTest, LinesWithoutEndAreAFaultOfTheirFirstLine) {
    std::istringstream stream("start\nwrite $W/a.csv <<END\nx\n");
    Script script(stream);
    Command command;
    ASSERT_TRUE(script.Next(command));
    EXPECT_THROW(script.Next(command), ScriptFault);
    EXPECT_EQ(script.Line(), 2);
}

TEST(DriveWordsTest, BlanksPartWords) {
    EXPECT_EQ(SplitWords("click frmMain.Command5(0)"), (Words{"click", "frmMain.Command5(0)"}));
    EXPECT_EQ(SplitWords("  key\t81   87 "), (Words{"key", "81", "87"}));
    EXPECT_EQ(SplitWords(""), Words{});
    EXPECT_EQ(SplitWords(" \t"), Words{});
}

TEST(DriveWordsTest, QuotesHoldBlanksAndEscapes) {
    EXPECT_EQ(SplitWords(R"(expect X "a b")"), (Words{"expect", "X", "a b"}));
    EXPECT_EQ(SplitWords(R"("")"), Words{""});
    EXPECT_EQ(SplitWords(R"("\"" "\\" "a\r\nb" "\t")"), (Words{"\"", "\\", "a\r\nb", "\t"}));
    EXPECT_EQ(SplitWords(R"(C:\Counts\n)"), Words{R"(C:\Counts\n)"}) << "a bare word knows no escape";
    EXPECT_EQ(SplitWords("\"Épicéa\" œ"), (Words{"Épicéa", "œ"}));
}

TEST(DriveWordsTest, AQuotationMarkOutOfPlaceIsAFault) {
    for (const char* line : {R"("open)", R"("open\")", R"("a"b)", R"(a"b")", R"("\x")", R"("\)", R"("a""b")"})
        EXPECT_THROW(SplitWords(line), ScriptFault) << line;
}

TEST(DriveWordsTest, WhatIsQuotedReadsBack) {
    for (const char* text : {"", "a b", "\"", "\\", "a\r\nb\t\"c\\", "Épicéa"}) EXPECT_EQ(SplitWords(Quoted(text)), Words{text});
    EXPECT_EQ(Quoted("a\r\n\"b\""), R"("a\r\n\"b\"")");
}

TEST(DriveWordsTest, LineBreaksStandAsLettersOnOneLine) {
    EXPECT_EQ(OnOneLine("a\r\nb\\\"c"), "a\\r\\nb\\\"c");
}

TEST(DriveWordsTest, NumbersAreNumbersFromEndToEnd) {
    EXPECT_EQ(AsWhole("12"), 12);
    EXPECT_EQ(AsWhole("-3"), -3);
    for (const char* word : {"", "12.5", "7 cf.", "99999999999", " 1", "+1"}) EXPECT_FALSE(AsWhole(word)) << word;
    EXPECT_EQ(AsDecimal("12.5"), 12.5);
    EXPECT_EQ(AsDecimal("-0.86"), -0.86);
    for (const char* word : {"", "*", "1,5", "inf", "nan", "1e999"}) EXPECT_FALSE(AsDecimal(word)) << word;
}
