/// The pointer of a real mouse rests upon something, and that explains itself.

#include <filesystem>

#include "tests/host/DesktopFixture.h"

namespace navigator_test {
namespace {

/// Tells tips, and the places upon which these tests rest.
constexpr char csTipTeller[] = R"tcl(
set ::told {}
navigator onidle {
    set now [dict merge [user state] [user tip]]
    foreach place {{library logic} {library top} {row 1} {control 7843}} {
        dict set now $place [user place {*}$place]
    }
    if {$now ne $::told} { set ::told $now; puts "state $now"; flush stdout }
}
)tcl";

class DesktopTipsTest : public DesktopFixture {
protected:
    void SetUp() override {
        DesktopFixture::SetUp();
        if (IsSkipped()) return;
        m_script = m_home.Write("tips.tcl", csTipTeller);
        m_first->Start(Words());
        ASSERT_TRUE(Awaits("[dict get $s rows] == 45")) << m_first->Errors();
        ASSERT_TRUE(m_first->Focus());
    }
    [[nodiscard]] bool Awaits(const std::string& expression) { return Await(*m_first, expression); }
    /// Comes to a place, and rests there.
    void RestAt(const std::string& part) {
        const QPoint middle = PlaceOf(part).center();
        ASSERT_TRUE(s_desktop->Do(At(middle - QPoint(3, 0)) + At(middle)));
    }
    [[nodiscard]] static std::string PathOf(const char* library) {
        return std::filesystem::canonical(std::filesystem::path(SAMPLE_DESIGN) / library).string();
    }
};

TEST_F(DesktopTipsTest, ALibraryTellsItsPathUntilThePointerLeavesTheLibraries) {
    const auto tells = [this](const std::string& path) {
        return Awaits("[dict get $s tip] eq {" + path + "} && [dict get $s message] eq {" + path + "}");
    };
    RestAt("library logic");
    EXPECT_TRUE(tells(PathOf("logic"))) << m_state;
    RestAt("library top");
    EXPECT_TRUE(tells(PathOf("top"))) << "each library its own: " << m_state;
    RestAt("row 1");
    EXPECT_TRUE(Awaits("[dict get $s tip] eq {} && [dict get $s message] eq {}"))
        << "the timer looks: " << m_state;
}

TEST_F(DesktopTipsTest, AButtonWithAPictureTellsWhatItDoesNow) {
    RestAt("control 7843");
    EXPECT_TRUE(Awaits("[dict get $s tip] eq {Recent filters}")) << m_state;
    Press({QStringLiteral("ctrl+f")});
    Type("inv");
    ASSERT_TRUE(Awaits("[dict get $s filter] eq {inv}"));
    RestAt("row 1");
    RestAt("control 7843");
    EXPECT_TRUE(Awaits("[dict get $s tip] eq {Clear filter}")) << m_state;
}

}  // namespace
}  // namespace navigator_test
