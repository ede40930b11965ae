/// @file
/// The measure, and the machine's clocks behind it.
#include "platform/TscFrequency.h"

#include <chrono>
#include <thread>

#include "platform/Cpuid.h"
#include "platform/PerformanceClock.h"

namespace vapp_platform {

namespace {

constexpr unsigned cnMeasuredMilliseconds = 5;

class TMachineClocks final : public TClocks {
public:
    std::int64_t CounterFrequency() override { return PerformanceFrequency(); }
    std::int64_t Counter() override { return PerformanceCounter(); }
    std::uint64_t TimeStamp() override { return ReadTimeStampCounter(); }
    void Sleep(unsigned milliseconds) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }
};

}  // namespace

// Both time stamps are read just before their performance counters, so that the cost of a reading cancels
// out.
double TscFrequency(TClocks& clocks) {
    const std::int64_t frequency = clocks.CounterFrequency();
    if (frequency <= 0) return 0.0;
    const std::uint64_t firstStamp = clocks.TimeStamp();
    if (firstStamp == 0) return 0.0;
    const std::int64_t firstCounter = clocks.Counter();
    clocks.Sleep(cnMeasuredMilliseconds);
    const std::uint64_t lastStamp = clocks.TimeStamp();
    const std::int64_t lastCounter = clocks.Counter();
    if (lastCounter <= firstCounter || lastStamp <= firstStamp) return 0.0;
    const double seconds = static_cast<double>(lastCounter - firstCounter) / static_cast<double>(frequency);
    return static_cast<double>(lastStamp - firstStamp) / seconds;
}

double TscFrequencyOfMachine() {
    TMachineClocks clocks;
    return TscFrequency(clocks);
}

}  // namespace vapp_platform
