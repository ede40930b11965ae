#include "vapp/browser/TTclList.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include "tests/browser/RecordingHost.h"
#include "vapp/browser/TTclObject.h"
#include "vapp/browser/TclBridge.h"

using namespace vapp_library_browser;

class TTclListTest : public testing::Test {
protected:
    static TTclObject Object(const char* text) { return TTclObject(Tcl_NewStringObj(text, -1)); }

    RecordingHost m_host;  // Tcl is there from its first interpreter on
};

TEST_F(TTclListTest, ElementsComeInTheirOrder) {
    const TTclObject object = Object("a {b c} {} \"d e\" f\\ g");
    const auto list = TTclList::Read(object.Get());
    ASSERT_TRUE(list);
    EXPECT_FALSE(list->empty());
    std::vector<std::string> elements;
    for (Tcl_Obj* element : *list)
        elements.emplace_back(ReadBytes(element));
    EXPECT_EQ(elements, (std::vector<std::string>{"a", "b c", "", "d e", "f g"}));
    ASSERT_EQ(list->size(), elements.size());
    EXPECT_EQ(ReadBytes((*list)[3]), "d e");
}

TEST_F(TTclListTest, NothingButBlanksIsAListWithoutElements) {
    for (const char* text : {"", " ", "\n\t "}) {
        const TTclObject object = Object(text);
        const auto list = TTclList::Read(object.Get());
        ASSERT_TRUE(list);
        EXPECT_TRUE(list->empty());
        EXPECT_EQ(list->begin(), list->end());
    }
}

TEST_F(TTclListTest, ListsOfListsAreTakenApartLevelByLevel) {
    const TTclObject object = Object("{top {a /a}}");
    const auto designs = TTclList::Read(object.Get());
    ASSERT_TRUE(designs);
    const auto design = TTclList::Read((*designs)[0]);
    ASSERT_TRUE(design);
    const auto pair = TTclList::Read((*design)[1]);
    ASSERT_TRUE(pair);
    ASSERT_EQ(pair->size(), 2u);
    EXPECT_EQ(ReadBytes((*pair)[1]), "/a");
}

TEST_F(TTclListTest, WhatIsNoListIsNothingAndLeavesNoTrace) {
    m_host.Eval("set errorInfo before");
    m_host.SetResult("kept");
    EXPECT_FALSE(TTclList::Read(nullptr));
    for (const char* text : {"{", "a {b}c", "\"open"})
        EXPECT_FALSE(TTclList::Read(Object(text).Get())) << text;
    EXPECT_EQ(m_host.GetResult(), "kept");
    EXPECT_EQ(m_host.Eval("set errorInfo"), "before");
}
