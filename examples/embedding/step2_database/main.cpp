// Step 2: the interpreter and the command `database`. Nothing is shown yet; this program asks what the
// navigator will ask, by the same way.
#include <cstdio>

#include "step2_database/Database.h"
#include "vapp/app/TApp.h"
#include "vapp/browser/TclBridge.h"

int main(int, char** argv) {
    TApp app("layout_tool");
    const Interpreter interp = MakeInterpreter(argv[0]);
    const Database database(interp.get());

    for (const char* line : {
             "database all_libs",
             "database top_level chip",
             "database cells -lcv -library chip -count -filter  -libraries {logic}",
             "database cells -lcv -library chip -filter Layouts",
             "database cellviewinfo is_modified chip logic nand2 symbol ",
         })
        std::printf("%s\n    %s\n", line, vapp_library_browser::AskTclText(interp.get(), line).Payload());
    std::printf("a name as one word: %s\n", vapp_library_browser::SanitizeTclInput("bias [ref]").Payload());
    return 0;
}
