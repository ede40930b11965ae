/// @file
/// Finds the row that the user is typing the name of: one set of rules for all lists. It moves nothing; the
/// control around it selects the row that was found.
#pragma once

#include <cstdint>
#include <functional>

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"

/// The text typed so far and when its last piece came.
///
/// A new text is looked for behind the focused row and goes round. While it grows, the focused row counts too
/// and so stays as long as it matches. The same letter again and again goes from row to row that begin with
/// it, even where a row begins with the letter doubled.
class VAPP_EXPORT TypeAhead {
public:
    /// A pause longer than this, in milliseconds, begins a new text.
    static constexpr std::int64_t cnPause = 1000;

    /// The row that begins with the text typed so far, without regard to case, or -1.
    ///
    /// @param piece  what one key press gave; an empty one finds nothing
    /// @param milliseconds  any steady clock
    /// @param focus  the focused row, -1 for none
    /// @param rowText  gives the text of a row from 0 to below `rowCount`; asked of each at most once
    [[nodiscard]] int Find(const CStringU& piece, std::int64_t milliseconds, int focus, int rowCount,
                           const std::function<CStringU(int)>& rowText);
    /// The same for rows that compare for themselves: true if the row's text begins with the other one,
    /// without regard to case. A list of a million rows has no time to make a text of each.
    [[nodiscard]] int FindMatch(const CStringU& piece, std::int64_t milliseconds, int focus, int rowCount,
                                const std::function<bool(int, const CStringU&)>& rowBeginsWith);
    /// True while the next piece would lengthen the text. A blank then belongs to the text, and is no key.
    [[nodiscard]] bool IsPending(std::int64_t milliseconds) const;

private:
    bool Grow(const CStringU& piece, std::int64_t milliseconds);

    CStringU m_typed;
    CStringU m_firstPiece;
    std::int64_t m_typedAt = 0;
    bool m_repeated = false;
};
