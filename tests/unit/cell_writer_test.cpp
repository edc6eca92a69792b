#include "files/format/cells.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

#include "platform/encoding.h"
#include "platform/failure.h"

namespace {

struct RecordingFile : OutputFile {
    std::string Bytes;
    int Writes = 0;
    std::size_t Room = std::string::npos;  // bytes that the disk takes

    void Replace(std::string_view bytes) override {
        ++Writes;
        Bytes = bytes.substr(0, Room);
        if (bytes.size() > Room) throw WriteFailure(Room);
    }
};

using Rows = std::vector<std::vector<Any>>;

std::string Written(const Rows& rows) {
    RecordingFile file;
    CellWriter writer(file);
    for (const auto& row : rows) {
        for (const Any& cell : row) writer.Write(cell);
        writer.EndRow();
    }
    writer.Close();
    return file.Bytes;
}

}  // namespace

TEST(CellWriterTest, CommasPartTheCellsAndCrLfEndsTheRows) {
    EXPECT_EQ(Written({{"Key index", "Trees", "Herbs", "Sample name", "12.5"}, {1, 1, 0, "Pinus", 40}}),
              "\"Key index\",\"Trees\",\"Herbs\",\"Sample name\",\"12.5\"\r\n1,1,0,\"Pinus\",40\r\n");
    EXPECT_EQ(Written({{1}, {2}}), "1\r\n2\r\n");
    EXPECT_EQ(Written({}), "");
}

TEST(CellWriterTest, ATextIsQuotedEvenIfItIsDigitsOrEmpty) {
    EXPECT_EQ(Written({{"12", "", "---"}}), "\"12\",\"\",\"---\"\r\n");
}

TEST(CellWriterTest, NothingInATextIsEscaped) {
    EXPECT_EQ(Written({{"a,b", "Note: \r\nc", "5\" long", "C:\\Counts"}}), "\"a,b\",\"Note: \r\nc\",\"5\" long\",\"C:\\Counts\"\r\n");
}

TEST(CellWriterTest, ANumberIsBareAndPlain) {
    EXPECT_EQ(Written({{-3, 12.5, 0.05, 98.0392, 9999, 1e20, 0.1 + 0.2, -0.0}}),
              "-3,12.5,0.05,98.0392,9999,100000000000000000000,0.3,0\r\n");
}

TEST(CellWriterTest, CountsAreWrittenLikeAnyNumbers) {
    constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t counts[] = {0, 7, -1, 2147483647, kLeast, kLeast};
    RecordingFile file;
    CellWriter writer(file);
    writer.Write("Pinus");
    writer.WriteCounts(counts);
    writer.EndRow();
    writer.WriteCounts(counts);
    writer.WriteCounts({});
    writer.EndRow();
    writer.Close();
    EXPECT_EQ(file.Bytes, Written({{"Pinus", 0, 7, -1, 2147483647, kLeast, kLeast}, {0, 7, -1, 2147483647, kLeast, kLeast}}));
}

TEST(CellWriterTest, ALastRowMayStayOpen) {
    RecordingFile file;
    CellWriter writer(file);
    writer.Write("a");
    writer.EndRow();
    writer.Write(1);
    writer.Write(2);
    writer.Close();
    EXPECT_EQ(file.Bytes, "\"a\"\r\n1,2");
}

TEST(CellWriterTest, EverythingIsHandedOverInOneWriteAtTheEnd) {
    RecordingFile file;
    CellWriter writer(file);
    for (int row = 0; row < 1000; ++row) {
        writer.Write(row);
        writer.EndRow();
    }
    EXPECT_EQ(file.Writes, 0);
    writer.Close();
    EXPECT_EQ(file.Writes, 1);
    EXPECT_EQ(file.Bytes.substr(file.Bytes.size() - 10), "998\r\n999\r\n");
}

TEST(CellWriterTest, AWriterThatIsNeverClosedWritesNothing) {
    RecordingFile file;
    CellWriter(file).Write("Pinus");
    EXPECT_EQ(file.Writes, 0);
}

TEST(CellWriterTest, AFullDiskFailsWhereverItStrikes) {
    const std::string whole = "\"Pinus\",40\r\n";
    for (std::size_t room = 0; room <= whole.size(); ++room) {
        RecordingFile file;
        file.Room = room;
        CellWriter writer(file);
        writer.Write("Pinus");
        writer.Write(40);
        writer.EndRow();
        if (room < whole.size())
            EXPECT_THROW(writer.Close(), Failure) << room;
        else
            EXPECT_NO_THROW(writer.Close());
        EXPECT_EQ(file.Bytes, whole.substr(0, room));
    }
}

TEST(CellWriterTest, TheFileIsInWindows1252UnlessACharacterIsOutsideIt) {
    EXPECT_EQ(Written({{"Bétula", 1}}), "\"B\xE9tula\",1\r\n");
    EXPECT_EQ(Written({{"Bétula", 1}, {"β"}}), "\"Bétula\",1\r\n\"β\"\r\n");
}

TEST(CellWriterTest, WhatIsWrittenIsReadBackTheSame) {
    const std::string pieces[] = {"Pinus", "12", " ", ",", "\r\n", "\n", "é", "€", "β", "---", "'", "7 cf."};
    for (unsigned seed = 1; seed <= 100; ++seed) {
        std::mt19937 random(seed);
        Rows rows(1 + random() % 5);
        for (auto& row : rows)
            for (std::size_t cells = 1 + random() % 6; cells > 0; --cells) {
                std::string text;
                for (std::size_t length = random() % 4; length > 0; --length) text += pieces[random() % std::size(pieces)];
                const double number = static_cast<double>(static_cast<int>(random() % 20001) - 10000) / (random() % 2 == 0 ? 1 : 16);
                row.push_back(random() % 2 == 0 ? Any(text) : Any(number));
            }
        CellReader reader(DecodeFile(Written(rows)));
        for (const auto& row : rows)
            for (const Any& cell : row) {
                const Any read = reader.Next();
                ASSERT_EQ(read.IsNumber(), cell.IsNumber()) << "seed " << seed;
                ASSERT_EQ(read.Text(), cell.Text()) << "seed " << seed;
                ASSERT_EQ(read.Number(), cell.Number()) << "seed " << seed;
            }
        ASSERT_TRUE(reader.AtEnd()) << "seed " << seed;
    }
}
