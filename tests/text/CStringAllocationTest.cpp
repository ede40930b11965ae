// What short texts cost the allocator.
#include <gtest/gtest.h>

#include "tests/text/AllocationCount.h"
#include "text/BlockCache.h"
#include "text/Tokenizer.h"
#include "vapp/text/CStringU.h"

namespace {

using text_test::CountAllocations;

#ifdef VAPP_BLOCK_CACHE
constexpr std::size_t cnOfAShortText = 0;
#else
constexpr std::size_t cnOfAShortText = 1;
#endif

TEST(CStringAllocation, AChangedTextCostsTheOneOfItsResultOrNone) {
    const CStringU text("  \"nand2_x4\"  ");
    const auto changeAll = [&text] {
        const CStringU trimmed = text.Trimmed();
        const CStringU unquoted = trimmed.WithoutQuotes();
        const CStringU quoted = unquoted.WithQuotes();
        const CStringU upper = unquoted.ToUpper();
        CStringU replaced = unquoted;
        replaced.Replace(u'_', u'-');
        CStringU longer = unquoted;
        longer.Replace(CStringU(replaced), upper);
        longer.Replace(unquoted, quoted);
    };
    changeAll();  // the thread keeps no block before it has given one back
    EXPECT_EQ(CountAllocations(changeAll), 6 * cnOfAShortText);
}

TEST(CStringAllocation, TokensThatNobodyKeepsShareOneText) {
    const vapp_text::TTokenizer tokenizer("nand2_x4,nor3,inv,buf_x2,,dffrs", ",");
    std::size_t bytes = 0;
    const auto readAll = [&] {
        tokenizer.ForEachToken([&](const CStringU& token) { bytes += token.PayloadView().size(); });
    };
    readAll();
    EXPECT_LE(CountAllocations(readAll), cnOfAShortText);
    EXPECT_EQ(bytes, 2 * 26U);
}

}  // namespace
