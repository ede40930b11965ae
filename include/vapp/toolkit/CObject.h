/// @file
/// The root of the toolkit's classes: something that can be deleted through a base pointer and asked for its
/// dynamic type.
#pragma once

#include "vapp/Export.h"

/// Base of windows, documents and update hints. Not copyable: identity matters.
class VAPP_EXPORT CObject {
public:
    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject();
};
