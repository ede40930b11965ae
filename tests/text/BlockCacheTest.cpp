// The blocks that a thread keeps: which come back, how many stay, that all of them are freed in the end (a
// leak fails the run under AddressSanitizer), and that texts outlive the thread that made them.
#include "text/BlockCache.h"

#include <gtest/gtest.h>

#include <cstring>
#include <thread>
#include <vector>

#include "vapp/text/CString.h"

namespace {

using vapp_text::BlockCache;

TEST(BlockCache, ABlockThatWasGivenIsTakenNext) {
    BlockCache cache{};
    char* const first = cache.Take(30);
    std::memset(first, 1, 30);
    cache.Give(first, 30);
    char* const second = cache.Take(26);
    EXPECT_EQ(second, first) << "one size for the allocator";
    cache.Give(second, 26);
    char* const wider = cache.Take(41);
    EXPECT_NE(wider, first);
    cache.Give(wider, 41);
    cache.Close();
}

// Under AddressSanitizer each byte beyond the block is seen.
TEST(BlockCache, EverySizeHasItsRoomWhateverSizeGaveTheBlock) {
    BlockCache cache{};
    for (std::size_t size = 1; size <= BlockCache::cnLargest + 40; ++size) {
        char* const block = cache.Take(size);
        std::memset(block, 1, size);
        cache.Give(block, size);
    }
    for (std::size_t size = BlockCache::cnLargest + 40; size >= 1; --size) {
        char* const block = cache.Take(size);
        std::memset(block, 1, size);
        cache.Give(block, size);
    }
    cache.Close();
}

TEST(BlockCache, KeepsAFewOfASizeAndFreesTheOthers) {
    BlockCache cache{};
    std::vector<char*> blocks;
    for (unsigned count = 0; count < 3 * BlockCache::cnKept; ++count)
        blocks.push_back(cache.Take(20));
    for (char* const block : blocks)
        cache.Give(block, 20);
    for (unsigned left = BlockCache::cnKept; left > 0; --left) {
        char* const block = cache.Take(20);
        EXPECT_EQ(block, blocks[left - 1]) << "the last one that found room comes first";
        std::memset(block, 1, 20);
        std::allocator<char>().deallocate(block, 24);
    }
    cache.Close();
}

TEST(BlockCache, KeepsNothingOnceItIsClosed) {
    BlockCache cache{};
    char* const early = cache.Take(20);
    char* const late = cache.Take(20);
    cache.Give(early, 20);
    cache.Close();
    cache.Give(late, 20);
    char* const last = cache.Take(20);
    cache.Give(last, 20);
}

TEST(BlockCache, TextsOutliveTheirThreadAndEndInAnother) {
    std::vector<CString> texts;
    for (int round = 0; round < 8; ++round) {
        std::thread([&texts] {
            for (int count = 0; count < 50; ++count)
                texts.emplace_back('x', count);
            if (texts.size() > 100) texts.erase(texts.begin(), texts.begin() + 75);
        }).join();
    }
    for (const CString& text : texts)
        EXPECT_EQ(text, CString('x', text.GetLength()));
    EXPECT_EQ(texts.size(), 100U);
}

TEST(BlockCache, ThreadsCutTextsOfTheirOwnAtTheSameTime) {
    const CString shared("a name that all of them share");
    std::vector<std::thread> threads;
    std::vector<CString> results(4);
    for (CString& result : results) {
        threads.emplace_back([&result, shared] {
            for (int count = 0; count < 2000; ++count) {
                CString copy = shared;
                copy.Replace('a', 'b');
                result = copy.Mid(count % 20) + copy.Left(count % 7);
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (const CString& result : results)
        EXPECT_EQ(result, "them shbreb nb") << "of the last round";
}

}  // namespace
