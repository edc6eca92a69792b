// Midnight may come while a stamp is taken.
#include "session/history.h"
#include "unit/sheet_test.h"

namespace {
// Midnight comes after so many looks at it.
class ClockAtMidnight : public Clock {
public:
    explicit ClockAtMidnight(int looks) : looks_(looks) {}
    std::string DateText() override { return looks_-- > 0 ? "14/11/2026" : "15/11/2026"; }
    std::string TimeText() override { return looks_-- > 0 ? "23:59:59" : "00:00:00"; }

private:
    int looks_;
};

class StampTest : public SheetTest {};

TEST_F(StampTest, ItIsOfOneMomentThoughMidnightComesWhileItIsTaken) {
    for (int looks = 0; looks < 5; ++looks) {
        ClockAtMidnight clock(looks);
        services.clock = &clock;
        const std::string stamp = NoteStamp();
        EXPECT_TRUE(stamp == "14/11/2026 (23:59:59)" || stamp == "15/11/2026 (00:00:00)") << stamp << " after " << looks << " looks";
    }
    services.clock = &services_.clock;
}
}  // namespace
