#include "files/format/cells.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "platform/encoding.h"
#include "platform/failure.h"
#include "platform/number.h"

namespace {

using Texts = std::vector<std::string>;

Texts CellsOf(const std::string& text) {
    CellReader reader(text);
    Texts cells;
    while (!reader.AtEnd()) cells.push_back(reader.NextText());
    return cells;
}

// A second way to the cells: byte by byte, with a state for where a byte stands.
Texts CellsByteByByte(const std::string& text) {
    enum { kBefore, kBare, kQuoted, kAfterQuote } state = kBefore;
    bool owed = false;  // a comma went before: a cell must follow
    Texts cells;
    for (const char c : text) {
        const bool separator = c == ',' || c == '\r' || c == '\n';
        if (state == kAfterQuote && !separator && c != ' ') state = kBefore;
        if (state == kQuoted) {
            if (c == '"')
                state = kAfterQuote;
            else
                cells.back() += c;
        } else if (separator) {
            if (state == kBefore && (owed || c == ',')) cells.emplace_back();
            owed = c == ',';
            state = kBefore;
        } else if (state == kBefore && c != ' ') {
            state = c == '"' ? kQuoted : kBare;
            cells.emplace_back(state == kBare ? 1 : 0, c);
            owed = false;
        } else if (state == kBare) {
            cells.back() += c;
        }
    }
    if (state == kBefore && owed) cells.emplace_back();
    return cells;
}

}  // namespace

TEST(CellReaderTest, ACellEndsAtACommaOrALineEnd) {
    EXPECT_EQ(CellsOf("a,b\r\nc\nd\re"), (Texts{"a", "b", "c", "d", "e"}));
    EXPECT_EQ(CellsOf("\"a\",\"b\"\r\n\"c\"\n\"d\"\r\"e\""), (Texts{"a", "b", "c", "d", "e"}));
}

TEST(CellReaderTest, ALineEndAtTheEndOfTheFileMakesNoCell) {
    EXPECT_EQ(CellsOf("1,2"), (Texts{"1", "2"}));
    EXPECT_EQ(CellsOf("1,2\r\n"), (Texts{"1", "2"}));
    EXPECT_EQ(CellsOf("1,\"2\"\r"), (Texts{"1", "2"}));
    EXPECT_EQ(CellsOf("1,\"2\"\n\n\r\n  "), (Texts{"1", "2"}));
}

TEST(CellReaderTest, AQuotedTextKeepsCommasBlanksAndLineEnds) {
    EXPECT_EQ(CellsOf("\"Created: 14/11/2026\r\nNote: \",\" a, b \"\n\"c\rd\ne\""),
              (Texts{"Created: 14/11/2026\r\nNote: ", " a, b ", "c\rd\ne"}));
    EXPECT_EQ(CellsOf("\"\",\"\""), (Texts{"", ""}));
}

TEST(CellReaderTest, LeadingBlanksOfACellAreSkipped) {
    EXPECT_EQ(CellsOf("  a, \t\"b\",\t c d "), (Texts{"a", "b", "c d "}));
    EXPECT_EQ(CellsOf("\"a\" , \"b\" \r\n c"), (Texts{"a", "b", "c"}));
}

TEST(CellReaderTest, AnEmptyLineIsNoCell) {
    EXPECT_EQ(CellsOf(""), (Texts{}));
    EXPECT_EQ(CellsOf("\r\n\r\n"), (Texts{}));
    EXPECT_EQ(CellsOf("  \t"), (Texts{}));
    EXPECT_EQ(CellsOf("\n\r\n1\r\r2\n  \n\n3"), (Texts{"1", "2", "3"}));
}

