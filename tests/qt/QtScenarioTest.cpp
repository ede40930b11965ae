/// @file
/// The same things done to a report twice: without pixels, by the control's own calls, and on the screen, by
/// mouse, keys and wheel. Afterwards both are in the same state. That is the promise of the peers: they add
/// pixels and no behaviour.
#include <QScrollBar>
#include <QTest>
#include <memory>
#include <random>
#include <string>

#include "tests/qt/QtTestReport.h"
#include "tests/text/HostileText.h"

namespace {

// What the user can do. Rows are counted from the first one shown, so that each can be clicked.
struct Step {
    enum class TKind { Click, ContextClick, Key, Type, Wheel, Bar, Sort, Move, Resize };
    TKind kind = TKind::Click;
    int where = 0;  ///< row below the top, notches, top row or column
    int how = 0;    ///< position or width
    TKey key = TKey::Down;
    TModifiers modifiers = {};
    const char* text = "";
};

using K = Step::TKind;

struct KeyPair {
    TKey key;
    Qt::Key qt;
};
constexpr KeyPair cnKeys[] = {{TKey::Up, Qt::Key_Up},         {TKey::Down, Qt::Key_Down},
                              {TKey::PageUp, Qt::Key_PageUp}, {TKey::PageDown, Qt::Key_PageDown},
                              {TKey::Home, Qt::Key_Home},     {TKey::End, Qt::Key_End},
                              {TKey::Space, Qt::Key_Space},   {TKey::SelectAll, Qt::Key_A}};

Qt::Key QtKeyOf(TKey key) {
    for (const KeyPair& pair : cnKeys) {
        if (pair.key == key) return pair.qt;
    }
    return Qt::Key_unknown;
}

Qt::KeyboardModifiers QtModifiersOf(TModifiers modifiers) {
    Qt::KeyboardModifiers held;
    held.setFlag(Qt::ShiftModifier, modifiers.shift);
    held.setFlag(Qt::ControlModifier, modifiers.control);
    return held;
}

std::string StateOf(const FakeReport& report) {
    std::string state = "selected";
    for (const RowSelection::Range& range : report.GetSelectedRows().GetSelection().GetRanges())
        state += " " + std::to_string(range.first) + "-" + std::to_string(range.last);
    state += "; focus " + std::to_string(report.GetCursor().GetFocus());
    state += "; top " + std::to_string(report.GetTopRowIndex());
    state += ", sideways " + std::to_string(report.GetScrollX());
    state += "; frozen " + std::to_string(report.GetFreezeColumnsCount());
    state += "; columns";
    for (int position = 0; position < report.GetColumns().GetCount(); ++position) {
        const CXTPReportColumn& column = *report.GetColumns().GetAt(position);
        state += " " + std::string(column.GetCaption()) + ":" + std::to_string(column.GetWidth()) +
                 (column.IsVisible() ? "" : " hidden");
    }
    state += "; sort";
    const CXTPReportColumnOrder& order = report.GetColumns().GetSortOrder();
    for (int place = 0; place < order.GetCount(); ++place)
        state += " " + std::string(order.GetAt(place)->GetCaption()) +
                 (order.GetAt(place)->IsSortedIncreasing() ? "+" : "-");
    return state;
}

// By the control's own calls.
class WithoutPixels {
public:
    explicit WithoutPixels(FakeReport& report) : m_report(report) {}

