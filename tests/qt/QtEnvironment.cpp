/// @file
/// Gives all tests of this program an application object and the factory of widgets, and takes them down in
/// order. Nothing is shown on a screen: the platform is the off-screen one unless the caller wants another.
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "vapp/toolkit/qt/QtPeerFactory.h"

namespace {

class QtEnvironment : public testing::Environment {
public:
    void SetUp() override {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        m_application = std::make_unique<QApplication>(m_count, m_words);
        QApplication::setQuitOnLastWindowClosed(false);
        QtPeerFactory::Install();
    }
    void TearDown() override {
        // Widgets whose end was put off to the event loop, which these tests seldom run.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        PeerFactory::Install(nullptr);
        m_application.reset();
    }

private:
    int m_count = 1;
    char m_name[8] = "test_qt";
    char* m_words[2] = {m_name, nullptr};
    std::unique_ptr<QApplication> m_application;
};

[[maybe_unused]] testing::Environment* const gQtEnvironment =
    testing::AddGlobalTestEnvironment(new QtEnvironment);

}  // namespace
