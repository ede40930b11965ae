/// @file
/// Settings that are kept: what comes back in the next run, what a user reads in the file, and what damage
/// does. What real programs do to one another is in SharedSettingsScenarioTest.
#include "vapp/toolkit/qt/QtProfileStore.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QTest>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "tests/qt/KeptValues.h"
#include "tests/qt/SettingsFileFixture.h"
#include "tests/text/HostileText.h"
#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/MemoryProfileStore.h"

using QtProfileStoreTest = SettingsFileFixture;

TEST_F(QtProfileStoreTest, ValuesOfBothKindsComeBackInTheNextRun) {
    kept_values::ExpectBothKindsComeBack([this] { return Open(); });
    EXPECT_TRUE(m_warnings.empty()) << m_warnings.front();
}

TEST_F(QtProfileStoreTest, TheFileIsReadable) {
    {
        const auto store = Open();
        store->WriteInteger("LibraryNavigator", "toolCellsPaneHeight", 345);
        store->WriteText("LibraryNavigator\\Setup1", "Order", "Cell");
    }
    EXPECT_EQ(Bytes(), "[LibraryNavigator]\nSetup1\\Order=Cell\ntoolCellsPaneHeight=345\n");
}

TEST_F(QtProfileStoreTest, WhatWasWrittenIsReadBeforeItIsInTheFile) {
    const auto store = Open();
    store->WriteInteger("s", "k", 1);
    EXPECT_EQ(store->ReadInteger("s", "k"), 1);
    EXPECT_EQ(store->ReadText("s", "k"), std::nullopt);
    EXPECT_TRUE(Bytes().isEmpty());
    store->Flush();
    EXPECT_EQ(Bytes(), "[s]\nk=1\n");
    EXPECT_EQ(store->ReadInteger("s", "k"), 1);
}

TEST_F(QtProfileStoreTest, TheEventLoopWritesWithoutBeingAsked) {
    const auto store = Open();
    store->WriteInteger("s", "k", 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Bytes() == "[s]\nk=1\n"; }, 60'000));
    store->WriteInteger("s", "k", 2);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Bytes() == "[s]\nk=2\n"; }, 60'000));
}

TEST_F(QtProfileStoreTest, ChangesThatFollowOneAnotherAreWrittenTogether) {
    const auto store = Open();
    QElapsedTimer clock;
    clock.start();
    bool isUntouched = true;
    for (int letter = 0; letter < 20; ++letter) {
        store->WriteInteger("s", "k", letter);
        QCoreApplication::processEvents();
        // On a machine that stands still for so long, it may be written in between.
        isUntouched = isUntouched && (Bytes().isEmpty() || clock.elapsed() >= 300);
    }
    EXPECT_TRUE(isUntouched);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Bytes() == "[s]\nk=19\n"; }, 60'000));
}

TEST_F(QtProfileStoreTest, ChangesWithoutAPauseAreWrittenAllTheSame) {
    const auto store = Open();
    int value = 0;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            store->WriteInteger("s", "k", ++value);
            return !Bytes().isEmpty();
        },
        60'000));
}

TEST_F(QtProfileStoreTest, LastWriteOfEitherKindWins) {
    kept_values::ExpectLastKindWins([this] { return Open(); });
}

TEST_F(QtProfileStoreTest, NamesWithMarksOfTheFormatAreNamesAndNothingElse) {
    std::vector<const char*> names = kept_values::OddNames();
    // A name of the format in its own case and in another.
    names.push_back("general");
    kept_values::ExpectNamesStayApart([this] { return Open(); }, names);
    EXPECT_TRUE(m_warnings.empty());
}

TEST_F(QtProfileStoreTest, SectionAndKeyDoNotRunIntoOneAnother) {
    {
        const auto store = Open();
        store->WriteText("a\\b", "c", "1st");
        store->WriteText("a", "b\\c", "2nd");
        store->WriteText("a", "b/c", "3rd");
        store->WriteText("a", "b", "a value where there is a section too");
    }
    const auto store = Open();
    EXPECT_EQ(store->ReadText("a\\b", "c"), CString("1st"));
    EXPECT_EQ(store->ReadText("a", "b\\c"), CString("2nd"));
    EXPECT_EQ(store->ReadText("a", "b/c"), CString("3rd"));
    EXPECT_EQ(store->ReadText("a", "b"), CString("a value where there is a section too"));
}

