/// @file
/// A report on the screen whose rows are made up and whose questions are counted: what the tests of the
/// report's view and peer start from. And the events that QTest has no short call for.
#pragma once

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QWheelEvent>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "tests/qt/QtTestFrame.h"
#include "toolkit/qt/QtReportHeader.h"
#include "toolkit/qt/QtReportView.h"
#include "vapp/toolkit/CXTPReportControl.h"

/// A report that answers each cell itself.
class FakeReport : public CXTPReportControl {
public:
    using Cell = std::pair<int, int>;  ///< row and item index

    std::map<Cell, int> asked;                                           ///< how often a cell was asked for
    std::function<void(int row, int item)> onAsked;                      ///< host script of the answer
    std::function<void(Cell, CXTPReportRecordItemMetrics&)> decoration;  ///< icon, font, colours
    std::vector<CStringU> typedNames;  ///< what type-ahead looks through instead

    void SetRows(int count) {
        SetVirtualMode(std::make_unique<Record>(*this), count);
        Populate();
    }
    CXTPReportColumn* AddNamedColumn(const char* name, int width) {
        return AddColumn(std::make_unique<CXTPReportColumn>(GetColumns().GetCount(), name, name, width));
    }
    [[nodiscard]] int MostAsked() const {
        int most = 0;
        for (const auto& [cell, times] : asked)
            most = std::max(most, times);
        return most;
    }
    /// Rows are "cell00000", "cell00001" and so on; the other columns say their number.
    [[nodiscard]] static CString TextOf(int row, int item) {
        CString text;
        if (item == 0) {
            text.Format("cell%05d", row);
        } else {
            text.Format("item %d", item);
        }
        return text;
    }
    [[nodiscard]] CStringU GetTypeAheadText(int row) const override {
        const auto at = static_cast<std::size_t>(row);
        return at < typedNames.size() ? typedNames[at] : CStringU(TextOf(row, 0));
    }

private:
    class Record : public CXTPReportRecord {
    public:
        explicit Record(FakeReport& report) : m_report(report) {}
        void GetItemMetrics(const CXTPReportRecordItemDrawArgs& drawArgs,
                            CXTPReportRecordItemMetrics& metrics) override {
            const Cell cell{drawArgs.row, drawArgs.column->GetItemIndex()};
            ++m_report.asked[cell];
            metrics.text = TextOf(cell.first, cell.second);
            if (m_report.decoration) m_report.decoration(cell, metrics);
            // A copy: the answer may be the end of the report's window, or another answer.
            const auto answering = m_report.onAsked;
            if (answering) answering(cell.first, cell.second);
        }

    private:
        FakeReport& m_report;
    };
};

/// A report of three columns, 140, 60 and 60 wide, the first one frozen, in a shown frame.
class ShownReport : public testing::Test {
protected:
    explicit ShownReport(CSize size = {300, 200}) : shown({400, 300}) {
        report.Create(&shown.form, 7, {0, 0, size.cx, size.cy});
        report.AddNamedColumn("Cell", 140);
        report.AddNamedColumn("View", 60);
        report.AddNamedColumn("Library", 60);
        report.SetFreezeColumnsCount(1);
        report.SetImageList(104, 22, 0xFFFF00);
    }
    void Populate(int rows) {
        report.SetRows(rows);
        QApplication::processEvents();
        shown.form.heard.clear();
        report.asked.clear();
    }
    [[nodiscard]] vapp_qt::QtReportView* View() const { return gWidgetAs<vapp_qt::QtReportView>(report); }
    QImage Paint(qreal ratio = 1) const { return gPictureOf(*gWidgetOf(report), ratio); }
    /// Middle of a row in the viewport.
    [[nodiscard]] QPoint At(int row, int x = 20) const {
        return {x, (row - report.GetTopRowIndex()) * report.GetRowHeight() + report.GetRowHeight() / 2};
    }

    ShownFrame shown;
    FakeReport report;
};

/// A mouse event at a point of a widget.
inline void gSendMouse(QWidget& widget, QEvent::Type type, const QPoint& at,
                       Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, modifiers);
    QApplication::sendEvent(&widget, &event);
}

/// A report whose rows can be dragged out; it writes down where a drag began and with which flags, and which
/// rows were clicked twice.
class DraggedReport : public FakeReport {
public:
    struct Begun {
        CPoint point;
        UINT flags;
    };
    std::vector<Begun> begun;
    std::vector<int> opened;
    std::function<void()> onDrag;  ///< what happens while the drag is going on

    bool OnBeginDrag(CPoint point, UINT flags) override {
        begun.push_back({point, flags});
        const auto during = onDrag;
        if (during) during();
        return false;
    }
    void OnDoubleClick(CPoint point) override {
        const std::optional<CXTPReportRow> row = HitTestRow(point);
        opened.push_back(row ? row->GetIndex() : -1);
    }
};

/// Press, move in two steps, release.
inline void gDrag(QWidget& widget, const QPoint& from, const QPoint& to) {
    gSendMouse(widget, QEvent::MouseButtonPress, from);
    gSendMouse(widget, QEvent::MouseMove, (from + to) / 2);
    gSendMouse(widget, QEvent::MouseMove, to);
    gSendMouse(widget, QEvent::MouseButtonRelease, to);
}

/// Notches of the wheel, positive towards the user: down.
inline void gWheel(QWidget& widget, int notches) {
    const QPointF at = widget.rect().center();
    QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, -120 * notches}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}
