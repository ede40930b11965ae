/// @file
/// The one destructor that gives CObject's table of virtual functions its home.
#include "vapp/toolkit/CObject.h"

CObject::~CObject() = default;
