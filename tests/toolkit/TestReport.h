/// @file
/// A report with three columns and a hundred rows in a recording parent: what the tests of its parts start
/// from.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "tests/toolkit/RecordingParent.h"
#include "tests/toolkit/RecordingPeers.h"

/// Rows of 20 pixels below a header of 24, columns of 100, 80 and 60; ten rows fit.
class TestReport : public testing::Test {
protected:
    TestReport() {
        report.Create(&parent, 7, {0, 0, 200, 224});
        report.SetRowMetrics(20, 24);
        cell = AddColumn(0, "Cell", 100);
        view = AddColumn(1, "View", 80);
        library = AddColumn(2, "Library", 60);
        report.SetVirtualMode(std::make_unique<CXTPReportRecord>(), 100);
        report.Populate();
        peers.ForgetAll();
        parent.Forget();
    }
    CXTPReportColumn* AddColumn(int itemIndex, const char* name, int width, bool sortable = true) {
        return report.AddColumn(
            std::make_unique<CXTPReportColumn>(itemIndex, name, name, width, true, -1, sortable));
    }
    [[nodiscard]] PeerRecord& Told() { return peers.Of(report); }

    RecordingPeers peers;
    RecordingParent parent;
    CXTPReportControl report;
    CXTPReportColumn* cell = nullptr;
    CXTPReportColumn* view = nullptr;
    CXTPReportColumn* library = nullptr;
};
