// Step 1: an application object. Its start reads the command line, counts the instances, shows the splash and
// checks the processor, in this order; what differs from tool to tool are its virtual functions.
#include <cstdio>

#include "vapp/app/TApp.h"

namespace {

class LayoutTool final : public TApp {
public:
    LayoutTool() : TApp("layout_tool") {}

    const char* GetApplicationName() override { return "layout_tool"; }
    const char* GetVersionString() override { return "1.0"; }
    unsigned long GetInstanceLimit() override { return 8; }
};

}  // namespace

int main() {
    LayoutTool app;
    if (app.InitInstance() == 0) {
        std::puts("eight of us run already");
        return 1;
    }
    std::printf("%s %s\n", app.GetApplicationName(), app.GetVersionString());
    const CCommandLineInfo& words = *app.GetCmdInfo();
    if (words.m_nShellCommand == CCommandLineInfo::FileOpen)
        std::printf("opens %s\n", words.m_strFileName.Payload());
    return 0;
}
