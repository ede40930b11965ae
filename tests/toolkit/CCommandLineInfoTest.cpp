/// @file
/// Words of a command line, from the application object to the command that they make.
#include "vapp/toolkit/CCommandLineInfo.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "vapp/toolkit/CWinAppEx.h"

namespace {

void Parse(CCommandLineInfo& info, const std::vector<std::string>& words, bool slashIsSwitch = false) {
    CWinAppEx app;
    std::vector<CStringU> arguments;
    for (const std::string& word : words)
        arguments.emplace_back(word.c_str(), TextEncoding::Utf8Auto);
    app.SetArguments(std::move(arguments), slashIsSwitch);
    app.ParseCommandLine(info);
}

}  // namespace

TEST(CCommandLineInfo, TheNumbersOfTheCommandsAreFixed) {
    EXPECT_EQ(CCommandLineInfo::FileNothing, -1);
    EXPECT_EQ(CCommandLineInfo::FileNew, 0);
    EXPECT_EQ(CCommandLineInfo::FileOpen, 1);
    EXPECT_EQ(CCommandLineInfo::AppUnregister, 6);
}

TEST(CCommandLineInfo, WordsMakeTheCommand) {
    const struct {
        std::vector<std::string> words;
        bool slashIsSwitch;
        int command;
        const char* file;
    } rows[] = {
        {{}, false, CCommandLineInfo::FileNew, ""},
        {{"chip"}, false, CCommandLineInfo::FileOpen, "chip"},
        {{"chip", "other"}, false, CCommandLineInfo::FileOpen, "chip"},
        {{"\xC3\xA9 b"}, false, CCommandLineInfo::FileOpen, "\xC3\xA9 b"},
        {{"-unregister"}, false, CCommandLineInfo::AppUnregister, ""},
        {{"--UnRegister"}, false, CCommandLineInfo::AppUnregister, ""},
        {{"-unregister", "chip"}, false, CCommandLineInfo::AppUnregister, "chip"},
        {{"-unregisterx"}, false, CCommandLineInfo::FileNew, ""},
        {{"-foo", "chip", "-bar"}, false, CCommandLineInfo::FileOpen, "chip"},
        {{"/home/chip"}, false, CCommandLineInfo::FileOpen, "/home/chip"},
        {{"/unregister"}, false, CCommandLineInfo::FileOpen, "/unregister"},
        {{"/unregister"}, true, CCommandLineInfo::AppUnregister, ""},
        {{"-"}, false, CCommandLineInfo::FileOpen, "-"},
        {{"--"}, false, CCommandLineInfo::FileOpen, "--"},
        {{"/"}, true, CCommandLineInfo::FileOpen, "/"},
        {{""}, false, CCommandLineInfo::FileNew, ""},
    };
    for (const auto& row : rows) {
        CCommandLineInfo info;
        Parse(info, row.words, row.slashIsSwitch);
        const std::string what = testing::PrintToString(row.words);
        EXPECT_EQ(info.m_nShellCommand, row.command) << what;
        EXPECT_STREQ(info.m_strFileName.Payload(), row.file) << what;
        EXPECT_TRUE(info.m_bShowSplash) << what;
    }
}

TEST(CCommandLineInfo, AHostThatOpensNothingByItselfKeepsThat) {
    CCommandLineInfo info;
    info.m_nShellCommand = CCommandLineInfo::FileNothing;
    Parse(info, {"chip"});
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileNothing);
    EXPECT_EQ(info.m_strFileName, "chip");
}

TEST(CCommandLineInfo, AHostIsToldEachWord) {
    class Words : public CCommandLineInfo {
    public:
        std::string heard;
        void ParseParam(const CStringU& word, bool isSwitch, bool isLast) override {
            heard += std::string(isSwitch ? "switch " : "word ") + word.Payload() + (isLast ? "." : ", ");
        }
    };
    Words words;
    Parse(words, {"-a", "b", "--c", "-d-e"});
    EXPECT_EQ(words.heard, "switch a, word b, switch c, switch d-e.");
}
