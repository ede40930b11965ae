/// @file
/// What the tests of settings and their other programs agree about: names and values in the file they share.
#pragma once

#include <string>

#include "vapp/text/CString.h"

inline constexpr char csSharedSection[] = "s";

/// The value that a program gives to what it writes, and the one that stands there before; both as long as
/// the other, so that the size of the file stays.
inline constexpr int cnWritten = 2;
inline constexpr int cnNotWritten = 1;

/// What one of several writers writes in one of its rounds, of a length that is the same for all.
inline CString gSharedKey(int writer, int round) {
    constexpr int cnFirst = 100;  // three digits each
    return CString(("w" + std::to_string(writer) + "r" + std::to_string(cnFirst + round)).c_str());
}
