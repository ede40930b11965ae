/// What the panes hold, as text: controls are the truth about what they show, with and without a screen.
#pragma once

#include "vapp/browser/TLibraryBrowser.h"

/// Libraries, selected ones marked by a star, and the visible columns of the cell list.
void PrintPanes(vapp_library_browser::TLibraryBrowser& browser);
