/// @file
/// The table of pictures.
#include "vapp/toolkit/Resources.h"

#include <map>
#include <utility>

namespace {

HINSTANCE s_module = nullptr;

std::map<std::pair<HINSTANCE, UINT>, HBITMAP>& Bitmaps() {
    static std::map<std::pair<HINSTANCE, UINT>, HBITMAP> bitmaps;
    return bitmaps;
}

}  // namespace

void gSetBitmapResource(UINT id, HBITMAP bitmap, HINSTANCE module) {
    if (bitmap != nullptr) {
        Bitmaps().insert_or_assign({module, id}, bitmap);
    } else {
        Bitmaps().erase({module, id});
    }
}

HBITMAP gLoadBitmapResource(UINT id) {
    const auto found = Bitmaps().find({s_module, id});
    return found != Bitmaps().end() ? found->second : nullptr;
}

HINSTANCE gGetResourceHandle() noexcept {
    return s_module;
}

void gSetResourceHandle(HINSTANCE module) noexcept {
    s_module = module;
}