TEST_F(QtProfileStoreTest, TextsComeBackByteByByte) {
    kept_values::ExpectTextsComeBackByteByByte([this] { return Open(); });
}

TEST_F(QtProfileStoreTest, AnswersAsTheStoreInMemoryDoesOverRestarts) {
    std::mt19937 random = text_test::SeededRandom();
    const auto pick = [&random](const std::vector<const char*>& from) {
        return CString(from[random() % from.size()]);
    };
    const std::vector<const char*> names = {"a",   "a\\b", "b", "a/b",      "",    "a\\",
                                            "\\a", "A",    "%", "\xC3\xA9", "\xC3"};
    const std::vector<const char*> texts = {"",         "x",    "5",  "-5", "a,b", "@x",
                                            "\xC3\xA9", "\xE9", "\n", "\"", "%,;"};
    MemoryProfileStore expected;
    auto store = Open();
    for (int step = 0; step < 600; ++step) {
        const CString section = pick(names);
        const CString key = pick(names);
        if (random() % 2 == 0) {
            const CString text = pick(texts);
            expected.WriteText(section, key, text);
            store->WriteText(section, key, text);
        } else {
            const auto value = static_cast<std::int32_t>(random());
            expected.WriteInteger(section, key, value);
            store->WriteInteger(section, key, value);
        }
        if (random() % 50 == 0) {
            store.reset();
            store = Open();
        }
        for (const char* otherSection : names) {
            const CString otherKey = pick(names);
            ASSERT_EQ(store->ReadText(otherSection, otherKey), expected.ReadText(otherSection, otherKey));
            ASSERT_EQ(store->ReadInteger(otherSection, otherKey),
                      expected.ReadInteger(otherSection, otherKey));
        }
    }
    EXPECT_TRUE(m_warnings.empty());
}

TEST_F(QtProfileStoreTest, WhatAUserTypesIntoTheFileCounts) {
    Write(
        "; a remark\n[LibraryNavigator]\ntoolCellsPaneHeight = 77\nFilterHistory=inv, nand\nShowVias=no\n"
        "Number=12x\nOctal=010\n");
    const auto store = Open();
    EXPECT_EQ(store->ReadInteger("LibraryNavigator", "toolCellsPaneHeight"), 77);
    EXPECT_EQ(store->ReadText("LibraryNavigator", "FilterHistory"), CString("inv, nand"));
    EXPECT_EQ(store->ReadText("LibraryNavigator", "ShowVias"), CString("no"));
    EXPECT_EQ(store->ReadInteger("LibraryNavigator", "Number"), std::nullopt);
    EXPECT_EQ(store->ReadInteger("LibraryNavigator", "Octal"), std::nullopt);
    EXPECT_TRUE(m_warnings.empty());
}

// --- Trouble -------------------------------------------------------------------------------------------

TEST_F(QtProfileStoreTest, DamageIsToldOnceAndTheFileIsKept) {
    const QByteArray damaged =
        "[LibraryNavigator]\ntoolCellsPaneHeight=77\nthis line is broken\n[other]\nk=1\n[rest";
    Write(damaged);
    const auto store = Open();
    ASSERT_EQ(m_warnings.size(), 1u);
    EXPECT_NE(m_warnings[0].find("tool.ini\" are damaged."), std::string::npos) << m_warnings[0];
    EXPECT_NE(m_warnings[0].find("tool.ini.damaged\"."), std::string::npos) << m_warnings[0];
    EXPECT_EQ(store->ReadInteger("LibraryNavigator", "toolCellsPaneHeight"), 77);
    EXPECT_EQ(store->ReadText("LibraryNavigator", "this line is broken"), std::nullopt);
    store->WriteInteger("LibraryNavigator", "new", 5);
    store->Flush();
    EXPECT_EQ(m_warnings.size(), 1u);
    QFile kept(m_file + QStringLiteral(".damaged"));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), damaged);
    m_warnings.clear();
    const auto again = Open();
    EXPECT_TRUE(m_warnings.empty()) << "the writing has mended it";
    EXPECT_EQ(again->ReadInteger("LibraryNavigator", "toolCellsPaneHeight"), 77);
    EXPECT_EQ(again->ReadInteger("LibraryNavigator", "new"), 5);
    EXPECT_EQ(again->ReadInteger("other", "k"), 1) << "nothing of other sections is lost";
}

