#include "drive/values.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

using drive::ValueText;

TEST(DriveValuesTest, ValuesAreTheirShortestTexts) {
    EXPECT_EQ(ValueText(true), "True");
    EXPECT_EQ(ValueText(false), "False");
    EXPECT_EQ(ValueText(std::int16_t{-1}), "-1");
    EXPECT_EQ(ValueText(std::int32_t{2147483647}), "2147483647");
    EXPECT_EQ(ValueText(0.1f), "0.1");
    EXPECT_EQ(ValueText(1.0f / 3), "0.33333334");
    EXPECT_EQ(ValueText(12.5), "12.5");
    EXPECT_EQ(ValueText(1.0), "1");
    EXPECT_EQ(ValueText(Colour{200, 100, 0}), "200,100,0");
}

TEST(DriveValuesTest, ATaggedValueIsItsTextOrTheTextOfItsNumber) {
    EXPECT_EQ(ValueText(Any("12.50")), "12.50");
    EXPECT_EQ(ValueText(Any(12.50)), "12.5");
    EXPECT_EQ(ValueText(Any()), "");
}

TEST(DriveValuesTest, WhatIsNoNumberStopsNothing) {
    EXPECT_EQ(ValueText(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(ValueText(std::numeric_limits<float>::infinity()), "inf");
}
