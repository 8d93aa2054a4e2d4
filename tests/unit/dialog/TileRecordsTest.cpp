#include "src/dialog/TileRecords.h"

#include <gtest/gtest.h>

namespace {

TileRecords records() {
    TileRecords made;
    made.keys = KeyList({L"ok", L"cancel", L"mfg", L""});
    return made;
}

TEST(TileRecords, KeysAndIdsFindOneRecord) {
    TileRecords tiles = records();
    CCtrlInfo* mfg = tiles.forKey(L"MFG");
    EXPECT_EQ(mfg->m_ctrlId, 112);
    EXPECT_EQ(tiles.forId(112), mfg);
    CCtrlInfo* ok = tiles.forId(1);
    EXPECT_EQ(ok->m_key, L"ok");
    EXPECT_EQ(tiles.forKey(L"Accept"), ok);
    EXPECT_EQ(tiles.forKey(L"OK"), ok);
    EXPECT_EQ(tiles.forKey(L""), nullptr);
    EXPECT_EQ(tiles.size(), 2u);
}

TEST(TileRecords, UnknownKeysAndIdsGetRecordsOfTheirOwn) {
    TileRecords tiles = records();
    CCtrlInfo* unknown = tiles.forKey(L"nobody");
    EXPECT_EQ(unknown->m_ctrlId, -1);
    EXPECT_EQ(tiles.forId(-1), unknown);
    EXPECT_EQ(tiles.forId(400)->m_key, L"control not found");
    EXPECT_EQ(tiles.forId(113)->m_key, L"");
    EXPECT_EQ(tiles.size(), 3u);
}

TEST(TileRecords, TheOldestOfSeveralWins) {
    TileRecords tiles = records();
    CCtrlInfo* byUnknownKey = tiles.forKey(L"control not found");
    CCtrlInfo* byId = tiles.forId(300);
    EXPECT_NE(byUnknownKey, byId);
    EXPECT_EQ(tiles.forKey(L"control not found"), byUnknownKey);
}

}  // namespace
