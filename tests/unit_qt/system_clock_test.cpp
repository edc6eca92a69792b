// The clock of the computer may stand anywhere.
#include <gtest/gtest.h>

#include <ctime>
#include <limits>

#include "platform/qt/desktop.h"

namespace {
constexpr std::time_t kYear10000 = 253'402'300'800;
constexpr std::time_t kDay = std::time_t{24} * 60 * 60;

#ifndef _WIN32  // whose calendar ends with the year 3000
TEST(SystemClockTest, AYearMayHaveMoreThanFourDigits) {
    EXPECT_EQ(LocalTime(kYear10000 + 14 * kDay, "in %m/%Y"), "in 01/10000");
    EXPECT_EQ(LocalTime(kYear10000 + 14 * kDay + 2'000'000'000 * std::time_t{366} * kDay, "%Y").size(), 10u);
}
#endif

TEST(SystemClockTest, BeyondTheCalendarThereIsNoText) {
    for (const std::time_t moment : {std::numeric_limits<std::time_t>::min(), std::numeric_limits<std::time_t>::max()})
        EXPECT_EQ(LocalTime(moment, "%d/%m/%Y"), "") << moment;
}
}  // namespace
