/// @file
/// The other programs of the tests of settings: each is a tool of its own that shares a file with others.
///
///     settings_program write FILE WRITER ROUNDS     writes its keys one by one, each of them at once
///     settings_program ask FILE                     says that it is about to write, writes one key, and says
///     so settings_program heights FILE NAME [H1 H2]    a tool NAME with a navigator: says the heights of its
///                                                   panes, sets the first two, and saves them when it ends,
///                                                   which it does when its standard input does
///
/// What it says goes to standard output, a line at a time; trouble with the settings ends it with the
/// status 1.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "tests/qt/SettingsKeys.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/qt/QtProfileStore.h"

namespace {

using Words = std::vector<std::string>;

void Say(const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
}

[[noreturn]] void Fail(const std::string& sentence) {
    std::fprintf(stderr, "%s\n", sentence.c_str());
    std::exit(EXIT_FAILURE);
}

std::unique_ptr<QtProfileStore> Open(const std::string& file) {
    return QtProfileStore::InFile(file.c_str(), [](const CString& sentence) { Fail(sentence.GetString()); });
}

// The value keeps its length, so that the size of the file tells nobody of a change.
int WriteKeys(const Words& words) {
    const auto store = Open(words.at(0));
    const int writer = std::stoi(words.at(1));
    const int rounds = std::stoi(words.at(2));
    for (int round = 0; round < rounds; ++round) {
        store->WriteInteger(csSharedSection, gSharedKey(writer, round), cnWritten);
        store->Flush();
    }
    return EXIT_SUCCESS;
}

int AskForATurn(const Words& words) {
    const auto store = Open(words.at(0));
    store->WriteInteger(csSharedSection, "asked", cnWritten);
    Say("asks");
    store->Flush();
    Say("done");
    return EXIT_SUCCESS;
}

int KeepHeights(const Words& words) {
    CWinAppEx app(words.at(1).c_str());
    app.SetProfileStore(Open(words.at(0)));
    CFrameWnd frame;
    frame.CreateFrame("a tool", {0, 0, 400, 940});
    app.SetMainWnd(&frame);
    vapp_library_browser::TLibraryBrowser browser;
    if (!browser.Initialize(&frame, nullptr, nullptr)) Fail("no navigator");
    std::string heights = "heights";
    for (int row = 0; row < browser.GetRowCount(); ++row)
        heights += ' ' + std::to_string(browser.GetRowHeight(row));
    for (std::size_t word = 2; word < words.size(); ++word)
        browser.SetRowHeight(static_cast<int>(word - 2), std::stoi(words[word]));
    Say(heights);
    while (std::fgetc(stdin) != EOF) {
    }
    return EXIT_SUCCESS;
}

}  // namespace

int main(int count, char** arguments) {
    const std::string role = count > 1 ? arguments[1] : "";
    const Words words(arguments + std::min(count, 2), arguments + count);
    if (role == "write") return WriteKeys(words);
    if (role == "ask") return AskForATurn(words);
    if (role == "heights") return KeepHeights(words);
    Fail("no such role");
}
