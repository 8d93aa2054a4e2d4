#include "src/shell/KeyList.h"

#include <gtest/gtest.h>

#include "src/platform/base/KeyListText.h"

namespace {

KeyList listOf(std::wstring_view text) { return KeyList(parseKeyList(text)->keys); }

TEST(KeyList, PositionsGiveControlIdsAndOkAndCancelKeepTheirs) {
    const KeyList list = listOf(L"SCHEM,OK,Cancel,HELP,LABEL0");
    EXPECT_EQ(list.idForKey(L"Help"), 112);
    EXPECT_EQ(list.idForKey(L"label0"), 113);
    EXPECT_EQ(list.idForKey(L"ok"), 1);
    EXPECT_EQ(list.idForKey(L"ACCEPT"), 1);
    EXPECT_EQ(list.idForKey(L"CANCEL"), 2);
    EXPECT_EQ(list.idForKey(L"none"), -1);
    EXPECT_EQ(list.keyForId(110), L"ok");
    EXPECT_EQ(list.keyForId(112), L"help");
    EXPECT_EQ(list.keyForId(1), L"ok");
    EXPECT_EQ(list.keyForId(2), L"cancel");
    EXPECT_EQ(list.keyForId(109), L"control not found");
    EXPECT_EQ(list.keyForId(114), L"control not found");
    EXPECT_EQ(listOf(L"SU,HELP,Cancel,OK").idForKey(L"help"), 110);
}

TEST(KeyList, AnEmptyFieldIsAPositionThatTheEmptyKeyFinds) {
    const KeyList list = listOf(L"NAME,A,,B,");
    ASSERT_EQ(list.keys().size(), 4u);
    EXPECT_EQ(list.idForKey(L""), 111);
    EXPECT_EQ(list.keyForId(111), L"");
    EXPECT_EQ(list.idForKey(L"b"), 112);
    EXPECT_EQ(KeyList().idForKey(L""), -1);
}

TEST(KeyListText, NamesAndFields) {
    EXPECT_EQ(keyListName(L"ADD_REC,OK"), L"ADD_REC");
    EXPECT_EQ(keyListName(L"no comma"), L"");
    EXPECT_EQ(keyListName(L",X"), L"");
    EXPECT_FALSE(parseKeyList(L"ADD_REC"));
    EXPECT_FALSE(parseKeyList(L""));
    const auto blanks = parseKeyList(L"N, A b ,C");
    ASSERT_TRUE(blanks);
    EXPECT_EQ(blanks->name, L"n");
    EXPECT_EQ(blanks->keys, (CStringArray{L" a b ", L"c"}));
    // The first comma counts from the second character on.
    const auto early = parseKeyList(L",A,B");
    ASSERT_TRUE(early);
    EXPECT_EQ(early->name, L",a");
    EXPECT_EQ(early->keys, (CStringArray{L"b"}));
}

}  // namespace
