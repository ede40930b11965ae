/// @file
/// The path of the login program is written with `\` on every system: it is shown to the user as it always
/// was, and the start knows what it means.
#include "connection/StartWorker.h"

#include "platform/KnownFolders.h"
#include "platform/MessageBox.h"
#include "vapp/text/Translate.h"

namespace vapp_connection {

CStringU WorkerCommandLine(const ConnectionInfo& info) {
    if (info.runLocally) return info.command;
    return CStringU("\"") + gGetModuleFolder() + "\\putty\\bin\\plink.exe\" -batch -X -T " + info.sshTarget +
           " " + info.command;
}

std::unique_ptr<vapp_platform::ChildProcess> StartWorker(const vapp_platform::ChildStart& start) {
    vapp_platform::StartResult started = vapp_platform::ChildProcess::Start(start);
    if (started.child == nullptr) {
        const CString text = vlang::gTranslate("__$$Translatable$$_Create Process Failed");
        vapp_platform::ShowMessageBox(text, text);
    }
    return std::move(started.child);
}

}  // namespace vapp_connection
