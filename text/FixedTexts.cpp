/// @file
/// The wording of rectangles and file errors.

#include "text/FixedTexts.h"

#include <array>

namespace vapp_text {

namespace {

// By cause.
constexpr std::array csFileErrors{"No error occurred.",
                                  "An unspecified error occurred.",
                                  "The file could not be located.",
                                  "All or part of the path is invalid.",
                                  "The permitted number of open files was exceeded.",
                                  "The file could not be accessed.",
                                  "There was an attempt to use an invalid file handle.",
                                  "The current working directory cannot be removed.",
                                  "There are no more directory entries.",
                                  "There was an error trying to set the file pointer.",
                                  "There was a hardware error.",
                                  "SHARE.EXE was not loaded, or a shared region was locked.",
                                  "There was an attempt to lock a region that was already locked.",
                                  "The disk is full.",
                                  "The end of file was reached."};

unsigned Distance(int from, int to) {
    return static_cast<unsigned>(to) - static_cast<unsigned>(from);
}

}  // namespace

CStringU RectToText(int left, int top, int right, int bottom) {
    return CStringU::Formatted("(%d, %d, %d, %d w=%u h=%u)", left, top, right, bottom, Distance(left, right),
                               Distance(top, bottom));
}

CStringU FileExceptionText(int cause) {
    if (cause >= 0 && static_cast<std::size_t>(cause) < csFileErrors.size()) {
        return csFileErrors[static_cast<std::size_t>(cause)];
    }
    return CStringU::Formatted("File Exception %d", cause);
}

}  // namespace vapp_text
