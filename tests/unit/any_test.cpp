#include "platform/any.h"

#include <gtest/gtest.h>

TEST(AnyTest, IsTheEmptyTextAtFirst) {
    const Any any;
    EXPECT_FALSE(any.IsNumber());
    EXPECT_EQ(any.Text(), "");
    EXPECT_EQ(any.Number(), 0);
}

TEST(AnyTest, ATextStaysATextEvenIfItIsDigits) {
    for (const Any& any : {Any("12"), Any(std::string("12")), Any(std::string_view("12"))}) {
        EXPECT_FALSE(any.IsNumber());
        EXPECT_EQ(any.Text(), "12");
        EXPECT_EQ(any.Number(), 12);
    }
}

TEST(AnyTest, EveryKindOfNumberIsANumber) {
    for (const Any& any : {Any(12), Any(std::int16_t{12}), Any(12L), Any(12u), Any(12.0), Any(12.0F)}) {
        EXPECT_TRUE(any.IsNumber());
        EXPECT_EQ(any.Text(), "12");
        EXPECT_EQ(any.Number(), 12);
    }
    EXPECT_EQ(Any(-0.5).Text(), "-0.5");
    EXPECT_EQ(Any(0.1 + 0.2).Text(), "0.3");
}

TEST(AnyTest, TheNumberOfATextIsItsLeadingNumber) {
    EXPECT_EQ(Any("7 cf.").Number(), 7);
    EXPECT_EQ(Any("1E2").Number(), 100);
    EXPECT_EQ(Any("---").Number(), 0);
}

TEST(AnyTest, EqualsANumberByValue) {
    EXPECT_TRUE(Any(1) == 1);
    EXPECT_TRUE(Any("1.0") == 1);
    EXPECT_TRUE(Any("") == 0);
    EXPECT_FALSE(Any(1.5) == 1);
    EXPECT_TRUE(Any("7 cf.") != 8);
}

TEST(AnyTest, EqualsATextByTheTextThatWouldBeShown) {
    EXPECT_TRUE(Any(12.5) == "12.5");
    EXPECT_TRUE(Any("Pinus") == std::string("Pinus"));
    EXPECT_FALSE(Any("1.0") == "1");
    EXPECT_FALSE(Any(1.0) == "1.0");
    EXPECT_TRUE(Any() == "");
}

TEST(AnyTest, TakesAnotherKindWhenItIsSet) {
    Any any = "12";
    any = 12;
    EXPECT_TRUE(any.IsNumber());
    any = "---";
    EXPECT_FALSE(any.IsNumber());
    EXPECT_EQ(any.Text(), "---");
    EXPECT_EQ(any.Number(), 0);
}
