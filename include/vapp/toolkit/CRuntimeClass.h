/// @file
/// What a splitter needs to make a pane without knowing its class.
#pragma once

#include <memory>

class CView;

/// A class that can be made by name: the name and a maker.
struct CRuntimeClass {
    const char* name = "";
    std::unique_ptr<CView> (*create)() = nullptr;
};

/// The runtime class of a view that has a default constructor.
template <typename View>
[[nodiscard]] CRuntimeClass gRuntimeClass(const char* name) {
    return {name, []() -> std::unique_ptr<CView> { return std::make_unique<View>(); }};
}
