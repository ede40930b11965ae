/// @file
/// Drags without a pointer: what the platform of these tests makes of one, and when there is none. Drags by a
/// real pointer are tested with the examples.
#include "toolkit/qt/QtDrag.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDrag>
#include <thread>

namespace {

TEST(QtDrag, TheFactoryInstallsIt) {
    COleDataSource source;
    source.SetText("lib inv sym");
    // Nobody holds a button here: the platform gives up at once.
    EXPECT_EQ(source.DoDragDrop(cnDropCopy | cnDropLink, {}), cnDropNone);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(qApp->findChildren<QDrag*>().size(), 0) << "nothing is left of it";
}

TEST(QtDrag, OnAnotherThreadThereIsNone) {
    COleDataSource source;
    UINT effect = cnDropCopy;
    std::thread([&] { effect = vapp_qt::gRunDrag(source, cnDropCopy, {}); }).join();
    EXPECT_EQ(effect, cnDropNone);
}

}  // namespace
