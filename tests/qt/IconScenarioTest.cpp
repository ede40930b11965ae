/// @file
/// Each icon that the cell list asks the strip for is there: from the host's answers to pixels and to the
/// word for assistive technology.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "tests/celllist/CellListFixture.h"
#include "tests/qt/QtPixels.h"
#include "toolkit/qt/QtIcons.h"

namespace {

class IconScenarioTest : public CellListFixture {
protected:
    [[nodiscard]] int AskIcon() {
        using TColumn = vapp_library_browser::TCellNamesReportCtrl::TColumn;
        return dynamic_cast<TColumn&>(Column("Cell")).GetCellIcon(Report().GetCell(0));
    }
};

}  // namespace

TEST_F(IconScenarioTest, EveryIconThatTheCellListAsksForIsInTheStrip) {
    ShowCells({{"l1", "a", "v"}});
    std::set<int> asked;
    for (const char* kind : {"", "is_fab", "is_stdviadef", "is_customviadef", "is_guardring", "is_vcell"}) {
        m_host.AnswerStart("database cellviewinfo", "0");
        for (const char* other : {"is_fab", "is_stdviadef", "is_customviadef", "is_guardring", "is_vcell"})
            m_host.AnswerStart(std::string("database cellviewinfo ") + other,
                               kind == std::string(other) ? "1" : "0");
        for (const char* locked : {"0", "1"}) {
            m_host.AnswerStart("database cellviewinfo is_lockedbyuser", locked);
            asked.insert(AskIcon());
        }
    }
    EXPECT_EQ(asked, (std::set<int>{-1, 1, 3, 4, 6, 7, 13, 14, 16, 17, 19, 20}));
    asked.erase(-1);
    for (const int icon : asked) {
        const QImage picture = gPainted({22, 16}, 1, [icon](QPainter& painter) {
            vapp_qt::gDrawStripIcon(painter, QRectF(0, 0, 22, 16), icon, Qt::black);
        });
        EXPECT_GT(gPaintedPixels(picture), 40) << icon;
        EXPECT_FALSE(vapp_qt::gStripIconName(icon).isEmpty()) << icon;
    }
}
