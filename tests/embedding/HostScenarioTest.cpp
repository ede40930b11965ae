// A host over the shared library: every exported header in one source, objects and errors across the border.
#include "embedding/ExportedHeaders.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include "tests/embedding/MessageWindow.h"

namespace {

using namespace vapp_library_browser;  // NOLINT(google-build-using-namespace): the host's view

TEST(Embedding, WindowsOfTheHostAnswerThroughTheLibrary) {
    EXPECT_STREQ(embedding_test::UseSharedNames().GetString(), "5 title 7 text");
}

TEST(Embedding, TextMadeInTheLibraryEndsInTheHost) {
    CStringU name("Z\xC3\xA4hler", TextEncoding::Utf8Auto);
    name += CStringU("!");
    EXPECT_EQ(name.GetCharCount(), 7);
    EXPECT_EQ(name.CompareNoCase(CStringU("Z\xC3\x84HLER!", TextEncoding::Utf8Auto)), 0);
}

TEST(Embedding, TheInterpreterIsTheHosts) {
    Tcl_FindExecutable(nullptr);
    Tcl_Interp* interp = Tcl_CreateInterp();
    ASSERT_NE(interp, nullptr);
    ASSERT_EQ(Tcl_Init(interp), TCL_OK) << Tcl_GetStringResult(interp);
    EXPECT_EQ(Tcl_Eval(interp, "clock format 0 -gmt 1 -format %Y"), TCL_OK) << Tcl_GetStringResult(interp);
    EXPECT_STREQ(Tcl_GetStringResult(interp), "1970");
    EXPECT_EQ(Tcl_Eval(interp, "string length [binary decode hex [binary encode hex [zlib compress abc]]]"),
              TCL_OK)
        << Tcl_GetStringResult(interp);
    Tcl_DeleteInterp(interp);
}

}  // namespace