TEST(CellReaderTest, WhatFollowsACommaIsACellEvenIfItIsEmpty) {
    EXPECT_EQ(CellsOf("1,,2"), (Texts{"1", "", "2"}));
    EXPECT_EQ(CellsOf(",1"), (Texts{"", "1"}));
    EXPECT_EQ(CellsOf("1,\r\n2"), (Texts{"1", "", "2"}));
    EXPECT_EQ(CellsOf("1,  \n2"), (Texts{"1", "", "2"}));
    EXPECT_EQ(CellsOf("1,"), (Texts{"1", ""}));
    EXPECT_EQ(CellsOf("1, "), (Texts{"1", ""}));
    EXPECT_EQ(CellsOf("\"1\","), (Texts{"1", ""}));
    EXPECT_EQ(CellsOf(","), (Texts{"", ""}));
    EXPECT_EQ(CellsOf("1,\n\n\n2"), (Texts{"1", "", "2"}));
}

TEST(CellReaderTest, WhatStandsAfterAClosingQuoteBeginsACellOfItsOwn) {
    EXPECT_EQ(CellsOf("\"a\"b c,d"), (Texts{"a", "b c", "d"}));
    EXPECT_EQ(CellsOf("\"a\"\"b\",c"), (Texts{"a", "b", "c"}));
    EXPECT_EQ(CellsOf("\"5\" long\"\r\n6"), (Texts{"5", "long\"", "6"}));
    EXPECT_EQ(CellsOf("\"a\" \"b\""), (Texts{"a", "b"}));
}

TEST(CellReaderTest, AQuoteInTheMiddleOfABareCellIsACharacter) {
    EXPECT_EQ(CellsOf("a\"b,c\"\r\nd"), (Texts{"a\"b", "c\"", "d"}));
}

TEST(CellReaderTest, ATextThatIsNeverClosedRunsToTheEnd) {
    EXPECT_EQ(CellsOf("1,\"a,b\r\nc,"), (Texts{"1", "a,b\r\nc,"}));
    EXPECT_EQ(CellsOf("\""), (Texts{""}));
    EXPECT_EQ(CellsOf("\"\"\""), (Texts{"", ""}));
}

TEST(CellReaderTest, ABareCellThatIsWhollyANumberIsANumber) {
    const struct {
        const char* cell;
        double number;
    } cases[] = {{"0", 0},    {"12", 12}, {"-9999", -9999}, {"12.5", 12.5}, {"+3", 3},
                 {".5", 0.5}, {"007", 7}, {"1E2", 100},     {"12 ", 12},    {"  12", 12}};
    for (const auto& [cell, number] : cases) {
        CellReader reader(std::string(cell) + ",x");
        const Any any = reader.Next();
        EXPECT_TRUE(any.IsNumber()) << cell;
        EXPECT_EQ(any.Number(), number) << cell;
        EXPECT_EQ(reader.NextText(), "x") << cell;
    }
}

TEST(CellReaderTest, EveryOtherCellIsAText) {
    for (const std::string cell :
         {"\"12\"", "\"-0.5\"", "\"\"", "\"12", "7 cf.", "Pinus", "---", "-", "1 2", "1.2.3", "14/11/2026", "inf", "nan", "1E400", ""}) {
        CellReader reader(cell + (cell.empty() ? "," : ""));
        EXPECT_FALSE(reader.Next().IsNumber()) << cell;
    }
}

TEST(CellReaderTest, ATextIsTakenJustAsItStands) {
    CellReader reader("007,12.50,1E2, 3 ,\"007\",\" x \"");
    for (const char* text : {"007", "12.50", "1E2", "3 ", "007", " x "}) EXPECT_EQ(reader.NextText(), text);
}

TEST(CellReaderTest, ReadingPastTheEndFailsHoweverOftenItIsTried) {
    CellReader reader("1,2\r\n \r\n");
    reader.Next();
    EXPECT_FALSE(reader.AtEnd());
    reader.Next();
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(reader.AtEnd());
        try {
            time == 0 ? reader.Next().Text() : reader.NextText();
            ADD_FAILURE() << "a cell past the end";
        } catch (const Failure& failure) {
            EXPECT_STREQ(failure.what(), kInputPastEnd);
        }
    }
}

