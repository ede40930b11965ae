/// @file
/// Several real programs with one real file of settings: nobody loses what another has written, and each
/// finds what is its own.
#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QLockFile>
#include <QProcess>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tests/qt/SettingsFileFixture.h"
#include "tests/qt/SettingsKeys.h"

namespace {

constexpr int cnWriters = 3;
constexpr int cnRounds = 40;
constexpr int cnLong = 240000;

/// Another program that uses the same file.
class OtherProgram {
public:
    explicit OtherProgram(const QStringList& words) {
        m_process.start(QStringLiteral(SETTINGS_PROGRAM), words);
        EXPECT_TRUE(m_process.waitForStarted(cnLong));
    }
    /// The next line that it says.
    [[nodiscard]] std::string Line() {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(cnLong)) return "nothing more";
        }
        return m_process.readLine().trimmed().toStdString();
    }
    /// Whether it ends by itself in that many milliseconds.
    [[nodiscard]] bool EndsWithin(int milliseconds) { return m_process.waitForFinished(milliseconds); }
    /// Lets it end, and sees to it that it ended well.
    void End() {
        m_process.closeWriteChannel();
        EXPECT_TRUE(m_process.state() == QProcess::NotRunning || m_process.waitForFinished(cnLong));
        EXPECT_EQ(m_process.exitCode(), 0) << m_process.readAllStandardError().toStdString();
    }

private:
    QProcess m_process;
};

using SharedSettingsScenario = SettingsFileFixture;

}  // namespace

TEST_F(SharedSettingsScenario, ProgramsThatSaveAtTheSameTimeLoseNothing) {
    {
        const auto store = Open();
        for (int writer = 0; writer < cnWriters; ++writer) {
            for (int round = 0; round < cnRounds; ++round)
                store->WriteInteger(csSharedSection, gSharedKey(writer, round), cnNotWritten);
        }
    }
    std::vector<std::unique_ptr<OtherProgram>> programs;
    for (int writer = 0; writer < cnWriters; ++writer) {
        programs.push_back(std::make_unique<OtherProgram>(QStringList{
            QStringLiteral("write"), m_file, QString::number(writer), QString::number(cnRounds)}));
    }
    for (const auto& program : programs)
        program->End();
    const auto store = Open();
    for (int writer = 0; writer < cnWriters; ++writer) {
        for (int round = 0; round < cnRounds; ++round) {
            EXPECT_EQ(store->ReadInteger(csSharedSection, gSharedKey(writer, round)), cnWritten)
                << writer << ' ' << round;
        }
    }
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("tool.ini")})
        << "no lock stays behind";
}

// Only who waits for its turn, and reads then, keeps what is written meanwhile.
TEST_F(SharedSettingsScenario, NobodyWritesOutOfItsTurn) {
    Write("[s]\nasked=1\nours=1\n");
    QLockFile turn(m_file + QStringLiteral(".turn"));
    ASSERT_TRUE(turn.tryLock(0));
    OtherProgram other({QStringLiteral("ask"), m_file});
    ASSERT_EQ(other.Line(), "asks");
    // A turn is waited for five seconds; a program that doesn't wait for it has ended long before.
    QElapsedTimer clock;
    clock.start();
    const bool hasEnded = other.EndsWithin(1000);
    const QByteArray meanwhile = Bytes();
    if (clock.elapsed() > 4000) GTEST_SKIP() << "this machine is too busy to tell";
    EXPECT_FALSE(hasEnded);
    EXPECT_EQ(meanwhile, "[s]\nasked=1\nours=1\n");
    Write("[s]\nasked=1\nours=7\n");
    turn.unlock();
    EXPECT_EQ(other.Line(), "done");
    other.End();
    EXPECT_EQ(Bytes(), "[s]\nasked=2\nours=7\n") << "what was written in the other's turn stays";
}

TEST_F(SharedSettingsScenario, ToolsOfDifferentNamesKeepHeightsOfTheirOwnInOneFile) {
    const auto start = [this](const char* name, const QStringList& heights = {}) {
        return std::make_unique<OtherProgram>(
            QStringList{QStringLiteral("heights"), m_file, QString::fromLatin1(name)} + heights);
    };
    const auto editor = start("editor", {QStringLiteral("150"), QStringLiteral("300")});
    const auto viewer = start("viewer", {QStringLiteral("120"), QStringLiteral("444")});
    EXPECT_EQ(editor->Line(), "heights 200 500 200");
    EXPECT_EQ(viewer->Line(), "heights 200 500 200");
    editor->End();
    viewer->End();
    for (const char* name : {"editor", "viewer", "another"}) {
        const auto again = start(name);
        const std::map<std::string, std::string> expected = {{"editor", "heights 150 300 478"},
                                                             {"viewer", "heights 120 444 364"},
                                                             {"another", "heights 200 500 200"}};
        EXPECT_EQ(again->Line(), expected.at(name)) << name;
        again->End();
    }
}
