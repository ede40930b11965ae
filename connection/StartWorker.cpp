/// @file
/// A worker's start is the one place where a connection speaks to the user by itself.
#include "connection/StartWorker.h"

#include "connection/PuttyProgram.h"
#include "platform/MessageBox.h"
#include "vapp/text/Translate.h"

namespace vapp_connection {

CStringU WorkerCommandLine(const ConnectionInfo& info) {
    if (info.runLocally) return info.command;
    return QuotedPuttyProgram("plink.exe") + " -batch -X -T " + info.sshTarget + " " + info.command;
}

std::unique_ptr<vapp_platform::ChildProcess> StartWorker(const vapp_platform::ChildStart& start) {
    vapp_platform::StartResult started = vapp_platform::ChildProcess::Start(start);
    if (started.child == nullptr) {
        const CString text = vlang::gTranslate("__$$Translatable$$_Create Process Failed");
        vapp_platform::ShowMessageBox(text, text, vapp_platform::BoxStyle::Plain);
    }
    return std::move(started.child);
}

}  // namespace vapp_connection
