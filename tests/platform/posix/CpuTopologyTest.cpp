#include "platform/posix/CpuTopology.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace {

using vapp_platform::CountProcessors;
using vapp_platform::ParseCpuList;
using vapp_platform::ReadCpuTopology;
using vapp_platform::TProcessorCounts;

using TNumbers = std::vector<unsigned>;

TEST(CpuTopologyTest, AListHasNumbersAndRanges) {
    EXPECT_EQ(ParseCpuList("0"), (TNumbers{0}));
    EXPECT_EQ(ParseCpuList("0-3,8"), (TNumbers{0, 1, 2, 3, 8}));
    EXPECT_EQ(ParseCpuList("7,5-5"), (TNumbers{7, 5}));
    EXPECT_EQ(ParseCpuList("0-65535")->size(), 65536u);
}

TEST(CpuTopologyTest, WhatIsNoListIsRefused) {
    for (const char* text : {"", ",", "0,", ",0", "a", "0-", "-1", "3-1", "0 1", "0-1-2", "1x", "65536",
                             "0-4294967295", "4294967296", "0-65535,0-65535"}) {
        EXPECT_EQ(ParseCpuList(text), std::nullopt) << text;
    }
}

// A folder like the kernel's, in a place of the test's own.
class CpuTopologyFolderTest : public testing::Test {
protected:
    CpuTopologyFolderTest() {
        const std::string test = testing::UnitTest::GetInstance()->current_test_info()->name();
        m_folder = std::filesystem::path(testing::TempDir()) / ("vapp-cpus-" + test);
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directories(m_folder);
    }
    ~CpuTopologyFolderTest() override { std::filesystem::remove_all(m_folder); }

    void Write(const std::filesystem::path& name, const std::string& line) {
        std::filesystem::create_directories((m_folder / name).parent_path());
        std::ofstream(m_folder / name) << line << '\n';
    }
    void AddProcessor(unsigned number, const std::string& siblings, const std::string& package) {
        const std::filesystem::path topology =
            std::filesystem::path("cpu" + std::to_string(number)) / "topology";
        Write(topology / "thread_siblings_list", siblings);
        Write(topology / "physical_package_id", package);
    }
    void ExpectCounts(std::uint32_t logical, std::uint32_t cores, std::uint32_t packages, int layout) {
        const TProcessorCounts counts = CountProcessors(ReadCpuTopology(m_folder));
        EXPECT_EQ(counts.logical, logical);
        EXPECT_EQ(counts.cores, cores);
        EXPECT_EQ(counts.packages, packages);
        EXPECT_EQ(static_cast<int>(counts.layout), layout);
    }

    std::filesystem::path m_folder;
};

TEST_F(CpuTopologyFolderTest, TwoPackagesOfThreadedCores) {
    Write("online", "0-7");
    for (unsigned i = 0; i < 4; ++i) {
        const std::string siblings = std::to_string(i) + "," + std::to_string(i + 4);
        AddProcessor(i, siblings, i < 2 ? "0" : "1");
        AddProcessor(i + 4, siblings, i < 2 ? "0" : "1");
    }
    ExpectCounts(8, 4, 2, 6);
}

TEST_F(CpuTopologyFolderTest, ProcessorsThatAreSwitchedOffDoNotCount) {
    Write("online", "0,2");
    // The kernel takes the folder of a processor that is off away, or leaves it with old lists.
    AddProcessor(0, "0-1", "0");
    AddProcessor(1, "0-1", "0");
    AddProcessor(2, "2", "0");
    ExpectCounts(2, 2, 1, 5);
}

TEST_F(CpuTopologyFolderTest, OneCoreWithOneProcessor) {
    Write("online", "0");
    AddProcessor(0, "0", "0");
    ExpectCounts(1, 1, 1, 4);
}

TEST_F(CpuTopologyFolderTest, OneCoreWithTwoProcessors) {
    Write("online", "0-1");
    AddProcessor(0, "0-1", "0");
    AddProcessor(1, "0-1", "0");
    ExpectCounts(2, 1, 1, 1);
}

TEST_F(CpuTopologyFolderTest, MoreThan64ProcessorsAreAllCounted) {
    Write("online", "0-79");
    for (unsigned i = 0; i < 80; ++i)
        AddProcessor(i, std::to_string(i), std::to_string(i / 40));
    ExpectCounts(80, 80, 2, 5);
}

TEST_F(CpuTopologyFolderTest, WhatCannotBeReadGivesNothing) {
    EXPECT_EQ(ReadCpuTopology(m_folder), std::nullopt);
    Write("online", "nonsense");
    EXPECT_EQ(ReadCpuTopology(m_folder), std::nullopt);
    Write("online", "0-1");
    AddProcessor(0, "0", "0");
    EXPECT_EQ(ReadCpuTopology(m_folder), std::nullopt);
    AddProcessor(1, "1", "");
    EXPECT_EQ(ReadCpuTopology(m_folder), std::nullopt);
    EXPECT_EQ(ReadCpuTopology(m_folder / "missing"), std::nullopt);
    AddProcessor(1, "1", "0");
    EXPECT_TRUE(ReadCpuTopology(m_folder).has_value());
}

}  // namespace
