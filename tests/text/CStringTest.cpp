// The buffer of CString: sharing, copy on write, threads, buffer access, arguments outside of the text.

#include "vapp/text/CString.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <new>
#include <thread>
#include <type_traits>
#include <unordered_set>
#include <vector>

namespace {

static_assert(sizeof(CString) == sizeof(void*));
static_assert(std::is_nothrow_move_constructible_v<CString> && std::is_nothrow_move_assignable_v<CString>);
static_assert(std::is_nothrow_copy_constructible_v<CString> &&
              std::is_nothrow_default_constructible_v<CString>);
static_assert(!std::is_convertible_v<char, CString>, "a character is no text by accident");

TEST(CString, EmptyTextsOwnNothing) {
    const CString a;
    const CString b("");
    const CString c(static_cast<const char*>(nullptr));
    const CString d("abc", -1);
    const CString e('x', 0);
    for (const CString* text : {&b, &c, &d, &e}) {
        EXPECT_EQ(text->GetString(), a.GetString());
        EXPECT_FALSE(text->IsShared());
    }
    EXPECT_STREQ(a.GetString(), "");
}

TEST(CString, ConstructorsTakeTextLengthAndRepeats) {
    EXPECT_EQ(CString("abc"), "abc");
    EXPECT_EQ(CString("abcdef", 3), "abc");
    EXPECT_EQ(CString('x', 4), "xxxx");
    EXPECT_EQ(CString(std::string_view("view")), "view");
    EXPECT_EQ(CString("a\0b", 3).GetLength(), 3);
}

TEST(CString, AFilledTextIsWhatWasWritten) {
    const CString text = CString::Filled(3, [](char* out) { std::memcpy(out, "a\0b", 3); });
    EXPECT_EQ(text, CString("a\0b", 3));
    EXPECT_EQ(text.GetString()[3], '\0');
    const CString none = CString::Filled(0, [](char*) { FAIL() << "there is nothing to write to"; });
    EXPECT_EQ(none.GetString(), CString().GetString());
    EXPECT_THROW(static_cast<void>(CString::Filled(std::size_t{INT_MAX}, [](char*) {})), std::bad_alloc);
}

TEST(CString, AnAssignedTextLiesInTheOldBufferWhereItFits) {
    CString text("a name of some length");
    const char* const buffer = text.GetString();
    text.Assign("short");
    EXPECT_EQ(text, "short");
    EXPECT_EQ(text.GetString(), buffer);
    text.Assign("\x80", text.View());
    EXPECT_EQ(text, "\x80short") << "moved up in its own buffer";
    EXPECT_EQ(text.GetString(), buffer);
    text.Assign(text.View().substr(3));
    EXPECT_EQ(text, "ort");
    text.Assign("+", text.View());
    text.Assign("a text that is longer than the buffer", text.View());
    EXPECT_EQ(text, "a text that is longer than the buffer+ort");
}

TEST(CString, AnAssignedTextLeavesCopiesAndWideBuffersAlone) {
    CString text("shared");
    const CString copy = text;
    text.Assign("other");
    EXPECT_EQ(copy, "shared");
    EXPECT_EQ(text, "other");
    CString wide('x', 10000);
    const char* const buffer = wide.GetString();
    wide.Assign(wide.View().substr(0, 3));
    EXPECT_EQ(wide, "xxx");
    EXPECT_NE(wide.GetString(), buffer) << "a short text doesn't hold the room of a long one";
    wide.Assign("");
    EXPECT_EQ(wide.GetString(), CString().GetString());
    wide.Assign({});
    EXPECT_TRUE(wide.IsEmpty());
}

TEST(CString, CopiesShareUntilOneIsWritten) {
    CString a("shared");
    CString b = a;
    EXPECT_EQ(a.GetString(), b.GetString());
    EXPECT_TRUE(a.IsShared());
    b.SetAt(0, 'S');
    EXPECT_EQ(a, "shared");
    EXPECT_EQ(b, "Shared");
    EXPECT_FALSE(a.IsShared());
    EXPECT_FALSE(b.IsShared());
}

TEST(CString, EveryWritingOperationLeavesTheOtherCopyAlone) {
    const CString original("  some text, some more  ");
    const std::vector<void (*)(CString&)> operations{
        [](CString& text) { text += "x"; },
        [](CString& text) { text.AppendChar('x'); },
        [](CString& text) { text.Insert(3, "x"); },
        [](CString& text) { text.Delete(3, 2); },
        [](CString& text) { text.Remove('o'); },
        [](CString& text) { text.Replace('o', 'O'); },
        [](CString& text) { text.Replace("some", "any"); },
        [](CString& text) { text.Trim(); },
        [](CString& text) { text.MakeUpper(); },
        [](CString& text) { text.GetBuffer()[0] = 'x', text.ReleaseBuffer(); },
        [](CString& text) { text.GetBufferSetLength(3)[0] = 'x'; },
        [](CString& text) { text.Format("%d", 1); },
        [](CString& text) { text.Empty(); },
    };
    for (std::size_t i = 0; i < operations.size(); ++i) {
        CString copy = original;
        operations[i](copy);
        EXPECT_EQ(original, "  some text, some more  ") << "operation " << i;
        EXPECT_NE(copy, original) << "operation " << i;
    }
}

TEST(CString, MoveLeavesEmptyTextBehind) {
    CString a("moved");
    const char* const bytes = a.GetString();
    CString b(std::move(a));
    EXPECT_EQ(b.GetString(), bytes);
    EXPECT_TRUE(a.IsEmpty());  // NOLINT(bugprone-use-after-move): promised
    a = std::move(b);
    EXPECT_EQ(a.GetString(), bytes);
    CString& self = a;
    a = std::move(self);
    EXPECT_EQ(a, "moved");
    a = self;
    EXPECT_EQ(a, "moved");
}

TEST(CString, OperationsMayBeHandedTheirOwnText) {
    CString text("abcdef");
    text = text.GetString() + 2;
    EXPECT_EQ(text, "cdef");
    text += text;
    EXPECT_EQ(text, "cdefcdef");
    text.Append(text.GetString() + 6);
    EXPECT_EQ(text, "cdefcdefef");
    text.Insert(1, text.GetString() + 8);
    EXPECT_EQ(text, "cefdefcdefef");
    text.Replace(text.GetString() + 10, text.GetString() + 9);
    EXPECT_EQ(text, "cfefdfefcdfeffef");
    text.Trim(text.GetString() + 14);
    EXPECT_EQ(text, "cfefdfefcd");
}

TEST(CString, IndexOutsideOfTheTextIsHarmless) {
    CString text("abc");
    EXPECT_EQ(text[0], 'a');
    EXPECT_EQ(text.GetAt(3), '\0');
    EXPECT_EQ(text.GetAt(-1), '\0');
    EXPECT_EQ(text[INT_MAX], '\0');
    EXPECT_EQ(text[std::size_t{1} << 40U], '\0');
    text.SetAt(-1, 'x');
    text.SetAt(3, 'x');
    EXPECT_EQ(text, "abc");
}

TEST(CString, BufferIsFilledInPlace) {
    CString text("ab");
    char* const buffer = text.GetBuffer(100);
    EXPECT_STREQ(buffer, "ab");
    std::fill(buffer, buffer + 100, 'x');
    text.ReleaseBuffer(50);
    EXPECT_EQ(text, CString('x', 50));
    text.GetBuffer()[5] = '\0';
    text.ReleaseBuffer();
    EXPECT_EQ(text, "xxxxx");
    text.ReleaseBuffer(INT_MAX);
    EXPECT_LE(text.GetLength(), 101) << "never more than the buffer holds";
    CString grown("ab");
    grown.GetBufferSetLength(4)[2] = 'c';
    EXPECT_EQ(grown, CString("abc\0", 4));
    CString untouched;
    untouched.ReleaseBuffer(7);
    EXPECT_TRUE(untouched.IsEmpty());
}

TEST(CString, ReserveKeepsTextAndBuffer) {
    CString text("ab");
    text.Reserve(1000);
    const char* const bytes = text.GetString();
    for (int i = 0; i < 998; ++i) {
        text += 'x';
    }
    EXPECT_EQ(text.GetString(), bytes);
    EXPECT_EQ(text.GetLength(), 1000);
}

TEST(CString, OrderAndHashGoByBytes) {
    EXPECT_LT(CString("a"), CString("b"));
    EXPECT_LT(CString("a"), "ab");
    EXPECT_LT(CString("z"), CString("\xC3\xA9")) << "high bytes are large, not negative";
    EXPECT_EQ("a", CString("a"));
    EXPECT_NE(CString("a"), CString("A"));
    EXPECT_TRUE(CString() == static_cast<const char*>(nullptr));
    const std::unordered_set<CString> set{CString("a"), CString("b"), CString("a")};
    EXPECT_EQ(set.size(), 2U);
}

TEST(CString, ConcatenatesInEveryMix) {
    const CString b("b");
    EXPECT_EQ(b + b, "bb");
    EXPECT_EQ("a" + b + "c", "abc");
    EXPECT_EQ('a' + b + 'c', "abc");
    EXPECT_EQ(CString().Append(b).GetString(), b.GetString()) << "an empty text shares what it is given";
    EXPECT_EQ(b + static_cast<const char*>(nullptr), "b");
}

TEST(CString, CopiesAreSharedBetweenThreads) {
    const CString original("shared between threads");
    std::vector<std::thread> threads;
    std::vector<int> lengths(4);
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        threads.emplace_back([copy = original, &length = lengths[i]]() {
            for (int round = 0; round < 2000; ++round) {
                CString mine = copy;
                const CString held = mine;
                mine += 'x';
                length += mine.GetLength() - held.GetLength();
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(lengths, std::vector<int>(4, 2000));
    EXPECT_EQ(original, "shared between threads");
    EXPECT_FALSE(original.IsShared()) << "every share was given back";
}

}  // namespace
