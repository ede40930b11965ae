#include "vapp/platform/TOsInfo.h"

#include <gtest/gtest.h>

#include <random>
#include <thread>
#include <type_traits>
#include <vector>

#include "platform/SystemFacts.h"
#include "tests/text/HostileText.h"

namespace {

TEST(TOsInfoTest, FieldsStandInTheirOrderAndNothingIsVirtual) {
    static_assert(!std::is_polymorphic_v<TOsInfo>);
    const TOsInfo info;
    const auto offset = [&info](const auto& field) {
        return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&info);
    };
    EXPECT_EQ(offset(info.m_systemInfo), 0);
    EXPECT_LT(offset(info.m_systemInfo), offset(info.m_versionInfo));
    EXPECT_LT(offset(info.m_versionInfo), offset(info.m_osName));
    EXPECT_LT(offset(info.m_osName), offset(info.m_cpuName));
    EXPECT_LT(offset(info.m_cpuName), offset(info.m_hasMmx));
    EXPECT_LT(offset(info.m_hasMmx), offset(info.m_hasSse2));
}

TEST(TOsInfoTest, ConstructionGathersFactsAndLeavesTheNamesEmpty) {
    const TOsInfo info;
    EXPECT_GE(info.m_systemInfo.dwNumberOfProcessors, 1u);
    EXPECT_EQ(info.m_systemInfo.wProcessorArchitecture, 9);
    EXPECT_EQ(info.m_versionInfo.dwOSVersionInfoSize, 148u);
    EXPECT_TRUE(info.m_osName.IsEmpty());
    EXPECT_TRUE(info.m_cpuName.IsEmpty());
    // No processor of 64 bits is without them.
    EXPECT_TRUE(info.m_hasMmx);
    EXPECT_TRUE(info.m_hasSse2);
    EXPECT_TRUE(vapp_platform::HasProcessorFeature(vapp_platform::ProcessorFeature::Sse));
}

TEST(TOsInfoTest, TheDisplaysAnswerIsTheSameWithAndWithoutTheStore) {
    const TOsInfo info;
    EXPECT_EQ(info.IsWineDisplay(), TOsInfo::IsWineDisplayNow());
    EXPECT_EQ(info.IsWineDisplay(), info.IsWineDisplay());
}

TEST(TOsInfoTest, TheSystemIsLinuxExactlyWhereTheDisplayIsWines) {
    const TOsInfo info;
    if (info.IsWineDisplay()) {
        EXPECT_EQ(info.GetOsName(), "Linux");
    } else {
        EXPECT_EQ(info.GetOsName(), info.GetWindowsName());
    }
}

TEST(TOsInfoTest, ThreadsMayAskForTheNameAtOnce) {
    const TOsInfo info;
    const CStringU name = info.GetOsName();
    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 200; ++round)
                EXPECT_EQ(info.GetOsName(), name);
        });
    }
}

TEST(TOsInfoTest, TheCpuNameIsAVendorAndAModel) {
    const std::string name = TOsInfo().GetCpuName().Payload();
    EXPECT_GT(name.find(' '), 0u);
    EXPECT_GT(name.size(), name.find(' ') + 1);
}

TEST(TOsInfoTest, AModelIsToldByItsNumbers) {
    EXPECT_EQ(TOsInfo::GetCpuModelName("GenuineIntel", 6, 0, 15, 0), "Core 2 Duo (65nm)");
    EXPECT_EQ(TOsInfo::GetCpuModelName("AuthenticAMD", 6, 0, 15, 0),
              "Family 6, Extendedfamily 0, Model 15, Extendedmodel 0");
    EXPECT_EQ(TOsInfo::GetCpuModelName("AuthenticAMD", 1, 2, 3, 4),
              "Family 1, Extendedfamily 2, Model 3, Extendedmodel 4");
}

TEST(TOsInfoTest, ProcessorCountsFitTheirCode) {
    std::uint32_t logical = 0;
    std::uint32_t cores = 0;
    std::uint32_t packages = 0;
    const int code = TOsInfo().GetProcessorCounts(logical, cores, packages);
    // A container may hide the processors.
    const bool isUnknown = code == 8 && logical == 1 && cores == 1 && packages == 1;
    const int expected = cores == 1 ? (logical > 1 ? 1 : 4) : (logical > cores ? 6 : 5);
    EXPECT_EQ(code, isUnknown ? 8 : expected);
    EXPECT_GE(logical, cores);
    EXPECT_GE(cores, packages);
}

TEST(TOsInfoTest, BitsAreCountedOneByOne) {
    EXPECT_EQ(TOsInfo::CountBits(0), 0);
    EXPECT_EQ(TOsInfo::CountBits(~std::uint64_t{0}), 64);
    for (int bit = 0; bit < 64; ++bit) {
        EXPECT_EQ(TOsInfo::CountBits(std::uint64_t{1} << bit), 1);
        EXPECT_EQ(TOsInfo::CountBits(~(std::uint64_t{1} << bit)), 63);
    }
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 1000; ++round) {
        const std::uint64_t mask = std::uint64_t{random()} << 32U | random();
        int count = 0;
        for (std::uint64_t left = mask; left != 0; left &= left - 1)
            ++count;
        EXPECT_EQ(TOsInfo::CountBits(mask), count) << mask;
    }
}

TEST(TOsInfoTest, TheTimeStampCounterRuns) {
    EXPECT_GT(TOsInfo().GetTscFrequency(), 1e7);
}

}  // namespace
