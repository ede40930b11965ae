/// Gives all tests of this program an application object, which Qt needs before it measures a text. Nothing
/// is shown.

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <memory>

namespace {

class GuiEnvironment : public testing::Environment {
public:
    void SetUp() override {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        m_application = std::make_unique<QGuiApplication>(m_count, m_words);
    }
    void TearDown() override { m_application.reset(); }

private:
    int m_count = 1;
    char m_name[16] = "test_host";
    char* m_words[2] = {m_name, nullptr};
    std::unique_ptr<QGuiApplication> m_application;
};

[[maybe_unused]] testing::Environment* const gGuiEnvironment =
    testing::AddGlobalTestEnvironment(new GuiEnvironment);

}  // namespace
