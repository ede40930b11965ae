/// @file
/// When a thread's cache begins and ends.
///
/// The cache itself has no destructor, for it is used until the thread's very last text is gone, which can be
/// after the destructors of all other objects of the thread. A second object, made with the first block that
/// is given back, closes it.

#include "text/BlockCache.h"

#include <utility>

namespace vapp_text {

#ifdef VAPP_BLOCK_CACHE

constinit thread_local BlockCache gBlockCache{};

namespace {

struct TCloser {
    TCloser() = default;
    TCloser(const TCloser&) = delete;
    TCloser& operator=(const TCloser&) = delete;
    ~TCloser() { gBlockCache.Close(); }
};

void CloseWithThread() noexcept {
    static thread_local const TCloser closer;
}

}  // namespace

#endif

bool BlockCache::Open(const TShelf& shelf) noexcept {
    if (m_state != State::Unused) return shelf.room > 0;
    m_state = State::Open;
    for (TShelf& each : m_shelves)
        each.room = cnKept;
#ifdef VAPP_BLOCK_CACHE
    if (this == &gBlockCache) CloseWithThread();
#endif
    return true;
}

void BlockCache::Close() noexcept {
    m_state = State::Closed;
    for (std::size_t kind = 0; kind < cnKinds; ++kind) {
        TShelf& shelf = m_shelves[kind];
        shelf.room = 0;
        while (TLink* const block = shelf.first) {
            shelf.first = block->next;
            std::allocator<char>().deallocate(reinterpret_cast<char*>(block), SizeOf(kind, 0));
        }
    }
}

}  // namespace vapp_text
