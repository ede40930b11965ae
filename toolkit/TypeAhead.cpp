/// @file
/// The walk over the rows that type-ahead does.
#include "vapp/toolkit/TypeAhead.h"

int TypeAhead::Find(const CStringU& piece, std::int64_t milliseconds, int focus, int rowCount,
                    const std::function<CStringU(int)>& rowText) {
    return FindMatch(piece, milliseconds, focus, rowCount, [&rowText](int row, const CStringU& wanted) {
        return rowText(row).StartsWithNoCase(wanted);
    });
}

int TypeAhead::FindMatch(const CStringU& piece, std::int64_t milliseconds, int focus, int rowCount,
                         const std::function<bool(int, const CStringU&)>& rowBeginsWith) {
    if (piece.IsEmpty()) return -1;
    const bool grown = Grow(piece, milliseconds);
    if (rowCount <= 0) return -1;
    // Only a text that grew may stay where it is; a new one, or a repeated letter, goes on.
    int first = focus >= 0 && focus < rowCount ? focus : -1;
    if (!grown || first < 0) first = first + 1 < rowCount ? first + 1 : 0;
    const CStringU& wanted = m_repeated ? m_firstPiece : m_typed;
    for (int step = 0; step < rowCount; ++step) {
        const int row = step < rowCount - first ? first + step : step - (rowCount - first);
        if (rowBeginsWith(row, wanted)) return row;
    }
    return -1;
}

// A clock that goes backward counts as a pause; the difference is unsigned, which no clock can overflow.
bool TypeAhead::IsPending(std::int64_t milliseconds) const {
    const auto sinceLast = static_cast<std::uint64_t>(milliseconds) - static_cast<std::uint64_t>(m_typedAt);
    return !m_typed.IsEmpty() && sinceLast <= static_cast<std::uint64_t>(cnPause);
}

// True if the piece lengthens the text; false if it begins a new one or repeats the only letter of it.
bool TypeAhead::Grow(const CStringU& piece, std::int64_t milliseconds) {
    const bool isNew = !IsPending(milliseconds);
    m_typedAt = milliseconds;
    if (isNew) {
        m_typed = piece;
        m_firstPiece = piece;
        m_repeated = false;
        return false;
    }
    const bool onlyOneLetter = m_repeated || m_typed == m_firstPiece;
    m_repeated = onlyOneLetter && m_firstPiece.EqualsNoCase(piece);
    m_typed += piece;
    return !m_repeated;
}
