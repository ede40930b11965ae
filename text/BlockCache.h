/// @file
/// The memory of short texts: blocks that a thread has let go of, kept for its next texts.
///
/// For the buffers of CString and nothing else. A CString is one pointer wide and has no room for a text in
/// itself, so that a name that is cut, changed and thrown away would visit the general allocator twice each
/// time; here it takes the block that the last one gave back. How much that is worth, and what it costs, is
/// told in docs/decisions/0008-blocks-of-short-texts.md.
///
/// The surprise: a block stays with the thread that gives it back, whoever took it. So there is no lock, and
/// a thread keeps no more than a few blocks of each size, which it frees when it ends. Texts that are
/// destroyed later still, those of static objects, go to the allocator. Where VAPP_BLOCK_CACHE is not defined
/// every block does.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <new>

namespace vapp_text {

/// The blocks that one thread keeps. All zero bits are a cache that nobody has used yet.
class BlockCache {
public:
    /// The largest block that is kept, in bytes.
    static constexpr std::size_t cnLargest = 248;
    /// The most blocks of one size that are kept.
    static constexpr unsigned cnKept = 16;

    /// Memory for `size` bytes, 1 or more; throws std::bad_alloc where there is none.
    [[nodiscard]] char* Take(std::size_t size) {
        const std::size_t kind = KindOf(size);
        if (kind < cnKinds) {
            TShelf& shelf = m_shelves[kind];
            if (TLink* const block = shelf.first) {
                shelf.first = block->next;
                ++shelf.room;
                return reinterpret_cast<char*>(block);
            }
        }
        return std::allocator<char>().allocate(SizeOf(kind, size));
    }

    /// Takes back what Take gave for the same size, on any thread.
    void Give(char* block, std::size_t size) noexcept {
        const std::size_t kind = KindOf(size);
        if (kind < cnKinds) {
            TShelf& shelf = m_shelves[kind];
            if (shelf.room > 0 || Open(shelf)) {
                shelf.first = new (block) TLink{shelf.first};
                --shelf.room;
                return;
            }
        }
        std::allocator<char>().deallocate(block, SizeOf(kind, size));
    }

    /// Frees all that is kept. Nothing is kept from then on.
    void Close() noexcept;

private:
    struct TLink {
        TLink* next;
    };
    struct TShelf {
        TLink* first;
        unsigned room;  // for so many more blocks
    };

    // The steps are those in which allocators round anyway: a block of 40 bytes has room for 25 to 40.
    static constexpr std::size_t cnStep = 16;
    static constexpr std::size_t cnKinds = cnLargest / cnStep + 1;
    [[nodiscard]] static constexpr std::size_t KindOf(std::size_t size) noexcept {
        return (size + cnStep / 2 - 1) / cnStep;
    }
    [[nodiscard]] static constexpr std::size_t SizeOf(std::size_t kind, std::size_t size) noexcept {
        return kind < cnKinds ? kind * cnStep + cnStep / 2 : size;
    }

    // True where the shelf has room: before the first block of the thread all of them get theirs.
    [[nodiscard]] bool Open(const TShelf& shelf) noexcept;

    std::array<TShelf, cnKinds> m_shelves;
    enum class State { Unused, Open, Closed } m_state;
};

#ifdef VAPP_BLOCK_CACHE

/// The calling thread's own. Its place is known when the library is loaded, so that it costs no call.
[[gnu::tls_model("initial-exec")]] extern constinit thread_local BlockCache gBlockCache;

/// Memory for the buffer of a text.
[[nodiscard]] inline char* TakeBlock(std::size_t size) {
    return gBlockCache.Take(size);
}
/// Takes back what TakeBlock gave for the same size.
inline void GiveBlock(char* block, std::size_t size) noexcept {
    gBlockCache.Give(block, size);
}

#else

[[nodiscard]] inline char* TakeBlock(std::size_t size) {
    return std::allocator<char>().allocate(size);
}
inline void GiveBlock(char* block, std::size_t size) noexcept {
    std::allocator<char>().deallocate(block, size);
}

#endif

}  // namespace vapp_text
