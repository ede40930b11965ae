/// @file
/// `connect` with workers on this machine.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "tests/examples/ConnectRun.h"

namespace {

using example_test::Connect;
using example_test::TRun;
using example_test::WorkerProgram;

struct ConnectTest : testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Transports, ConnectTest, testing::Values("--pipe", "--tcp"),
                         [](const auto& row) { return std::string(row.param + 2); });

TEST_P(ConnectTest, PassesInputAndOutputThrough) {
    const TRun run = Connect({GetParam(), "--", WorkerProgram()}, "hello\ntransport\nquit\n");
    EXPECT_EQ(run.m_result, 0);
    EXPECT_TRUE(run.Has("heard hello\n")) << run.m_said;
    EXPECT_TRUE(run.Has(std::string(GetParam() + 2) + "\n")) << run.m_said;
    EXPECT_TRUE(run.Has("the worker has ended the connection\n")) << run.m_said;
}

TEST_P(ConnectTest, ShowsTheCommandLineThatItStarts) {
    const TRun run =
        Connect({GetParam(), "--keyword", "K Y", "--", WorkerProgram(), "--keyword", "K Y"}, "quit\n");
    EXPECT_EQ(run.m_result, 0);
    EXPECT_TRUE(run.Has(" --keyword \"K Y\"\n")) << run.m_said;
}

TEST_P(ConnectTest, ABigAnswerComesWholeAlsoWhenTheInputHasEnded) {
    std::string input;
    for (int line = 0; line < 5000; ++line)
        input += std::string(100, 'x') + "\n";
    const TRun run = Connect({GetParam(), "--", WorkerProgram()}, input);
    EXPECT_EQ(run.m_result, 0);
    std::size_t lines = 0;
    for (std::size_t at = run.m_said.find("heard x"); at != std::string::npos;
         at = run.m_said.find("heard x", at + 1))
        ++lines;
    EXPECT_EQ(lines, 5000U);
    EXPECT_TRUE(run.Has("the input has ended and the worker is silent\n"));
}

TEST_P(ConnectTest, ACommandThatDoesNotStartIsToldWithAdvice) {
    const TRun run = Connect({GetParam(), "--", "vapp-no-such-program"});
    EXPECT_EQ(run.m_result, 1);
    EXPECT_TRUE(run.Has("connect: The command could not be started.\nconnect: try this: ")) << run.m_said;
}

TEST_P(ConnectTest, AWrongKeywordIsToldWithAdvice) {
    // As long as the one that is expected, so that nothing has to be waited for.
    const TRun run = Connect({GetParam(), "--", WorkerProgram(), "--keyword", "NOT_THE_WORD"});
    EXPECT_EQ(run.m_result, 1);
    EXPECT_TRUE(run.Has("connect: Something else came where the worker's keyword was expected.\n"))
        << run.m_said;
    EXPECT_TRUE(run.Has("connect: try this: give the right one by --keyword")) << run.m_said;
}

TEST(ConnectPipeTest, WhatCameInPlaceOfTheKeywordIsShown) {
    const TRun run =
        Connect({"--pipe", "--", WorkerProgram(), "--keyword", "Who goes there?", "--noise", "Welcome. "});
    EXPECT_EQ(run.m_result, 1);
    EXPECT_TRUE(run.Has("  | Welcome. Who goes there?\n")) << run.m_said;
}

TEST(ConnectPipeTest, AWorkerThatEndsAtOnceIsTold) {
    const TRun run = Connect({"--pipe", "--", WorkerProgram(), "--no-such-option"});
    EXPECT_EQ(run.m_result, 1);
    EXPECT_TRUE(run.Has("connect: The worker ended without a word.\n")) << run.m_said;
}

TEST(ConnectArgumentsTest, WhatMeansNothingIsToldAndEndsWith2) {
    const std::vector<std::vector<std::string>> rows = {
        {},
        {"--pipe"},
        {"--pipe", "--"},
        {"--pipe", "--tcp", "--", "x"},
        {"--pipe", "x"},
        {"--pipe", "--keyword"},
        {"--pipe", "--deploy", "--", "x"},
        {"--pipe", "--remote", "", "--", "x"},
        {"--check"},
        {"--check", "me@there", "--pipe"},
        {"--check", "me@there", "--deploy"},
    };
    for (const std::vector<std::string>& arguments : rows) {
        const TRun run = Connect(arguments);
        EXPECT_EQ(run.m_result, 2) << testing::PrintToString(arguments);
        EXPECT_TRUE(run.Has("see connect --help\n")) << run.m_said;
    }
}

TEST(ConnectArgumentsTest, HelpTellsEveryOption) {
    const TRun run = Connect({"--help"});
    EXPECT_EQ(run.m_result, 0);
    for (const char* option : {"--tcp", "--pipe", "--remote", "--keyword", "--deploy", "--check"})
        EXPECT_TRUE(run.Has(option)) << option;
}

}  // namespace
