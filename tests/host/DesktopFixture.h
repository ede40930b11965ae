#pragma once
/// The program on a desktop of its own, telling what is seen of it, and a user with mouse and keys.

#include <gtest/gtest.h>

#include <QRect>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "tests/host/Desktop.h"
#include "tests/host/TempFolder.h"
#include "tests/host/TestInterp.h"

namespace navigator_test {

/// Tells what is seen whenever it has changed, with the places that the tests point at.
inline constexpr char csTeller[] = R"tcl(
set ::told {}
set ::typed {}
navigator onidle {
    set now [user state]
    foreach place {{library logic} {library top} {library {my parts}} {header View} {bar 0} {bar 1}
                   {row 0} {row 1} {row 2} {pane 2} {control 7718}} {
        dict set now $place [user place {*}$place]
    }
    dict set now typed $::typed
    dict set now menu [user menu]
    if {$now ne $::told} { set ::told $now; puts "state $now"; flush stdout }
}
)tcl";

class DesktopFixture : public testing::Test {
protected:
    static void SetUpTestSuite() { s_desktop = std::make_unique<Desktop>(); }
    static void TearDownTestSuite() { s_desktop.reset(); }

    void SetUp() override {
        if (!s_desktop->WhyNot().empty()) GTEST_SKIP() << s_desktop->WhyNot();
        m_script = m_home.Write("teller.tcl", csTeller);
        m_first = NewProgram();
    }

    [[nodiscard]] std::unique_ptr<DesktopProgram> NewProgram() {
        return std::make_unique<DesktopProgram>(*s_desktop, m_home.Path());
    }
    QStringList Words(QStringList more = {}) {
        return QStringList{QStringLiteral("--script"), QString::fromStdString(m_script.string()),
                           QStringLiteral(SAMPLE_DESIGN)} +
               more;
    }
    /// What a state says under a key; as Tcl writes it.
    std::string Of(const std::string& key) {
        return m_interp.Answer("dict get " + Word(m_state) + " " + Word(key));
    }
    [[nodiscard]] QRect PlaceOf(const std::string& part) {
        const std::vector<std::string> numbers =
            m_interp.List("dict get " + Word(m_state) + " " + Word(part));
        if (numbers.size() != 4) return {};
        return {std::stoi(numbers[0]), std::stoi(numbers[1]), std::stoi(numbers[2]), std::stoi(numbers[3])};
    }
    /// Waits until the program tells a state in which this Tcl expression over the dictionary `s` is true.
    [[nodiscard]] bool Await(DesktopProgram& program, const std::string& expression) {
        const auto told = program.WaitFor(QStringLiteral("state"), [&](const QString& state) {
            return m_interp.Answer("set s " + Word(state.toStdString()) + "; expr {" + expression +
                                   " ? {yes} : {no}}") == "yes";
        });
        if (told) m_state = told->toStdString();
        return told.has_value();
    }
    /// Waits until an item of a menu of the first program is seen, and gives the middle of it.
    QPoint Item(const std::string& text) { return ItemOf(*m_first, text); }
    QPoint ItemOf(DesktopProgram& program, const std::string& text) {
        const std::string find = "[lsearch -index 1 -inline [dict get $s menu] " + Word(text) + "]";
        EXPECT_TRUE(Await(program, find + " ne {}")) << text << ": " << Of("menu");
        const std::vector<std::string> place =
            m_interp.List("set s " + Word(m_state) + "; dict get " + find + " place");
        if (place.size() != 4) return {};
        return QRect(std::stoi(place[0]), std::stoi(place[1]), std::stoi(place[2]), std::stoi(place[3]))
            .center();
    }
    [[nodiscard]] static QStringList At(QPoint point) {
        return {QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())};
    }
    static void Click(QPoint point) {
        ASSERT_TRUE(s_desktop->Do(At(point) + QStringList{QStringLiteral("click"), QStringLiteral("1")}));
    }
    static void RightClick(QPoint point) {
        ASSERT_TRUE(s_desktop->Do(At(point) + QStringList{QStringLiteral("click"), QStringLiteral("3")}));
    }
    static void DoubleClick(QPoint point) {
        ASSERT_TRUE(s_desktop->Do(At(point) + QStringList{QStringLiteral("click"), QStringLiteral("--repeat"),
                                                          QStringLiteral("2"), QStringLiteral("1")}));
    }
    static void Drag(QPoint from, int down) {
        ASSERT_TRUE(s_desktop->Do(At(from) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")} +
                                  At(from + QPoint(0, down / 2)) + At(from + QPoint(0, down)) +
                                  QStringList{QStringLiteral("mouseup"), QStringLiteral("1")}));
    }
    static void Press(const QStringList& keys) {
        ASSERT_TRUE(s_desktop->Do(QStringList{QStringLiteral("key")} + keys));
    }
    static void Type(const char* text) {
        ASSERT_TRUE(s_desktop->Do({QStringLiteral("type"), QLatin1String(text)}));
    }

    static inline std::unique_ptr<Desktop> s_desktop;
    TempFolder m_home;
    std::filesystem::path m_script;
    std::unique_ptr<DesktopProgram> m_first;
    TestInterp m_interp;
    std::string m_state;
};

}  // namespace navigator_test
