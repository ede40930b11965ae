/// @file
/// What each style appends. The names are made safe one by one, and the whole once more when it is wrapped.
#include "celllist/CellCommandLine.h"

#include "vapp/browser/TclBridge.h"

namespace vapp_library_browser {

namespace {

void AppendFocused(TLineBuilder& line, const CellCommandSubject& subject) {
    if (!subject.focused.cell.IsEmpty()) line.Literal(" ").Triple(subject.focused);
}

// Each triple in quotes with a blank on both sides, so two between neighbours: it is how hosts know it.
void AppendSelected(TLineBuilder& line, const CellCommandSubject& subject) {
    for (const TLibCellView& cell : subject.selected)
        line.Literal(" \"").Triple(cell).Literal("\" ");
    line.Literal("}");
}

// The styles of a single name or two; the same for both ways, where the way has them at all.
void AppendNames(TLineBuilder& line, TLibraryBrowserTclInterfaceStyle style, const TLibCellView& focused) {
    if (focused.cell.IsEmpty()) return;
    if (style == StyleMasterCell) {
        line.Literal(" -mastercell ").Name(focused.cell);
        line.Literal(" -masterdesign ").Name(focused.library).Literal(" -add");
    } else if (style == StyleCellLibraryView) {
        line.Literal(" ").Name(focused.cell).Literal(" ").Name(focused.library);
        line.Literal(" ").Name(focused.view);
    } else if (style == StyleLibraryCell) {
        line.Literal(" ").Name(focused.library).Literal(" ").Name(focused.cell);
    }
}

}  // namespace

CStringU MakeCellMenuLine(const CStringU& command, TLibraryBrowserTclInterfaceStyle style,
                          const CellCommandSubject& subject) {
    TLineBuilder line(command.PayloadView());
    const bool hasDesign = style == StyleFocusedLcv || style == StyleSelectedLcvs;
    if (hasDesign && !subject.qedit) line.Literal(" ").Name(subject.design);
    if (style == StyleFocusedLcv) {
        AppendFocused(line, subject);
    } else if (style == StyleSelectedLcvs) {
        line.Literal(" -lcvs {");
        AppendSelected(line, subject);
    } else {
        AppendNames(line, style, subject.focused);
    }
    return WrapForActionLog(line.ToText());
}

CStringU MakeDoubleClickLine(const CStringU& command, TLibraryBrowserTclInterfaceStyle style,
                             const CellCommandSubject& subject) {
    TLineBuilder line(command.PayloadView());
    if (style == StyleFocusedLcv) {
        line.Literal(" ").Name(subject.design);
        AppendFocused(line, subject);
    } else if (style == StyleSelectedLcvs) {
        line.Literal(" ").Name(subject.design).Literal(" {");
        AppendSelected(line, subject);
    } else if (style != StyleMasterCell) {
        // A master is placed from the menu only.
        AppendNames(line, style, subject.focused);
    }
    return TLineBuilder("logaction ").Name(line.ToText()).ToText();
}

}  // namespace vapp_library_browser
