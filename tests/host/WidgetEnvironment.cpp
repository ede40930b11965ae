/// Gives all tests of this program an application object that can show widgets, off screen.

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace {

class WidgetEnvironment : public testing::Environment {
public:
    void SetUp() override {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        m_application = std::make_unique<QApplication>(m_count, m_words);
        QApplication::setQuitOnLastWindowClosed(false);
    }
    void TearDown() override { m_application.reset(); }

private:
    int m_count = 1;
    char m_name[16] = "test_navigator";
    char* m_words[2] = {m_name, nullptr};
    std::unique_ptr<QApplication> m_application;
};

[[maybe_unused]] testing::Environment* const gWidgetEnvironment =
    testing::AddGlobalTestEnvironment(new WidgetEnvironment);

}  // namespace
