#include "platform/TscFrequency.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using vapp_platform::TClocks;
using vapp_platform::TscFrequency;

// Clocks that advance by sleeping alone, and write down in which order they are read.
class TToldClocks final : public TClocks {
public:
    std::int64_t CounterFrequency() override {
        m_calls += 'f';
        return m_frequency;
    }
    std::int64_t Counter() override {
        m_calls += 'c';
        return m_counter;
    }
    std::uint64_t TimeStamp() override {
        m_calls += 't';
        return m_stamp;
    }
    void Sleep(unsigned milliseconds) override {
        m_calls += 's';
        m_slept = milliseconds;
        m_counter += m_counterStep;
        m_stamp += m_stampStep;
    }

    std::int64_t m_frequency = 1000;
    std::int64_t m_counter = 100;
    std::int64_t m_counterStep = 5;
    std::uint64_t m_stamp = 7;
    std::uint64_t m_stampStep = 15'000'000;
    unsigned m_slept = 0;
    std::string m_calls;
};

TEST(TscFrequencyTest, TicksAreDividedByTheSecondsOfTheCounter) {
    TToldClocks clocks;
    EXPECT_DOUBLE_EQ(TscFrequency(clocks), 3e9);
    EXPECT_EQ(clocks.m_slept, 5u);
}

TEST(TscFrequencyTest, EachTimeStampIsReadBeforeItsCounter) {
    TToldClocks clocks;
    EXPECT_GT(TscFrequency(clocks), 0.0);
    EXPECT_EQ(clocks.m_calls, "ftcstc");
}

TEST(TscFrequencyTest, AClockThatDoesNotRunGivesZero) {
    TToldClocks none;
    none.m_frequency = 0;
    EXPECT_EQ(TscFrequency(none), 0.0);
    EXPECT_EQ(none.m_calls, "f");

    TToldClocks noStamp;
    noStamp.m_stamp = 0;
    EXPECT_EQ(TscFrequency(noStamp), 0.0);
    EXPECT_EQ(noStamp.m_calls, "ft");
}

TEST(TscFrequencyTest, ClocksThatStandStillOrGoBackwardGiveZero) {
    TToldClocks still;
    still.m_counterStep = 0;
    EXPECT_EQ(TscFrequency(still), 0.0);
    TToldClocks back;
    back.m_counterStep = -5;
    EXPECT_EQ(TscFrequency(back), 0.0);
    TToldClocks stampBack;
    stampBack.m_stampStep = std::numeric_limits<std::uint64_t>::max();
    EXPECT_EQ(TscFrequency(stampBack), 0.0);
}

// Loose enough for a busy machine: both clocks run on while the thread waits.
TEST(TscFrequencyTest, ThisMachineCountsBetweenTenMegahertzAndTenGigahertz) {
    const double frequency = vapp_platform::TscFrequencyOfMachine();
    EXPECT_GT(frequency, 1e7);
    EXPECT_LT(frequency, 1e10);
}

}  // namespace
