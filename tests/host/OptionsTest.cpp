/// The command line: every option, every complaint.

#include "host/Options.h"

#include <gtest/gtest.h>

namespace navigator {
namespace {

std::optional<std::string> Parse(std::vector<std::string> words, Options& options) {
    return gParseOptions(words, options);
}

TEST(Options, ReadsFoldersAndEveryOption) {
    Options options;
    EXPECT_EQ(Parse({"one", "--script", "s.tcl", "--dump", "--screenshot=p.png", "--size", "640x480",
                     "--scale", "2", "--dark", "--instances", "3", "--no-splash", "--scripts", "folder",
                     "two words", "--", "--three"},
                    options),
              std::nullopt);
    EXPECT_EQ(options.folders, (std::vector<std::string>{"one", "two words", "--three"}));
    EXPECT_EQ(options.script, "s.tcl");
    EXPECT_EQ(options.scripts, "folder");
    EXPECT_EQ(options.screenshot, "p.png");
    EXPECT_TRUE(options.isDump);
    EXPECT_TRUE(options.isDark);
    EXPECT_EQ(options.width, 640);
    EXPECT_EQ(options.height, 480);
    EXPECT_EQ(options.scale, 2);
    EXPECT_EQ(options.instances, 3u);
    EXPECT_TRUE(options.isWithoutSplash);
    EXPECT_EQ(Parse({"--version", "--help"}, options), std::nullopt);
    EXPECT_TRUE(options.isVersion);
    EXPECT_TRUE(options.isHelp);
}

TEST(Options, SaysInASentenceWhatIsWrong) {
    const std::pair<std::vector<std::string>, std::string> rows[] = {
        {{"--frobnicate"}, "Unknown option \"--frobnicate\". Try --help."},
        {{"-x"}, "Unknown option \"-x\". Try --help."},
        {{"--script"}, "The option --script needs a value: FILE."},
        {{"--screenshot="}, "The option --screenshot needs a value: FILE."},
        {{"--dump=yes"}, "The option --dump takes no value."},
        {{"--size", "big"},
         "The size \"big\" is not WIDTHxHEIGHT with sides from 50 to 16384, as in 900x700."},
        {{"--size", "10x99999999999"},
         "The size \"10x99999999999\" is not WIDTHxHEIGHT with sides from 50 to 16384, as in 900x700."},
        {{"--scale", "nan"}, "The scale \"nan\" is not a number from 0.5 to 8."},
        {{"--instances", "-1"}, "The number of instances \"-1\" is not a whole number from 0 on."},
        {{"--instances", "two"}, "The number of instances \"two\" is not a whole number from 0 on."},
        {{"--scale", "2x"}, "The scale \"2x\" is not a number from 0.5 to 8."},
    };
    for (const auto& [words, sentence] : rows) {
        Options options;
        EXPECT_EQ(Parse(words, options), sentence);
    }
}

TEST(Options, TheHelpNamesEveryOptionThatIsUnderstood) {
    const std::string usage = gUsageText();
    for (const char* name : {"--script FILE", "--dump", "--screenshot FILE", "--size WxH", "--scale N",
                             "--dark", "--instances N", "--no-splash", "--version", "--help"})
        EXPECT_NE(usage.find(name), std::string::npos) << name;
}

}  // namespace
}  // namespace navigator