TEST(CellReaderTest, AskingForTheEndMovesNothing) {
    CellReader reader("1,,\r\n\"2\"");
    for (const char* text : {"1", "", "", "2"}) {
        EXPECT_FALSE(reader.AtEnd());
        EXPECT_FALSE(reader.AtEnd());
        EXPECT_EQ(reader.NextText(), text);
    }
    EXPECT_TRUE(reader.AtEnd());
}

TEST(CellReaderTest, ASheetThatASpreadsheetSavedReadsTheSame) {
    const std::string own = "\"Key index\",\"Trees\",\"Herbs\",\"Sample name\",\"Mere 1\"\r\n1,1,0,\"Bétula\",40\r\n";
    const std::string foreign = "\xEF\xBB\xBFKey index,Trees,Herbs,Sample name,Mere 1\n1,1,0,Bétula,40";
    EXPECT_EQ(CellsOf(DecodeFile(foreign)), CellsOf(own));
    EXPECT_EQ(CellsOf(own).size(), 10u);
}

TEST(CellReaderTest, AnyTextHasTheCellsFoundByteByByte) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937 random(seed);
        for (int round = 0; round < 2000; ++round) {
            std::string text;
            for (std::size_t length = random() % 13; length > 0; --length) text += "aa1,,\"\"  \r\n"[random() % 11];
            ASSERT_EQ(CellsOf(text), CellsByteByByte(text)) << testing::PrintToString(text) << " of seed " << seed;
        }
    }
}

// The next counts as texts, up to so many, or what the failure says.
Texts NextCounts(CellReader& reader, std::size_t most) {
    std::vector<std::int32_t> counts(most);
    try {
        counts.resize(reader.NextCounts(counts));
    } catch (const Failure& failure) {
        return {failure.what()};
    }
    Texts texts;
    for (const std::int32_t count : counts) texts.push_back(std::to_string(count));
    return texts;
}

// The same of one cell, in the plainest way.
std::string NextRounded(CellReader& reader) {
    try {
        return std::to_string(ToInt32(reader.Next().Number()));
    } catch (const Failure& failure) {
        return failure.what();
    }
}

TEST(CellReaderTest, ACountIsTheCellRoundedToAWholeNumber) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937 random(seed);
        for (int round = 0; round < 2000; ++round) {
            std::string text;
            for (std::size_t length = random() % 40; length > 0; --length) text += "0123456789-,,,,. +e\"\r\n"[random() % 22];
            CellReader counts(text), cells(text);
            while (!counts.AtEnd()) {
                const Texts taken = NextCounts(counts, 1 + random() % 5);
                ASSERT_FALSE(taken.empty());
                for (const std::string& count : taken)
                    ASSERT_EQ(count, NextRounded(cells)) << testing::PrintToString(text) << " of seed " << seed;
            }
            EXPECT_TRUE(cells.AtEnd());
        }
    }
    CellReader reader("2147483647,2147483648,-2147483648,12.5,013,-0,\"7\",x,");
    for (const char* count : {"2147483647", "Overflow", "-2147483648", "12", "13", "0", "7", "0", "0", "Input past end of file"})
        EXPECT_EQ(NextCounts(reader, 1), Texts{count});
}

TEST(CellReaderTest, CountsBeforeOneThatFailsAreTaken) {
    CellReader reader("1,22,9999999999,3");
    EXPECT_EQ(NextCounts(reader, 9), (Texts{"1", "22"}));
    EXPECT_EQ(NextCounts(reader, 9), Texts{"Overflow"});
    EXPECT_EQ(NextCounts(reader, 9), Texts{"3"});
}

TEST(CellReaderTest, NoMoreCountsAreTakenThanThereIsRoomFor) {
    CellReader reader("1,2,3\r\n4");
    EXPECT_EQ(NextCounts(reader, 2), (Texts{"1", "2"}));
    EXPECT_EQ(NextCounts(reader, 1), Texts{"3"});
    EXPECT_EQ(reader.NextText(), "4");
}
