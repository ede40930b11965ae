/// @file
/// Real boxes, answered by keys and clicks.
#include "toolkit/qt/QtMessageBox.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QTest>
#include <thread>

#include "tests/qt/ModalAnswer.h"
#include "tests/qt/QtTestFrame.h"

namespace {

QPushButton* ButtonOf(QMessageBox& box, int answer) {
    auto* button = box.findChild<QPushButton*>(QStringLiteral("answer%1").arg(answer));
    EXPECT_NE(button, nullptr) << answer;
    return button;
}

void Click(QMessageBox& box, int answer) {
    QTest::mouseClick(ButtonOf(box, answer), Qt::LeftButton);
}

}  // namespace

TEST(QtMessageBox, EachButtonHasItsAnswer) {
    for (const int answer : {IDYES, IDNO, IDCANCEL}) {
        const ModalAnswer user([answer](QMessageBox& box) { Click(box, answer); });
        EXPECT_EQ(TMessageBox(nullptr, "title", "text", MB_YESNOCANCEL).DoModal(), answer);
    }
    const ModalAnswer user([](QMessageBox& box) { Click(box, IDOK); });
    EXPECT_EQ(TMessageBox(nullptr, "title", "text", MB_ICONERROR).DoModal(), IDOK);
}

TEST(QtMessageBox, ReturnIsTheFirstButtonAndEscapeTheLast) {
    {
        const ModalAnswer user([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
        EXPECT_EQ(TMessageBox(nullptr, "title", "text", MB_OKCANCEL).DoModal(), IDOK);
    }
    {
        const ModalAnswer user([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        EXPECT_EQ(TMessageBox(nullptr, "title", "text", MB_OKCANCEL).DoModal(), IDCANCEL);
    }
    {
        const ModalAnswer user([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        EXPECT_EQ(TMessageBox(nullptr, "title", "text", MB_YESNO).DoModal(), IDNO);
    }
    const ModalAnswer user([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(TMessageBox(nullptr, "title", "text", MB_OK).DoModal(), IDOK) << "closed by its frame";
}

TEST(QtMessageBox, TextsArePlainWhateverSignsAreInThem) {
    const ModalAnswer user([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("R\u00E9server"));
        EXPECT_EQ(box.text(), "<b>a & b</b>\n\nline");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(ButtonOf(box, IDOK)->text(), "&Go");
        Click(box, IDOK);
    });
    TMessageBox box(nullptr, CStringU(u"R\u00E9server"), "<b>a & b</b>\n\nline",
                    MB_OKCANCEL | MB_ICONQUESTION);
    box.SetButtonTexts({"&Go"});
    EXPECT_EQ(box.DoModal(), IDOK);
}

TEST(QtMessageBox, BelongsToItsOwner) {
    ShownFrame shown;
    const ModalAnswer user([&](QMessageBox& box) { EXPECT_EQ(box.parentWidget(), gWidgetOf(shown.form)); });
    EXPECT_EQ(TMessageBox(&shown.form, "title", "text", MB_OKCANCEL).DoModal(), IDCANCEL);
}

TEST(QtMessageBox, AnOwnerThatEndsClosesIt) {
    auto shown = std::make_unique<ShownFrame>();
    const ModalAnswer user([&](QMessageBox& box) {
        // Only the end of the frame ends this box.
        QTimer::singleShot(0, qApp, [&] { delete gWidgetOf(shown->frame); });
        static_cast<void>(box);
    });
    EXPECT_EQ(TMessageBox(&shown->form, "title", "text", MB_OKCANCEL).DoModal(), IDCANCEL);
}

TEST(QtMessageBox, OtherThreadsCanNotAsk) {
    const TMessageBox box(nullptr, "title", "text", MB_OKCANCEL);
    std::optional<int> answer = 7;
    std::thread([&] { answer = box.Ask(); }).join();
    EXPECT_EQ(answer, std::nullopt);
}
