/// @file
/// The setups and options of the cell list in a settings file: written by one run, read by the next, changed
/// by hand and by a newer version in between.
#include <QFile>
#include <QTemporaryDir>
#include <memory>

#include "tests/celllist/CellListFixture.h"
#include "vapp/toolkit/qt/QtProfileStore.h"

namespace {

using namespace vapp_library_browser;

const char* const cnOddCaptions[] = {"a\\b",  "a/b",      "[x]", "a=b;c#d%20",   " blank ",
                                     "\"q\"", "Cell\\..", "",    "M\xC3\xBCller"};

class SetupSettingsScenarioTest : public CellListFixture {
protected:
    SetupSettingsScenarioTest() { OpenStore(); }

    void SetUp() override {
        ShowCells({{"l1", "abc", "sym"}});
        for (const char* caption : cnOddCaptions)
            m_browser.AddCellViewListColumn(CStringU(caption, TextEncoding::Utf8Auto), "state", true, false);
        m_browser.SerializeSetup(false);
    }
    void OpenStore() {
        m_app.SetProfileStore(QtProfileStore::InFile(CString(m_file.toUtf8().constData()),
                                                     [this](const CString& /*sentence*/) { ++m_warnings; }));
    }
    // Ends the store and begins another, as the next run of a program does.
    void NextRun() {
        m_app.SetProfileStore(nullptr);
        OpenStore();
    }
    [[nodiscard]] QByteArray Bytes() const {
        QFile file(m_file);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void Write(const QByteArray& bytes) {
        m_app.SetProfileStore(nullptr);
        {
            QFile file(m_file);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(bytes);
        }
        OpenStore();
    }

    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath(QStringLiteral("tool.ini"));
    int m_warnings = 0;
};

TEST_F(SetupSettingsScenarioTest, TheNextRunFindsEveryColumnWhateverItsCaption) {
    CXTPReportColumns& columns = Report().GetColumns();
    for (int item = 3; item < columns.GetCount(); ++item) {
        columns.Find(item)->SetWidth(100 + item);
        columns.Find(item)->SetVisible(item % 2 == 0);
    }
    columns.ChangeColumnOrder(0, columns.Find(5));
    SetOptions([](auto& options) {
        options.viewFilter = {"sym", CStringIU(CStringU("gr\xC3\xBC", TextEncoding::Utf8Auto))};
        options.showHiddenCells = true;
        options.colorHiddenCells = false;
    });
    m_browser.SerializeSetup(true);
    NextRun();
    // Something else on the screen, which the settings replace.
    SetOptions([](auto& options) { options = {}; });
    for (int item = 3; item < columns.GetCount(); ++item) {
        columns.Find(item)->SetWidth(1);
        columns.Find(item)->SetVisible(true);
    }
    columns.ChangeColumnOrder(5, columns.Find(5));
    m_browser.SerializeSetup(false);
    for (int item = 3; item < columns.GetCount(); ++item) {
        SCOPED_TRACE(columns.Find(item)->GetCaption());
        EXPECT_EQ(columns.Find(item)->GetWidth(), 100 + item);
        EXPECT_EQ(columns.Find(item)->IsVisible(), item % 2 == 0);
    }
    EXPECT_EQ(columns.GetAt(0), columns.Find(5));
    EXPECT_TRUE(Report().GetOptions().showHiddenCells);
    EXPECT_FALSE(Report().GetOptions().colorHiddenCells);
    EXPECT_EQ(Report().GetOptions().viewFilter.size(), 2u);
    EXPECT_EQ(m_warnings, 0);
}

TEST_F(SetupSettingsScenarioTest, WhatOthersKeepInTheFileStays) {
    m_browser.SerializeSetup(true);
    NextRun();
    Write(Bytes() + "\n[SomebodyElse]\nkey=value\n");
    m_app.WriteProfileString("LibraryNavigator", "Flavour", "of a newer version");
    m_app.WriteProfileInt("LibraryNavigator\\Setup9\\Columns\\Cell", "Width", 12);
    Report().SwitchSetup(TReport::Setup2);
    Report().SwitchSetup(TReport::Setup1);
    m_browser.SerializeSetup(true);
    NextRun();
    EXPECT_TRUE(Bytes().contains("[SomebodyElse]"));
    EXPECT_EQ(m_app.GetProfileString("SomebodyElse", "key"), "value");
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "Flavour"), "of a newer version");
    EXPECT_EQ(m_app.GetProfileInt("LibraryNavigator\\Setup9\\Columns\\Cell", "Width", 0), 12);
}

// Each line of the file in turn, twice, is replaced, doubled or cut in half: the kinds of damage take turns
// from line to line. The list starts all the same.
TEST_F(SetupSettingsScenarioTest, ADamagedFileNeverStopsTheList) {
    Report().SwitchSetup(TReport::Setup2);
    m_browser.SerializeSetup(true);
    NextRun();
    const QList<QByteArray> lines = Bytes().split('\n');
    ASSERT_GT(lines.size(), 20);
    using TDamage = QByteArray (*)(const QByteArray& line);
    constexpr TDamage cnDamages[] = {
        [](const QByteArray&) { return QByteArray(); },
        [](const QByteArray&) { return QByteArray("["); },
        [](const QByteArray&) { return QByteArray("="); },
        [](const QByteArray&) { return QByteArray("Order=999999999999"); },
        [](const QByteArray&) { return QByteArray("Width=-5"); },
        [](const QByteArray&) { return QByteArray("\xFF\xFE\x00=x", 5); },
        [](const QByteArray&) { return QByteArray("[LibraryNavigator"); },
        [](const QByteArray& line) { return QByteArray(line + '\n' + line); },
        [](const QByteArray& line) { return line.left(line.size() / 2); },
    };
    const auto kinds = static_cast<qsizetype>(std::size(cnDamages));
    int tries = 0;
    for (const qsizetype first : {0, 4}) {
        for (qsizetype line = 0; line < lines.size(); ++line, ++tries) {
            const qsizetype kind = (line + first) % kinds;
            SCOPED_TRACE(std::to_string(line) + " damage " + std::to_string(kind));
            QList<QByteArray> damaged = lines;
            damaged[line] = cnDamages[kind](lines[line]);
            Write(damaged.join('\n'));
            m_browser.SerializeSetup(false);
            ASSERT_EQ(Report().GetColumns().GetCount(), 12);
            Repopulate();
            ASSERT_EQ(Rows().size(), 1u);
        }
    }
    EXPECT_EQ(tries, 2 * lines.size());
}

}  // namespace
