// The list of processors by calls that fail, lie and change their mind.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "platform/win32/ProcessorList.h"

namespace {

using vapp_platform::ReadProcessorList;
using vapp_platform::TProcessorRecord;
using TRecords = std::vector<TProcessorRecord>;

// One call: the bytes that it says, and whether it fails, by which error.
struct TAnswer {
    DWORD bytes = 0;
    DWORD error = 0;
};

// A plain function holds nothing, so that what it gives stands here. Each record's mask is its place.
std::vector<TAnswer> gAnswers;
std::size_t gAsked = 0;

BOOL WINAPI AnswerNext(SYSTEM_LOGICAL_PROCESSOR_INFORMATION* list, DWORD* bytes) {
    const TAnswer answer = gAnswers.at(std::min(gAsked, gAnswers.size() - 1));
    ++gAsked;
    if (answer.error == 0 && list != nullptr) {
        EXPECT_GE(*bytes, answer.bytes);
        for (std::size_t i = 0; i < answer.bytes / sizeof *list; ++i) {
            list[i].ProcessorMask = i + 1;
            list[i].Relationship = RelationProcessorCore;
        }
    }
    *bytes = answer.bytes;
    SetLastError(answer.error);
    return answer.error == 0 ? TRUE : FALSE;
}

std::optional<TRecords> Read(const std::vector<TAnswer>& answers) {
    gAnswers = answers;
    gAsked = 0;
    return ReadProcessorList(AnswerNext);
}

TEST(ProcessorRecordsTest, TheListIsAskedForItsSizeAndThenForItself) {
    EXPECT_EQ(Read({{64, ERROR_INSUFFICIENT_BUFFER}, {64, 0}}), (TRecords{{1, 0}, {2, 0}}));
    EXPECT_EQ(gAsked, 2U);
}

TEST(ProcessorRecordsTest, AListThatHasBecomeShorterHasNoOldRecords) {
    EXPECT_EQ(Read({{96, ERROR_INSUFFICIENT_BUFFER}, {32, 0}}), (TRecords{{1, 0}}));
    EXPECT_EQ(Read({{96, ERROR_INSUFFICIENT_BUFFER}, {0, 0}}), TRecords());
}

TEST(ProcessorRecordsTest, AListThatHasBecomeLongerIsAskedForAgain) {
    EXPECT_EQ(Read({{32, ERROR_INSUFFICIENT_BUFFER}, {64, ERROR_INSUFFICIENT_BUFFER}, {64, 0}}),
              (TRecords{{1, 0}, {2, 0}}));
    EXPECT_EQ(Read({{32, ERROR_INSUFFICIENT_BUFFER}}), std::nullopt) << "and not for ever";
}

TEST(ProcessorRecordsTest, ASizeBetweenTwoRecordsIsRoundedUp) {
    EXPECT_EQ(Read({{40, ERROR_INSUFFICIENT_BUFFER}, {40, 0}}), (TRecords{{1, 0}}));
    EXPECT_EQ(Read({{1, ERROR_INSUFFICIENT_BUFFER}, {1, 0}}), TRecords());
}

TEST(ProcessorRecordsTest, OtherFailuresGiveNoList) {
    EXPECT_EQ(Read({{64, ERROR_ACCESS_DENIED}}), std::nullopt);
    EXPECT_EQ(Read({{64, ERROR_INSUFFICIENT_BUFFER}, {64, ERROR_ACCESS_DENIED}}), std::nullopt);
    EXPECT_EQ(Read({{64, 0}}), std::nullopt) << "a list in no memory";
    EXPECT_EQ(Read({{0, ERROR_INSUFFICIENT_BUFFER}, {0, ERROR_INSUFFICIENT_BUFFER}}), std::nullopt);
}

}  // namespace
