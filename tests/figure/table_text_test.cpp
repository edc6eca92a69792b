// The text of tables.
#include "figure/tables/table_text.h"

#include <gtest/gtest.h>

namespace {
TEST(TableTextTest, RowsAreCellsPartedByCommas) {
    TableText table;
    table.Texts({"Taxon", "Count (grains)"});
    table.EndRow();
    table.Text("Pinus");
    table.Whole(-12);
    table.Number(std::nullopt);
    table.Cells("a,b");
    table.Cells("");
    table.Number(0.5);
    table.EndRow();
    EXPECT_EQ(table.Take(), "Taxon,Count (grains)\r\nPinus,-12,,a,b,0.5\r\n");
}

TEST(TableTextTest, AnEmptyFirstCellIsACell) {
    TableText table;
    table.Text("");
    table.Text("b");
    EXPECT_EQ(table.Take(), ",b");
}

TEST(TableTextTest, TextsAreQuotedWhereTheyMust) {
    EXPECT_EQ(Quoted("Pinus sylvestris"), "Pinus sylvestris");
    EXPECT_EQ(Quoted("Pinus, broken"), "\"Pinus, broken\"");
    EXPECT_EQ(Quoted("\"Pinus\""), "\"\"\"Pinus\"\"\"");
    EXPECT_EQ(Quoted("two\nlines"), "\"two\nlines\"");
    EXPECT_EQ(Quoted("Öxnered ±"), "Öxnered ±");
}

TEST(TableTextTest, NumbersHaveSixDigitsAndNoExponent) {
    const std::pair<double, const char*> cases[] = {{0, "0"},
                                                    {-0.0, "0"},
                                                    {12.5, "12.5"},
                                                    {100.0 / 3, "33.3333"},
                                                    {99.99999, "100"},
                                                    {1234567.8, "1234568"},
                                                    {185830, "185830"},
                                                    {100, "100"},
                                                    {0.000123456789, "0.000123457"},
                                                    {-2.5, "-2.5"},
                                                    {1e-13, "0"},
                                                    {2e20, "200000000000000000000"}};
    for (const auto& [number, text] : cases) EXPECT_EQ(SixDigits(number), text);
}
}  // namespace
