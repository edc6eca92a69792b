#include "files/format/sheet_rows.h"

#include <gtest/gtest.h>

#include "platform/failure.h"

TEST(SheetBaseNameTest, ANameStandsBetweenTheLastSeparatorAndTheLastPeriod) {
    const struct {
        const char* path;
        const char* name;
    } cases[] = {
        {"/home/ann/Mere.csv", "Mere"},
        {"C:\\Counts\\Mere.csv", "Mere"},
        {"C:\\Counts/core 12.csv", "core 12"},
        {"/home\\ann/x\\core.csv", "core"},
        {"/a/core.12.csv", "core.12"},
        {"/a/S\u00e9e.csv", "S\u00e9e"},
        {"/.csv", ""},
        {"/a.b/c.d", "c"},
        {"/a/core..csv", "core."},
        {"/a/core.csv.", "core"},
        {"/a/b.c/", "b"},
    };
    for (const auto& each : cases) EXPECT_EQ(SheetBaseName(each.path), each.name) << each.path;
}

TEST(SheetBaseNameTest, APathWithoutAPeriodOrAFolderIsAFailure) {
    for (const char* path : {"", ".", "a", "/", "/home/ann/Mere", "Mere.csv", ".csv", "/home/ann/Mere.", "a.b"})
        EXPECT_THROW(SheetBaseName(path), Failure) << '"' << path << '"';
}