TEST_F(QtProfileStoreTest, AnOlderCopyGoesOnlyWhenThereIsANewOne) {
    const QString kept = m_file + QStringLiteral(".damaged");
    const auto keptBytes = [&] {
        QFile file(kept);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    Write("[first");
    Open().reset();
    EXPECT_EQ(keptBytes(), "[first");
    // A folder with something in it, in the place of the copy while it is made.
    ASSERT_TRUE(QDir().mkpath(kept + QStringLiteral(".new/inside")));
    m_warnings.clear();
    Write("[second");
    Open().reset();
    ASSERT_EQ(m_warnings.size(), 1u);
    EXPECT_NE(m_warnings[0].find("no copy can be made"), std::string::npos) << m_warnings[0];
    EXPECT_EQ(keptBytes(), "[first");
    ASSERT_TRUE(QDir(kept + QStringLiteral(".new")).removeRecursively());
    Write("[the third");
    Open().reset();
    EXPECT_EQ(keptBytes(), "[the third");
}

TEST_F(QtProfileStoreTest, DamageThatComesLaterIsToldAtTheNextWriting) {
    const auto store = Open();
    store->WriteInteger("s", "k", 1);
    store->Flush();
    Write("[s]\nk=2\nanother program broke this line\n");
    store->WriteInteger("s", "new", 5);
    store->Flush();
    EXPECT_EQ(m_warnings.size(), 1u);
    EXPECT_TRUE(QFile::exists(m_file + QStringLiteral(".damaged")));
    EXPECT_EQ(store->ReadInteger("s", "k"), 2);
}

TEST_F(QtProfileStoreTest, WarningsAreToldWhenNoLockIsHeld) {
    const QString file = m_file;
    int free = 0;
    const auto store =
        QtProfileStore::InFile(CString(QFile::encodeName(file).constData()), [&](const CString&) {
            QLockFile turn(file + QStringLiteral(".turn"));
            if (turn.tryLock(0)) ++free;
        });
    store->WriteInteger("s", "k", 1);
    store->Flush();
    Write("[s]\nk=2\nanother program broke this line\n");
    store->WriteInteger("s", "new", 5);
    store->Flush();
    EXPECT_EQ(free, 1);
}

TEST_F(QtProfileStoreTest, AFileOfAnythingGivesDefaultsAndDoesNotFail) {
    std::mt19937 random = text_test::SeededRandom();
    const std::string marks =
        "[]=\\;%@\"\n\r \x00\xFF"
        "akU0(),";
    for (int round = 0; round < 50; ++round) {
        QByteArray bytes;
        for (std::size_t i = random() % 120; i > 0; --i)
            bytes += marks[random() % marks.size()];
        // A name of its own each time, as QSettings remembers what it has read.
        m_file = m_folder.filePath(QStringLiteral("random%1.ini").arg(round));
        Write(bytes);
        m_warnings.clear();
        const auto store = Open();
        EXPECT_EQ(store->ReadInteger("LibraryNavigator", "toolCellsPaneHeight").value_or(500), 500);
        store->WriteInteger("LibraryNavigator", "toolCellsPaneHeight", 7);
        store->Flush();
        EXPECT_EQ(store->ReadInteger("LibraryNavigator", "toolCellsPaneHeight"), 7);
        EXPECT_LE(m_warnings.size(), 1u);
    }
}

TEST_F(QtProfileStoreTest, AFileThatCannotBeReadIsLeftAlone) {
    // A folder in the file's place: not even a superuser reads it.
    ASSERT_TRUE(QDir().mkpath(m_file + QStringLiteral("/inside")));
    {
        const auto store = Open();
        ASSERT_EQ(m_warnings.size(), 1u);
        EXPECT_NE(m_warnings[0].find("tool.ini\" can't be read."), std::string::npos) << m_warnings[0];
        EXPECT_EQ(store->ReadInteger("s", "k"), std::nullopt);
        store->WriteInteger("s", "k", 1);
        store->Flush();
        EXPECT_EQ(store->ReadInteger("s", "k"), 1) << "known as long as the program runs";
    }
    EXPECT_EQ(m_warnings.size(), 1u);
    EXPECT_TRUE(QDir(m_file + QStringLiteral("/inside")).exists());
}

TEST_F(QtProfileStoreTest, APlaceThatCannotBeWrittenIsToldOnce) {
    Write("a file where a folder is needed");
    m_file += QStringLiteral("/below/tool.ini");
    const auto store = Open();
    EXPECT_TRUE(m_warnings.empty());
    store->WriteInteger("s", "k", 1);
    store->Flush();
    store->WriteInteger("s", "k", 2);
    store->Flush();
    ASSERT_EQ(m_warnings.size(), 1u);
    EXPECT_NE(m_warnings[0].find("can't be saved in"), std::string::npos) << m_warnings[0];
    EXPECT_EQ(store->ReadInteger("s", "k"), 2);
}

TEST_F(QtProfileStoreTest, WorksWithoutAListenerForTrouble) {
    Write("[broken");
    const auto store = QtProfileStore::InFile(CString(m_file.toUtf8().constData()), nullptr);
    EXPECT_EQ(store->ReadInteger("s", "k"), std::nullopt);
}

TEST_F(QtProfileStoreTest, FoldersOnTheWayAreMade) {
    m_file = m_folder.filePath(QStringLiteral("new/folder/tool.ini"));
    Open()->WriteInteger("s", "k", 1);
    EXPECT_EQ(Bytes(), "[s]\nk=1\n");
}

// --- Several programs ----------------------------------------------------------------------------------

TEST_F(QtProfileStoreTest, WhatAnotherProgramWroteStays) {
    const auto store = Open();
    store->WriteInteger("s", "ours", 1);
    store->Flush();
    Write("[s]\nours=1\ntheirs=2\n");
    store->WriteInteger("s", "later", 3);
    store->Flush();
    EXPECT_EQ(Bytes(), "[s]\nlater=3\nours=1\ntheirs=2\n");
    EXPECT_EQ(store->ReadInteger("s", "theirs"), 2) << "seen after an own writing";
}

TEST_F(QtProfileStoreTest, TheTimeOfTheFileGrowsWithEachWriting) {
    const auto store = Open();
    store->WriteInteger("s", "k", 1);
    store->Flush();
    // As if another program, or a clock that was wrong, had written at a later time than it is now.
    const QDateTime later = QDateTime::currentDateTime().addSecs(3600);
    QFile file(m_file);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(later, QFileDevice::FileModificationTime));
    file.close();
    const QDateTime before = QFileInfo(m_file).lastModified();
    store->WriteInteger("s", "k", 2);
    store->Flush();
    EXPECT_EQ(Bytes(), "[s]\nk=2\n");
    EXPECT_GT(QFileInfo(m_file).lastModified(), before) << "others know by it that they must read again";
}

