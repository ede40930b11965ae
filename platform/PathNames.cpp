/// @file
/// Separators, colons and dots are single bytes in UTF-8 too, so that no character has to be decoded.
#include "platform/PathNames.h"

#include <string>

#include "platform/PathJoin.h"

namespace vapp_platform {
namespace {

/// Where the name begins.
std::size_t NameStart(std::string_view path) noexcept {
    std::size_t start = path.size();
    while (start > 0 && !IsNameSeparator(path[start - 1]))
        --start;
    return start;
}

/// Where the extension begins, behind its dot; cnNone without one.
std::size_t ExtensionStart(std::string_view path) noexcept {
    std::size_t start = path.size();
    while (start > 0 && path[start - 1] != '.' && !IsNameSeparator(path[start - 1]))
        --start;
    return start > 0 && path[start - 1] == '.' ? start : cnNone;
}

CStringU WithExtension(std::string_view front, std::string_view between, const CStringU& extension) {
    std::string whole;
    whole.reserve(front.size() + between.size() + extension.PayloadView().size());
    whole.append(front).append(between).append(extension.PayloadView());
    return TextOf(whole);
}

}  // namespace

bool IsUnixPath(const CStringU& path) noexcept {
    std::string_view text = path.PayloadView();
    const auto isQuotedBy = [&text](char quote) {
        return text.size() >= 3 && text.front() == quote && text.back() == quote;
    };
    while (isQuotedBy('"') || isQuotedBy('\''))
        text = text.substr(1, text.size() - 2);
    return text.starts_with('/') || text.starts_with("../") || text.starts_with("./");
}

CStringU GetFileName(const CStringU& path) {
    const std::string_view bytes = path.PayloadView();
    return PieceOf(path, bytes.substr(NameStart(bytes)));
}

CStringU GetDirectory(const CStringU& path) {
    const std::string_view bytes = path.PayloadView();
    const std::size_t name = NameStart(bytes);
    if (name == 0) return {};
    const std::size_t separator = name - 1;
    const bool keep = bytes[separator] == ':' || (separator > 0 && bytes[separator - 1] == ':');
    return PieceOf(path, bytes.substr(0, keep ? name : separator));
}

CStringU GetBaseName(const CStringU& path) {
    const std::string_view bytes = path.PayloadView();
    const std::string_view name = bytes.substr(NameStart(bytes));
    const std::size_t extension = ExtensionStart(name);
    return PieceOf(path, extension == cnNone ? name : name.substr(0, extension - 1));
}

bool HasExtension(const CStringU& path) noexcept {
    return ExtensionStart(path.PayloadView()) != cnNone;
}

CStringU GetExtension(const CStringU& path) {
    const std::string_view bytes = path.PayloadView();
    const std::size_t extension = ExtensionStart(bytes);
    return extension == cnNone ? CStringU() : PieceOf(path, bytes.substr(extension));
}

CStringU ReplaceExtension(const CStringU& path, const CStringU& extension) {
    const std::string_view bytes = path.PayloadView();
    const std::size_t old = ExtensionStart(bytes);
    return old == cnNone ? WithExtension(bytes, ".", extension)
                         : WithExtension(bytes.substr(0, old), "", extension);
}

CStringU EnsureExtension(const CStringU& path, const CStringU& extension) {
    // Of a path that ends in no dot the empty extension is that of a path without one, too.
    if (GetExtension(path) == extension) return path;
    return WithExtension(path.PayloadView(), ".", extension);
}

CStringU RemoveExtension(const CStringU& path, const PathRules& rules) {
    return JoinPath(GetDirectory(path), GetBaseName(path), rules);
}

}  // namespace vapp_platform