    void Do(const Step& step) {
        const int row = m_report.GetTopRowIndex() + step.where;
        CXTPReportHeader& header = m_report.GetReportHeader();
        CXTPReportColumn* column = m_report.GetColumns().GetAt(step.where);
        switch (step.kind) {
            case K::Click:
                return m_report.ClickedByUser(row, step.modifiers);
            case K::ContextClick:
                return m_report.ContextClickedByUser(row);
            case K::Key:
                return m_report.KeyPressedByUser(step.key, step.modifiers);
            case K::Type:
                return Type(step.text);
            case K::Wheel:
                return m_report.ScrolledByUser(m_report.GetTopRowIndex() + WheelRows(step.where),
                                               m_report.GetScrollX());
            case K::Bar:
                return m_report.ScrolledByUser(step.where, m_report.GetScrollX());
            case K::Sort:
                return header.ClickedByUser(column, step.modifiers.control);
            case K::Move:
                return header.MovedByUser(column, step.how);
            case K::Resize:
                return header.ResizedByUser(column, step.how);
        }
    }

private:
    // One event of the wheel goes no further than a page.
    [[nodiscard]] int WheelRows(int notches) const {
        const int page = m_report.GetCountPerPage();
        return std::clamp(notches * QApplication::wheelScrollLines(), -page, page);
    }
    // Letter by letter, as keys come.
    void Type(const char* text) {
        for (const char* letter = text; *letter != '\0'; ++letter)
            m_report.TypedByUser(CStringU(CString(letter, 1)), m_clock);
        m_clock += 2 * TypeAhead::cnPause;
    }

    FakeReport& m_report;
    std::int64_t m_clock = 0;
};

// By mouse, keys and wheel.
class OnTheScreen {
public:
    explicit OnTheScreen(FakeReport& report)
        : m_report(report), m_view(*gWidgetAs<vapp_qt::QtReportView>(report)) {}

    void Do(const Step& step) {
        const Qt::KeyboardModifiers held = QtModifiersOf(step.modifiers);
        const QPoint at(20, step.where * m_report.GetRowHeight() + 3);
        switch (step.kind) {
            case K::Click:
                return QTest::mouseClick(m_view.viewport(), Qt::LeftButton, held, at);
            case K::ContextClick:
                return QTest::mouseClick(m_view.viewport(), Qt::RightButton, held, at);
            case K::Key:
                return QTest::keyClick(&m_view, QtKeyOf(step.key),
                                       step.key == TKey::SelectAll ? Qt::ControlModifier : held);
            case K::Type:
                return QTest::keyClicks(&m_view, step.text);
            case K::Wheel:
                return gWheel(*m_view.viewport(), step.where);
            case K::Bar:
                return m_view.verticalScrollBar()->setValue(step.where);
            case K::Sort:
                return QTest::mouseClick(m_view.Header(), Qt::LeftButton, held, MiddleOf(step.where));
            case K::Move:
                return Move(step.where, step.how);
            case K::Resize:
                return Resize(step.where, step.how);
        }
    }

private:
    [[nodiscard]] int LeftOf(int position) const {
        int left = 0;
        for (int before = 0; before < position; ++before)
            left += m_report.GetColumns().GetAt(before)->GetShownWidth();
        return left;
    }
    [[nodiscard]] QPoint MiddleOf(int position) const {
        return {LeftOf(position) + m_report.GetColumns().GetAt(position)->GetShownWidth() / 2, 8};
    }
    void Move(int from, int to) {
        const int inside = m_report.GetColumns().GetAt(to)->GetShownWidth() - 6;
        gDrag(*m_view.Header(), MiddleOf(from), {LeftOf(to) + (to > from ? inside : 6), 8});
    }
    void Resize(int position, int width) {
        const int edge = LeftOf(position + 1);
        gDrag(*m_view.Header(), {edge, 8},
              {edge + width - m_report.GetColumns().GetAt(position)->GetWidth(), 8});
    }

    FakeReport& m_report;
    vapp_qt::QtReportView& m_view;
};

class QtScenarioTest : public ShownReport {
protected:
    QtScenarioTest() {
        Populate(200);
        // A report without a peer, of the same size and with the heights that the peer found.
        PeerFactory* const factory = PeerFactory::Installed();
        PeerFactory::Install(nullptr);
        hidden.Create(nullptr, 7, report.GetRect());
        PeerFactory::Install(factory);
        const CRect client = report.GetClientRect();
        hidden.ReservedByPeer(
            {report.GetRect().Width() - client.right, report.GetRect().Height() - client.bottom});
        hidden.SetRowMetrics(report.GetRowHeight(), report.GetHeaderHeight());
        hidden.AddNamedColumn("Cell", 140);
        hidden.AddNamedColumn("View", 60);
        hidden.AddNamedColumn("Library", 60);
        hidden.SetFreezeColumnsCount(1);
        hidden.SetRows(200);
    }
    void DoBoth(const Step& step, int number) {
        WithoutPixels(hidden).Do(step);
        OnTheScreen(report).Do(step);
        ASSERT_EQ(StateOf(hidden), StateOf(report))
            << "step " << number << " of kind " << static_cast<int>(step.kind) << " at " << step.where;
    }

