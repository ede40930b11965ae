/// @file
/// Under Wine the suite's folder has a name without a blank, since scripts on the Unix side go there too.
#include "platform/KnownFolders.h"

#include "platform/Paths.h"
#include "platform/SystemFolders.h"
#include "platform/WineNames.h"
#include "platform/World.h"

CStringU gGetExePath() {
    return vapp_platform::ProgramPath();
}

CStringU gGetExeFolder() {
    return gGetDirectory(gGetExePath());
}

CStringU gGetModulePath() {
    return vapp_platform::ModulePath();
}

CStringU gGetModuleFolder() {
    return gGetDirectory(gGetModulePath());
}

CStringU gGetDocumentsFolder() {
    return gGetUnixNameU(vapp_platform::DocumentsFolder());
}

CStringU gGetUserDataFolder() {
    const CStringU base = vapp_platform::ApplicationDataFolder();
    if (base.IsEmpty()) return {};
    return gJoinPath(base, gIsWine() ? "Vornex_EDA" : "Vornex EDA");
}
