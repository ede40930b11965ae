#include "platform/SystemFolders.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

#include "platform/Folders.h"
#include "platform/KnownFolders.h"
#include "platform/Paths.h"
#include "platform/World.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

using platform_test::TTemporaryFolder;
namespace fs = std::filesystem;

// A variable of the environment, set or not, until the end of a test.
class TVariable {
public:
    TVariable(const char* name, const std::optional<std::string>& value) : m_name(name) {
        if (const char* old = std::getenv(name)) m_old = old;
        Set(value);
    }
    ~TVariable() { Set(m_old); }
    TVariable(const TVariable&) = delete;
    TVariable& operator=(const TVariable&) = delete;

private:
    void Set(const std::optional<std::string>& value) {
        if (value) {
            setenv(m_name, value->c_str(), 1);
        } else {
            unsetenv(m_name);
        }
    }
    const char* m_name;
    std::optional<std::string> m_old;
};

struct SystemFoldersTest : testing::Test {
    TTemporaryFolder folder;
    TVariable home{"HOME", folder.Native().string()};
    TVariable config{"XDG_CONFIG_HOME", std::nullopt};
    TVariable data{"XDG_DATA_HOME", std::nullopt};
};

TEST_F(SystemFoldersTest, DocumentsLieWhereTheDesktopSays) {
    folder.MakeFolder(".config").MakeFile(".config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/My docs\"\n");
    EXPECT_EQ(gGetDocumentsFolder(), folder.Path("My docs"));
    EXPECT_TRUE(gDirectoryExists(folder.Path("My docs"))) << "it is made";
}

TEST_F(SystemFoldersTest, TheDesktopsSettingsLieInTheConfigurationFolder) {
    folder.MakeFolder("c").MakeFile("c/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/D\xC3\xB6k/a\"\n");
    const TVariable elsewhere("XDG_CONFIG_HOME", folder.Native("c").string());
    EXPECT_EQ(gGetDocumentsFolder(), folder.Path("D\xC3\xB6k/a"));
}

TEST_F(SystemFoldersTest, WithoutAWordOfTheDesktopDocumentsLieInTheHomeFolder) {
    EXPECT_EQ(gGetDocumentsFolder(), folder.Path());
}

TEST_F(SystemFoldersTest, ADocumentsFolderThatCanNotBeMadeIsNone) {
    folder.MakeFile("file").MakeFolder(".config");
    folder.MakeFile(".config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/file/docs\"\n");
    EXPECT_EQ(gGetDocumentsFolder(), CStringU());
}

TEST_F(SystemFoldersTest, DataLiesBelowTheDataFolderForThisUserAlone) {
    EXPECT_EQ(gGetUserDataFolder(), folder.Path(".local/share/Vornex_EDA"));
    EXPECT_FALSE(gDirectoryExists(gGetUserDataFolder())) << "only the folder around it is made";
    EXPECT_EQ(fs::status(folder.Native(".local/share")).permissions(), fs::perms::owner_all);
    const TVariable elsewhere("XDG_DATA_HOME", folder.Native("data").string());
    EXPECT_EQ(gGetUserDataFolder(), folder.Path("data/Vornex_EDA"));
}

TEST_F(SystemFoldersTest, ADataFolderThatCanNotBeMadeIsNone) {
    folder.MakeFile("file");
    const TVariable elsewhere("XDG_DATA_HOME", folder.Native("file/data").string());
    EXPECT_EQ(gGetUserDataFolder(), CStringU());
}

// As they come of a home folder of "/": they would make a share of the path.
TEST_F(SystemFoldersTest, SeveralSlashesInFrontAreOne) {
    const TVariable elsewhere("XDG_DATA_HOME", "//" + folder.Native("data").string());
    EXPECT_EQ(gGetUserDataFolder(), folder.Path("data/Vornex_EDA"));
    folder.MakeFolder(".config");
    folder.MakeFile(".config/user-dirs.dirs",
                    "XDG_DOCUMENTS_DIR=\"//" + folder.Native("docs").string() + "\"\n");
    EXPECT_EQ(gGetDocumentsFolder(), folder.Path("docs"));
    const TVariable root("HOME", "///");
    const TVariable none("XDG_CONFIG_HOME", folder.Native("none").string());
    EXPECT_EQ(gGetDocumentsFolder(), "/");
}

TEST_F(SystemFoldersTest, HomeFoldersOfAnyBytesAreFound) {
    const TVariable odd("HOME", folder.Native().string() + "/h\xE9\xC3\xA9");
    EXPECT_TRUE(gDirectoryExists(gGetDocumentsFolder())) << "it is made";
    EXPECT_TRUE(fs::is_directory(folder.Native().string() + "/h\xE9\xC3\xA9"));
    EXPECT_TRUE(gDirectoryExists(gGetDirectory(gGetUserDataFolder())));
    EXPECT_TRUE(fs::is_directory(folder.Native().string() + "/h\xE9\xC3\xA9/.local/share"));
}

TEST_F(SystemFoldersTest, TheSuitesFolderHasABlankWhereThereIsNoUnixSide) {
    vapp_platform::SetWineAnswer(false);
    EXPECT_TRUE(gGetUserDataFolder().EndsWith("\\Vornex EDA"));
    vapp_platform::SetWineAnswer(std::nullopt);
}

TEST_F(SystemFoldersTest, RelativePathsInVariablesAreIgnored) {
    const TVariable relative("XDG_DATA_HOME", "data");
    EXPECT_EQ(gGetUserDataFolder(), folder.Path(".local/share/Vornex_EDA"));
}

TEST_F(SystemFoldersTest, WithoutAHomeVariableTheAccountsHomeCounts) {
    const TVariable none("HOME", std::nullopt);
    EXPECT_FALSE(gGetDocumentsFolder().IsEmpty());
    EXPECT_NE(gGetDocumentsFolder(), folder.Path());
}

TEST_F(SystemFoldersTest, TheProgramIsTheOneThatTheKernelRuns) {
    const CStringU program(std::u16string_view(fs::read_symlink("/proc/self/exe").u16string()));
    EXPECT_EQ(vapp_platform::ProgramPath(), program);
    EXPECT_EQ(vapp_platform::ModulePath(), program) << "the tests hold the library's code themselves";
}

}  // namespace
