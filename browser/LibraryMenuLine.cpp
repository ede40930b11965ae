/// @file
/// What each style appends, and how the line is wrapped for the host's log.
#include "browser/LibraryMenuLine.h"

#include "vapp/browser/TclBridge.h"
#include "vapp/text/Translate.h"

namespace vapp_library_browser {

namespace {

// Users of a host in another language see the option in the log, so it is worded like any text.
constexpr char csLibrariesOption[] = "__$$Translatable$$_ -libraries {";

void AppendLibraries(TLineBuilder& line, const std::set<CStringIU>& libraries) {
    if (libraries.empty()) return;
    line.Literal(vlang::gTranslate(csLibrariesOption).GetString());
    for (const CStringIU& library : libraries) {
        // Quotes in place of the hook: hosts take these names apart by this form.
        line.Literal(" \"").Text(library).Literal("\"");
    }
    line.Literal(" }");
}

}  // namespace

std::optional<CStringU> MakeLibraryMenuLine(const CStringU& text, TLibraryBrowserTclInterfaceStyle style,
                                            bool qedit, const CStringU& design,
                                            const std::set<CStringIU>& libraries) {
    if (text.IsEmpty()) return std::nullopt;
    TLineBuilder line(text.PayloadView());
    switch (style) {
        case StyleBuiltIn:
            break;
        case StyleCommandOnly:
        case StyleSelectedLibraries:
            if (!qedit && design.IsEmpty()) return std::nullopt;
            if (!qedit) line.Literal(" ").Name(design);
            if (style == StyleSelectedLibraries) AppendLibraries(line, libraries);
            break;
        default:
            // Whatever the text begins with, and besides the wrapping that every line gets below.
            return WrapForActionLog(TLineBuilder("logaction ").Name(text).ToText());
    }
    return WrapForActionLog(line.ToText());
}

}  // namespace vapp_library_browser
