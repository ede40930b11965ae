/// @file
/// The example host of the documentation, taken from its text: it must fill the panes.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tests/browser/NavigatorFixture.h"

using namespace vapp_library_browser;

namespace {

/// The first block of Tcl in the document.
std::string ExampleScript() {
    std::ifstream in(VAPP_DOCS_FOLDER "/tcl-protocol.md");
    std::ostringstream text;
    text << in.rdbuf();
    const std::string document = text.str();
    const std::string fence = "```tcl\n";
    const std::size_t begin = document.find(fence);
    if (begin == std::string::npos) return "";
    const std::size_t end = document.find("```", begin + fence.size());
    return document.substr(begin + fence.size(), end - begin - fence.size());
}

}  // namespace

class DocumentedHost : public NavigatorFixture {};

TEST_F(DocumentedHost, FillsThePanes) {
    const std::string script = ExampleScript();
    ASSERT_FALSE(script.empty());
    for (const char* command : {"database", "librarynavigator", "logaction"}) {
        m_host.Eval(std::string("rename ") + command + " {}");
    }
    EXPECT_EQ(m_host.Eval(script), "");
    const HookGuard hook;
    Initialize();
    m_browser.Populate();
    EXPECT_EQ(Shown(), (std::vector<std::string>{"io", "std"}));
    EXPECT_EQ(m_browser.GetCellViewCount(), 6u);
    Select("io");
    m_browser.Populate();
    EXPECT_EQ(m_browser.GetCellViewCount(), 2u);
    EXPECT_EQ(Libraries().GetLibraryListCtrl().DrawItem(1).textColor, cnNoColor) << "std is the top library";
    EXPECT_FALSE(Libraries().NeedsPopulate());
}
