/// @file
/// Each name fetches the world, and the environment where it matters, and calls the rule. Expanding is the
/// text room's, which fetches both for itself.
#include "platform/Paths.h"

#include "platform/PathCompact.h"
#include "platform/PathJoin.h"
#include "platform/PathNames.h"
#include "platform/PathNormalize.h"
#include "platform/PathValid.h"
#include "text/ExpandEnvironment.h"

using vapp_platform::CurrentPathRules;

bool gIsAbsolutePath(const CStringU& path) {
    return vapp_platform::IsAbsolutePath(path, CurrentPathRules());
}

bool gIsUnixPath(const CStringU& path) {
    return vapp_platform::IsUnixPath(path);
}

CStringU gNormalizePath(const CStringU& path) {
    return vapp_platform::NormalizePath(path, CurrentPathRules());
}

CStringU gExpandEnvironment(const CStringU& text) {
    return vapp_text::ExpandEnvironment(text);
}

CStringU gJoinPath(const CStringU& base, const CStringU& relative) {
    return vapp_platform::JoinPath(base, relative, CurrentPathRules());
}

CStringU gResolvePath(const CStringU& base, const CStringU& path) {
    return vapp_platform::ResolvePath(base, path, CurrentPathRules());
}

CStringU gMakeRelativePath(const CStringU& base, const CStringU& path) {
    return vapp_platform::MakeRelativePath(base, path, CurrentPathRules());
}

CStringU gGetFileName(const CStringU& path) {
    return vapp_platform::GetFileName(path);
}

CStringU gGetDirectory(const CStringU& path) {
    return vapp_platform::GetDirectory(path);
}

CStringU gGetBaseName(const CStringU& path) {
    return vapp_platform::GetBaseName(path);
}

bool gHasExtension(const CStringU& path) {
    return vapp_platform::HasExtension(path);
}

CStringU gGetExtension(const CStringU& path) {
    return vapp_platform::GetExtension(path);
}

CStringU gReplaceExtension(const CStringU& path, const CStringU& extension) {
    return vapp_platform::ReplaceExtension(path, extension);
}

CStringU gEnsureExtension(const CStringU& path, const CStringU& extension) {
    return vapp_platform::EnsureExtension(path, extension);
}

CStringU gRemoveExtension(const CStringU& path) {
    return vapp_platform::RemoveExtension(path, CurrentPathRules());
}

bool gIsValidPath(const CStringU& path) {
    return vapp_platform::IsValidPath(path, vapp_platform::CurrentWorld());
}

CStringU gCompactPath(const CStringU& path, int maximum, bool keepName) {
    return vapp_platform::CompactPath(path, maximum, keepName);
}
