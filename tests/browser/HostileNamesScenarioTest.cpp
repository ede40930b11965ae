/// @file
/// Names that are scripts, through every place of the navigator that puts names into lines, with the hook
/// that makes a word of each: none of them runs, and each arrives as it was told.
///
/// Not here: the editor mode, whose lines take library names bare.
#include <gtest/gtest.h>
#include <tcl.h>

#include "tests/browser/NavigatorFixture.h"
#include "vapp/browser/TTclList.h"
#include "vapp/browser/TclBridge.h"

using namespace vapp_library_browser;

class HostileNames : public NavigatorFixture {
protected:
    HostileNames() {
        m_host.AddCommand("column");
        m_host.AnswerStart("column", "text");
        m_host.AnswerStart("database top_level", "other");
        m_host.AnswerStart("database cellviewinfo", "0");
    }
    /// A host whose design, library, cell and view all have this name.
    void AnswerWith(const std::string& name) {
        const std::string libraries = RecordingHost::List(
            {name, RecordingHost::List({name, "/p"}), RecordingHost::List({"other", "/o"})});
        m_host.Answer("database all_libs", RecordingHost::List({libraries}));
        const std::string cells = RecordingHost::List({RecordingHost::List({name, name, name})});
        m_host.HandleStart("database cells", [this, cells](Tcl_Interp* interp) {
            const bool count = m_host.Lines().back().find(" -count") != std::string::npos;
            Tcl_SetObjResult(interp, Tcl_NewStringObj(count ? "1" : cells.c_str(), -1));
            return TCL_OK;
        });
    }
    /// Refreshes, paints and selects all there is.
    void UseEverything(const std::string& name) {
        Refresh();
        const CStringU library(name.c_str(), TextEncoding::Utf8Auto);
        m_browser.SelectInLibraryList(library);
        m_browser.Populate();
        auto& list = Libraries().GetLibraryListCtrl();
        for (int row = 0; row < list.GetItemCount(); ++row)
            static_cast<void>(list.DrawItem(row));
        auto& report = Cells().GetReport();
        for (int column = 0; column < report.GetColumns().GetCount(); ++column) {
            CXTPReportRecordItemMetrics metrics;
            report.MeasureItem(0, *report.GetColumns().GetAt(column), metrics);
        }
        report.ClickedByUser(0, {});
        Preview().DisplayNewPreview();
    }
    /// The words of the last line that begins so, as Tcl takes it apart.
    [[nodiscard]] std::vector<std::string> WordsOf(const char* start) const {
        const std::vector<std::string> lines = m_host.LinesStarting(start);
        std::vector<std::string> words;
        if (lines.empty()) return words;
        const TTclObject line(Tcl_NewStringObj(lines.back().c_str(), -1));
        if (const auto list = TTclList::Read(line.Get())) {
            for (Tcl_Obj* word : *list)
                words.emplace_back(ReadBytes(word));
        }
        return words;
    }
};

TEST_F(HostileNames, WithAHookNoneRunsAndEachArrives) {
    const HookGuard hook;
    Initialize();
    m_browser.AddCellViewListColumn("Column", "column", true, false);
    for (const std::string& name : std::vector<std::string>{
             "[set ::ran 1]", "a[set ::ran 1]b", "$x", "$::env(PATH)", "{", "}", "{}", "}{", "\"",
             "\"[set ::ran 1]\"", "}[set ::ran 1]{", "a\nset ::ran 1\n", ";set ::ran 1;", "\\[set ::ran 1]",
             "\\", "a\\\nb", "two words", "#", "{*}[set ::ran 1]", "caf\xC3\xA9 [set ::ran 1]",
             // No text at all, and far longer than any name.
             "a\xFF[set ::ran 1]", "cut off \xE4\xB8", std::string(10000, 'n') + " [set ::ran 1]"}) {
        SCOPED_TRACE(name.substr(0, 100));
        AnswerWith(name);
        m_host.ClearLines();
        UseEverything(name);
        EXPECT_EQ(m_host.Eval("info exists ::ran"), "0");
        EXPECT_EQ(Selected(), std::vector<std::string>{name});

        const auto top = WordsOf("database top_level ");
        ASSERT_EQ(top.size(), 3u);
        EXPECT_EQ(top[2], name);
        const auto cells = WordsOf("database cells ");
        ASSERT_GE(cells.size(), 5u);
        EXPECT_EQ(cells[4], name);
        const std::string selected =
            " -libraries {" +
            std::string(RecordingHost::Brace({name.c_str(), TextEncoding::Utf8Auto}).PayloadView()) + "}";
        EXPECT_NE(m_host.LinesStarting("database cells ").back().find(selected), std::string::npos);
        const auto preview = WordsOf("librarynavigator preview set ");
        ASSERT_EQ(preview.size(), 15u);
        for (const std::size_t word : {4u, 6u, 8u, 10u})
            EXPECT_EQ(preview[word], name);
        const auto column = WordsOf("column ");
        ASSERT_EQ(column.size(), 5u);
        EXPECT_EQ(column, (std::vector<std::string>{"column", name, name, name, name}));
        EXPECT_FALSE(m_host.LinesStarting("database cellviewinfo ").empty());
        m_host.Eval("unset -nocomplain ::ran");
    }
}

TEST_F(HostileNames, WithoutAHookTheyRunAsTheHostMustKnow) {
    Initialize();
    AnswerWith("[set ::ran 1]");
    UseEverything("[set ::ran 1]");
    EXPECT_EQ(m_host.Eval("info exists ::ran"), "1");
}
