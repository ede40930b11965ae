/// @file
/// A command line as one text, and the arguments in it: split by the quoting rules that Windows programs
/// apply to their own command line, and the inverse.
///
/// Pure rules, for either system. Where a process gets an argument list instead of a line, the line is split
/// here just before the start, so that one text means the same on both systems. Not a shell: there is no
/// expansion, no redirection and no single quote.
///
/// The grammar. Blanks and tabs separate. The program, the first argument, knows quotes that only switch
/// (no backslash has a meaning in it, so that "C:\dir\" ends where it looks as if it ended). In every other
/// argument:
///
///     2n backslashes and a quote      n backslashes, and the quote switches
///     2n+1 backslashes and a quote    n backslashes and a plain quote
///     backslashes before anything     themselves
///     two quotes inside of quotes     a plain quote, and the quotes go on
///
/// The surprise: a quote that nobody closes runs to the end of the line and is no error.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vapp_platform {

/// The arguments of a command line, the program first; none for a line of blanks alone. Works on the bytes of
/// any encoding in which the bytes of the five signs mean nothing else (UTF-8, every single-byte code page).
[[nodiscard]] std::vector<std::string> SplitCommandLine(std::string_view line);

/// One argument behind the program, written so that SplitCommandLine gives it back.
[[nodiscard]] std::string QuoteArgument(std::string_view argument);

/// The inverse of SplitCommandLine. A quote in the program, the first argument, can't be expressed and is
/// left out.
[[nodiscard]] std::string JoinCommandLine(const std::vector<std::string>& arguments);

}  // namespace vapp_platform
