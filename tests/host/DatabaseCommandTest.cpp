/// The lines that the navigator sends, and the ones for scripts.

#include "host/DatabaseCommand.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/host/TempFolder.h"
#include "tests/host/TestInterp.h"

namespace navigator {
namespace {

using navigator_test::SchematicOf;
using navigator_test::TempFolder;
using navigator_test::TestInterp;
using navigator_test::Word;
using testing::ElementsAre;
using testing::HasSubstr;

class DatabaseCommandTest : public testing::Test {
protected:
    DatabaseCommandTest() {
        m_folder.Write("d/lib/inv.sym", "K {type=vcell}\n");
        m_folder.Write("d/lib/inv.sch", SchematicOf("absent"));
        m_folder.Write("d/top/chip.sch", SchematicOf("inv"));
        EXPECT_EQ(m_store.OpenFolder(m_folder.Path() / "d"), std::nullopt);
        m_command.SetChangeHandler([this](DatabaseChange change) { m_changes.push_back(change); });
    }

    std::string Info(const std::string& key, const std::string& triple) {
        return m_interp.Answer("database cellviewinfo " + key + " d " + triple + " ");
    }

    TempFolder m_folder;
    TestInterp m_interp;
    DesignStore m_store;
    DatabaseCommand m_command{m_interp.Get(), m_store};
    std::vector<DatabaseChange> m_changes;
};

TEST_F(DatabaseCommandTest, AllLibsNamesDesignsAndPairsOfLibraryAndFolder) {
    m_interp.Answer("set answer [database all_libs]");
    EXPECT_EQ(m_interp.Answer("llength $answer"), "1");
    EXPECT_EQ(m_interp.Answer("lindex $answer 0 0"), "d");
    EXPECT_EQ(m_interp.Answer("llength [lindex $answer 0]"), "3");
    EXPECT_EQ(m_interp.Answer("lindex $answer 0 1"), "lib " + (m_folder.Path() / "d/lib").string());
}

TEST_F(DatabaseCommandTest, AllLibsTellsWholePathsWhateverTheDesignWasOpenedBy) {
    ASSERT_FALSE(m_store.OpenFolder(m_folder.Path() / "d" / ".." / "." / "d"));
    m_interp.Answer("set answer [database all_libs]");
    EXPECT_EQ(m_interp.Answer("lindex $answer 1 1 1"),
              std::filesystem::canonical(m_folder.Path() / "d/lib").string());
}

TEST_F(DatabaseCommandTest, ViewTextAnswersEveryKeyAndRefusesOthers) {
    const auto text = [this](const std::string& key) {
        return m_interp.Answer("database viewtext " + key + " d lib inv schematic");
    };
    EXPECT_EQ(text("state"), "Unresolved, V-Cell");
    EXPECT_EQ(text("type"), "vcell");
    EXPECT_EQ(text("path"), (m_folder.Path() / "d/lib/inv.sch").string());
    EXPECT_EQ(text("bytes"), std::to_string(std::filesystem::file_size(m_folder.Path() / "d/lib/inv.sch")));
    EXPECT_EQ(text("changed").size(), std::string("2019-02-28 17:05").size());
    EXPECT_THAT(text("colour"), HasSubstr("bytes, changed, path, state, or type"));
    EXPECT_EQ(m_interp.Answer("database viewtext state d lib gone schematic"), "");
    EXPECT_EQ(m_interp.Eval("database viewtext state d lib inv"), TCL_ERROR);
}

TEST_F(DatabaseCommandTest, CellViewInfoAnswersEveryKey) {
    const std::pair<const char*, const char*> rows[] = {
        {"is_fab", "0"},           {"is_stdviadef", "0"},    {"is_customviadef", "0"}, {"is_guardring", "0"},
        {"is_vcell", "1"},         {"is_lockedbyuser", "0"}, {"is_modified", "0"},     {"is_reserved", "0"},
        {"is_hiddeninlists", "0"}, {"cache", "Unresolved"}};
    for (const auto& [key, answer] : rows)
        EXPECT_EQ(Info(key, "lib inv schematic"), answer) << key;
    EXPECT_EQ(m_interp.Eval("database cellviewinfo is_nothing d lib inv symbol "), TCL_ERROR);
    EXPECT_EQ(m_interp.Eval("database cellviewinfo is_fab d lib inv "), TCL_ERROR);
}

TEST_F(DatabaseCommandTest, AViewThatIsGoneAnswersNoAndUnresolved) {
    std::filesystem::remove_all(m_folder.Path() / "d/lib");
    EXPECT_EQ(Info("is_vcell", "lib inv symbol"), "0");
    m_interp.Answer("database rescan");
    EXPECT_EQ(Info("is_vcell", "lib inv symbol"), "0");
    EXPECT_EQ(Info("cache", "lib inv symbol"), "Unresolved");
}

TEST_F(DatabaseCommandTest, SetMarksAViewWithAndWithoutADesign) {
    EXPECT_EQ(m_interp.Eval("database set is_modified lib inv symbol yes"), TCL_OK);
    EXPECT_EQ(Info("is_modified", "lib inv symbol"), "1");
    EXPECT_EQ(Info("is_modified", "lib inv schematic"), "0");
    EXPECT_EQ(m_interp.Eval("database set is_modified d lib inv symbol 0"), TCL_OK);
    EXPECT_EQ(Info("is_modified", "lib inv symbol"), "0");
    EXPECT_EQ(m_interp.Eval("database set cache lib inv symbol Reading"), TCL_OK);
    EXPECT_EQ(Info("cache", "lib inv symbol"), "Reading");
    EXPECT_EQ(m_interp.Eval("database set is_modified lib inv symbol maybe"), TCL_ERROR);
    EXPECT_EQ(m_interp.Eval("database set is_modified lib inv"), TCL_ERROR);
    EXPECT_THAT(m_changes,
                ElementsAre(DatabaseChange::CellState, DatabaseChange::CellState, DatabaseChange::CellState));
}

TEST_F(DatabaseCommandTest, TheFilterAnswersWhetherTheListMayHaveChanged) {
    EXPECT_EQ(m_interp.Answer("database filter All"), "1") << "nothing was listed yet";
    m_interp.Answer("database cells -lcv -library d -filter ");
    for (const char* type : {"", "All", "Symbols", "Schematics", "Unresolved", "Modified", "my own"})
        EXPECT_EQ(m_interp.Answer(std::string("database filter ") + type), "0") << type;
    m_interp.Answer("database set is_modified lib inv symbol 1");
    const std::pair<const char*, const char*> rows[] = {{"All", "0"},        {"", "0"},
                                                        {"Symbols", "0"},    {"Schematics", "0"},
                                                        {"Unresolved", "1"}, {"Modified", "1"}};
    for (const auto& [type, answer] : rows)
        EXPECT_EQ(m_interp.Answer(std::string("database filter ") + type), answer) << type;
    m_interp.Answer("database cells -lcv -library d -count");
    EXPECT_EQ(m_interp.Answer("database filter Modified"), "1") << "a count shows no rows";
    m_interp.Answer("database cells -lcv -library d -filter Modified");
    EXPECT_EQ(m_interp.Answer("database filter Modified"), "0");
    m_interp.Answer("database set is_hiddeninlists lib inv symbol 1");
    EXPECT_EQ(m_interp.Answer("database filter All"), "1");
}

TEST_F(DatabaseCommandTest, TheSelectedMasterIsThreeNamesOrNothing) {
    EXPECT_EQ(m_interp.Answer("database selected_master"), "");
    m_interp.Answer("database select lib {a b} symbol");
    EXPECT_THAT(m_interp.List("database selected_master"), ElementsAre("lib", "a b", "symbol"));
    EXPECT_EQ(m_interp.Eval("database select lib"), TCL_ERROR);
    m_interp.Answer("database select");
    EXPECT_EQ(m_interp.Answer("database selected_master"), "");
    EXPECT_THAT(m_changes, ElementsAre(DatabaseChange::SelectedMaster, DatabaseChange::SelectedMaster));
}

TEST_F(DatabaseCommandTest, LibraryInfoAnswersEveryKey) {
    EXPECT_EQ(m_interp.Answer("database libraryinfo is_edit_allowed lib"), "1");
    EXPECT_EQ(m_interp.Answer("database libraryinfo is_unresolved lib"), "0");
    EXPECT_EQ(m_interp.Answer("database libraryinfo allow_space_for_icon lib"), "1");
    EXPECT_EQ(m_interp.Answer("database libraryinfo is_unresolved nowhere"), "1");
    EXPECT_EQ(m_interp.Answer("database libraryinfo is_edit_allowed nowhere"), "0");
    std::filesystem::permissions(m_folder.Path() / "d/lib",
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    EXPECT_EQ(m_interp.Answer("database libraryinfo is_edit_allowed lib"), "0");
    std::filesystem::permissions(m_folder.Path() / "d/lib", std::filesystem::perms::owner_all);
    std::filesystem::remove_all(m_folder.Path() / "d/lib");
    EXPECT_EQ(m_interp.Answer("database libraryinfo is_unresolved lib"), "1");
    EXPECT_EQ(m_interp.Eval("database libraryinfo is_what lib"), TCL_ERROR);
}

TEST_F(DatabaseCommandTest, OpenAddsADesignOrSaysWhyNot) {
    m_folder.Write("e/x/y.sym", "");
    EXPECT_EQ(m_interp.Answer("database open " + Word((m_folder.Path() / "e").string())), "e");
    EXPECT_EQ(m_interp.Eval("database open " + Word((m_folder.Path() / "gone").string())), TCL_ERROR);
    EXPECT_THAT(m_interp.Result(), HasSubstr("Cannot open the folder"));
    EXPECT_EQ(m_interp.Answer("database top_level d"), "top");
    EXPECT_EQ(m_interp.Answer("database top_level e"), "");
    EXPECT_EQ(m_interp.Answer("database top_level nowhere"), "");
}

TEST_F(DatabaseCommandTest, RescanTellsOfChangesOnce) {
    EXPECT_EQ(m_interp.Answer("database rescan"), "0");
    m_folder.Write("d/new/x.sym", "");
    EXPECT_EQ(m_interp.Answer("database rescan"), "1");
    EXPECT_EQ(m_interp.Answer("database rescan"), "0");
    EXPECT_THAT(m_changes, ElementsAre(DatabaseChange::Libraries));
}

TEST_F(DatabaseCommandTest, HostileNamesGoThroughLinesUnharmed) {
    const std::string names[] = {"a b",
                                 "{",
                                 "}",
                                 "\"",
                                 "[error executed]",
                                 "$x",
                                 "line\nbreak",
                                 ";error",
                                 "#",
                                 "-count",
                                 "\\",
                                 "verst\xC3\xA4rker",
                                 std::string(200, 'n')};
    for (const std::string& name : names)
        m_folder.Write("d/odd/" + name + ".sym", "K {type=fab}\n");
    m_store.Rescan();
    for (const std::string& name : names) {
        EXPECT_EQ(Info("is_fab", "odd " + Word(name) + " symbol"), "1") << name;
        m_interp.Answer("database select odd " + Word(name) + " symbol");
        EXPECT_EQ(m_interp.Answer("lindex [database selected_master] 1"), name);
    }
    EXPECT_EQ(m_interp.Answer("llength [database cells -lcv -library d -libraries {odd}]"),
              std::to_string(std::size(names)));
}

TEST_F(DatabaseCommandTest, EverySubCommandIsInTheTableAndTheTableIsPrinted) {
    EXPECT_EQ(m_interp.Eval("database no_such_thing"), TCL_ERROR);
    const std::string known = m_interp.Result();
    const std::string help = m_interp.Answer("database help");
    const char* const sent[] = {"all_libs",     "selected_master", "top_level", "libraryinfo",
                                "cellviewinfo", "cells",           "filter"};
    for (const char* name : sent)
        EXPECT_THAT(help, HasSubstr("database " + std::string(name)));
    for (const CommandHelp& row : DatabaseCommand::Help()) {
        EXPECT_THAT(known, HasSubstr(row.name));
        EXPECT_EQ(std::string(row.usage).rfind("database " + std::string(row.name), 0), 0u) << row.usage;
        EXPECT_THAT(help, HasSubstr(row.usage));
        EXPECT_THAT(help, HasSubstr(row.help));
    }
    EXPECT_EQ(m_interp.Eval("database"), TCL_ERROR);
    EXPECT_EQ(m_interp.Eval("database all_libs more"), TCL_ERROR);
    EXPECT_THAT(m_interp.Result(), HasSubstr("should be \"database all_libs\""));
}

}  // namespace
}  // namespace navigator
