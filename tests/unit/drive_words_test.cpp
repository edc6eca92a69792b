#include "drive/words.h"

#include <gtest/gtest.h>

#include "drive/fault.h"

using drive::AsDecimal;
using drive::AsWhole;
using drive::OnOneLine;
using drive::Quoted;
using drive::ScriptFault;
using drive::SplitWords;
using Words = std::vector<std::string>;

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
