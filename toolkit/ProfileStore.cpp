/// @file
/// The one destructor that gives ProfileStore's table of virtual functions its home.
#include "vapp/toolkit/ProfileStore.h"

ProfileStore::~ProfileStore() = default;
