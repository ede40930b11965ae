#include "vapp/browser/TTclObject.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <utility>

#include "tests/browser/RecordingHost.h"
#include "vapp/browser/TTclList.h"

using namespace vapp_library_browser;

class TTclObjectTest : public testing::Test {
protected:
    RecordingHost m_host;
};

TEST_F(TTclObjectTest, EachHolderHasOneReference) {
    Tcl_Obj* object = Tcl_NewStringObj("x", -1);
    TTclObject first(object);
    EXPECT_EQ(object->refCount, 1);
    {
        const TTclObject second = first;
        EXPECT_EQ(object->refCount, 2);
        TTclObject third;
        third = second;
        EXPECT_EQ(object->refCount, 3);
        third = third.Get() != nullptr ? TTclObject() : third;
        EXPECT_EQ(object->refCount, 2);
    }
    TTclObject moved = std::move(first);
    EXPECT_EQ(object->refCount, 1);
    EXPECT_EQ(moved.Get(), object);
}

TEST_F(TTclObjectTest, AdoptAndReleasePassAReferenceOn) {
    Tcl_Obj* object = Tcl_NewStringObj("x", -1);
    Tcl_IncrRefCount(object);
    TTclObject holder = TTclObject::Adopt(object);
    EXPECT_EQ(object->refCount, 1);
    Tcl_Obj* back = holder.Release();
    EXPECT_FALSE(holder);
    EXPECT_EQ(back->refCount, 1);
    Tcl_DecrRefCount(back);
}

TEST_F(TTclObjectTest, ListsOfListsAreTakenApartLevelByLevel) {
    const TTclObject object(Tcl_NewStringObj("{a b c} {} d", -1));
    const auto outer = TTclList::Read(object.Get());
    ASSERT_TRUE(outer);
    ASSERT_EQ(outer->size(), 3u);
    std::size_t items = 0;
    for (Tcl_Obj* element : *outer)
        items += TTclList::Read(element)->size();
    EXPECT_EQ(items, 4u);
    EXPECT_TRUE(TTclList::Read((*outer)[1])->empty());
}