// --- The place of a user's settings --------------------------------------------------------------------

TEST_F(QtProfileStoreTest, AUsersSettingsStandUnderTheNamesOfMakerAndProgram) {
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8());
    QtProfileStore::ForUser("Maker", "tool", nullptr)->WriteInteger("s", "k", 1);
    m_file = m_folder.filePath(QStringLiteral("Maker/tool.ini"));
    EXPECT_EQ(Bytes(), "[s]\nk=1\n");
    EXPECT_EQ(QtProfileStore::ForUser("Maker", "tool", nullptr)->GetPlace(),
              CString(m_file.toUtf8().constData()));
    if (before.isNull()) {
        qunsetenv("XDG_CONFIG_HOME");
    } else {
        qputenv("XDG_CONFIG_HOME", before);
    }
}

TEST_F(QtProfileStoreTest, TheApplicationReadsAndWritesThroughIt) {
    {
        CWinAppEx app("tool");
        app.SetProfileStore(Open());
        app.WriteProfileInt("LibraryNavigator", "toolCellsPaneHeight", 345);
        app.WriteProfileString("LibraryNavigator", "ExcludeViewNames", "ads; ams");
    }
    CWinAppEx app("tool");
    app.SetProfileStore(Open());
    EXPECT_EQ(app.GetProfileInt("LibraryNavigator", "toolCellsPaneHeight", 500), 345);
    EXPECT_EQ(app.GetProfileString("LibraryNavigator", "ExcludeViewNames", "x"), CString("ads; ams"));
    EXPECT_EQ(app.GetProfileInt("LibraryNavigator", "otherCellsPaneHeight", 500), 500);
}