    FakeReport hidden;
};

constexpr TModifiers cnShift{.shift = true, .control = false};
constexpr TModifiers cnControl{.shift = false, .control = true};
constexpr TModifiers cnBoth{.shift = true, .control = true};

constexpr Step cnScenario[] = {
    {.kind = K::Click, .where = 2},
    {.kind = K::Click, .where = 5, .modifiers = cnShift},
    {.kind = K::Click, .where = 3, .modifiers = cnControl},
    {.kind = K::Key, .key = TKey::Down},
    {.kind = K::Key, .key = TKey::PageDown, .modifiers = cnShift},
    {.kind = K::Key, .key = TKey::Down, .modifiers = cnControl},
    {.kind = K::Key, .key = TKey::Space, .modifiers = cnControl},
    {.kind = K::Wheel, .where = 3},
    {.kind = K::Click, .where = 1, .modifiers = cnBoth},
    {.kind = K::ContextClick, .where = 0},
    {.kind = K::Sort, .where = 0},
    {.kind = K::Sort, .where = 1, .modifiers = cnControl},
    {.kind = K::Sort, .where = 1, .modifiers = cnControl},
    {.kind = K::Move, .where = 0, .how = 2},
    {.kind = K::Resize, .where = 0, .how = 85},
    {.kind = K::Type, .text = "cell0012"},
    {.kind = K::Key, .key = TKey::End, .modifiers = cnShift},
    {.kind = K::Bar, .where = 100},
    {.kind = K::ContextClick, .where = 4},
    {.kind = K::Key, .key = TKey::SelectAll},
    {.kind = K::Key, .key = TKey::Up},
    {.kind = K::Wheel, .where = -2},
    {.kind = K::Move, .where = 2, .how = 0},
    {.kind = K::Sort, .where = 2},
    {.kind = K::Key, .key = TKey::Home},
    {.kind = K::Bar, .where = 100000},
};

}  // namespace

TEST_F(QtScenarioTest, TheSameStepsGiveTheSameState) {
    int number = 0;
    for (const Step& step : cnScenario)
        ASSERT_NO_FATAL_FAILURE(DoBoth(step, ++number));
    EXPECT_EQ(hidden.GetTopRowIndex(), 200 - hidden.GetCountPerPage()) << "the steps did something";
}

TEST_F(QtScenarioTest, RandomStepsGiveTheSameState) {
    std::mt19937 random = text_test::SeededRandom();
    const auto below = [&random](int limit) {
        return std::uniform_int_distribution<int>(0, limit - 1)(random);
    };
    for (int number = 0; number < 400; ++number) {
        Step step;
        step.kind = static_cast<K>(below(9));
        // Letters depend on the time that passes between two of them; the fixed steps have some.
        if (step.kind == K::Type) step.kind = K::Key;
        step.modifiers = {.shift = below(3) == 0, .control = below(3) == 0};
        step.key = cnKeys[below(static_cast<int>(std::size(cnKeys)))].key;
        if (step.key == TKey::SelectAll) step.modifiers = cnControl;
        if (step.kind == K::Click || step.kind == K::ContextClick)
            step.where = below(report.GetCountPerPage());
        if (step.kind == K::Wheel) step.where = below(7) - 3;
        if (step.kind == K::Bar) step.where = below(220);
        if (step.kind == K::Sort || step.kind == K::Move || step.kind == K::Resize) step.where = below(3);
        // To another place: a short drag over one's own column is a click.
        if (step.kind == K::Move) step.how = (step.where + 1 + below(2)) % 3;
        if (step.kind == K::Resize) step.how = 40 + below(50);
        ASSERT_NO_FATAL_FAILURE(DoBoth(step, number));
    }
}
