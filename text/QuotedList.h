/// @file
/// Lists of narrow texts as one text, each item in quotes: "a","b\"c".
///
///     list = [ item { "," item } ]
///     item = '"' { byte | "\" byte } '"'
///
/// In an item a quote and a backslash are escaped by a backslash; all other bytes stand for themselves, line
/// feeds among them. What JoinQuoted writes, SplitQuoted reads back. SplitQuoted reads more than that: it
/// skips whatever stands between items, commas or not, so that unquoted words are lost; and so is an item
/// that is not closed.
///
/// Bytes, not characters: in a code page where a backslash can be the second byte of a character, that byte
/// is escaped too, and comes back the same.
#pragma once

#include "text/CStringArray.h"
#include "vapp/text/CString.h"

namespace vapp_text {

/// The items in order as one text.
[[nodiscard]] CString JoinQuoted(const CStringArray& array);

/// Replaces the array by the items of a text; gives their number.
int SplitQuoted(const CString& text, CStringArray& array);

}  // namespace vapp_text
