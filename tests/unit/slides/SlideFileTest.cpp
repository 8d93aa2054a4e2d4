// A slide's file: the gate, the header, and what loads leave.
#include <gtest/gtest.h>

#include "src/slides/CSlideObject.h"
#include "tests/support/TempFolder.h"
#include "tests/support/slides/MadeSlide.h"

namespace {

using Bytes = std::vector<uint8_t>;

// An image that begins with the magic in 16-bit characters.
Bytes wideSlide(size_t size) {
    Bytes image;
    for (const char c : std::string("Korvale Slide")) image.insert(image.end(), {static_cast<uint8_t>(c), 0});
    image.resize(size);
    return image;
}

Bytes narrowSlide() { return MadeSlide({2, true}, 100, 50).vector(1, 2, 3, 4).end(); }

TEST(SlideHeader, HasBothLevelsAndByteOrders) {
    for (const SlideForm form : EVERY_FORM) {
        const OpenSlide slide(MadeSlide(form, 0x1FE, 0x8001).end());
        EXPECT_TRUE(slide.HasImage());
        EXPECT_EQ(slide.GetLevel(), form.level);
        EXPECT_EQ(slide.GetExtents(), (SlideSize{0x1FE, 0x8001}));
    }
}

TEST(SlideHeader, WithAWrongMarkIsBigEndianInLevelTwoAndRefusedInLevelOne) {
    Bytes image = MadeSlide({2, true}, 0x0102, 0x0304).end();
    image[29] = 0x35;
    EXPECT_EQ(OpenSlide(image).GetExtents(), (SlideSize{0x0201, 0x0403}));

    const OpenSlide refused(MadeSlide({1, true}, 10, 10).vector(1, 2, 3, 4));
    EXPECT_FALSE(refused.HasImage());
    EXPECT_EQ(refused.GetDataSize(), 33u);
}

TEST(SlideHeader, IsRefusedWhereItIsCutOrItsLevelIsUnknown) {
    for (const SlideForm form : EVERY_FORM) {
        const Bytes whole = MadeSlide(form, 10, 10).end();
        for (size_t size = 0; size < (form.level == 2 ? 31u : whole.size()); ++size)
            EXPECT_FALSE(OpenSlide(Bytes(whole.begin(), whole.begin() + size)).HasImage()) << size;
    }
    for (const uint8_t level : {0, 3, 0x32}) {
        Bytes image = narrowSlide();
        image[18] = level;
        EXPECT_FALSE(OpenSlide(image).HasImage());
    }
}

TEST(SlideGate, RefusesEverySlide) {
    EXPECT_FALSE(slideMagicMatches(narrowSlide()));
    EXPECT_TRUE(slideMagicMatches(wideSlide(26)));
    EXPECT_FALSE(slideMagicMatches(wideSlide(24)));
    // It stands where the level should: the low byte of a letter.
    EXPECT_EQ(wideSlide(100)[18], 0x6C);

    const TempFolder folder;
    for (const Bytes& image : {narrowSlide(), wideSlide(100)}) {
        CSlideObject slide;
        EXPECT_EQ(slide.Load(folder.file("refused.sld", image)), 0);
        EXPECT_FALSE(slide.HasImage());
        EXPECT_EQ(slide.GetDataSize(), 33u);
        EXPECT_TRUE(slide.GetPath().empty());
    }
}

TEST(SlideLoad, GoesByThePath) {
    const TempFolder folder;
    OpenSlide slide(narrowSlide());
    EXPECT_EQ(slide.Load(L""), 1);
    EXPECT_FALSE(slide.HasImage());
    EXPECT_EQ(slide.LoadFromFile(L"sld"), 0);
    EXPECT_EQ(slide.LoadFromFile(folder.file("none.sld")), 0);
    EXPECT_EQ(slide.LoadFromFile(folder.file("slide.txt", wideSlide(100))), 0);

    EXPECT_TRUE(CSlideObject::IsLibraryPath(L"a)"));
    EXPECT_TRUE(CSlideObject::IsLibraryPath(L"a.SLB"));
    EXPECT_TRUE(CSlideObject::IsLibraryPath(L"a.slb(b"));
    EXPECT_FALSE(CSlideObject::IsLibraryPath(L"a.sld"));
    EXPECT_FALSE(CSlideObject::IsLibraryPath(L"slb"));
    EXPECT_FALSE(CSlideObject::IsLibraryPath(L""));
}

TEST(SlideLoad, HasOneLeastSizeForFilesAndOneForMembers) {
    const TempFolder folder;
    CSlideObject slide;
    // What is too short leaves its size; what was looked at and refused leaves none.
    EXPECT_EQ(slide.Load(folder.file("short.sld", wideSlide(32))), 0);
    EXPECT_EQ(slide.GetDataSize(), 32u);
    EXPECT_EQ(slide.Load(folder.file("whole.sld", wideSlide(34))), 0);
    EXPECT_EQ(slide.GetDataSize(), 33u);

    CFile file;
    ASSERT_TRUE(file.Open(folder.file("whole.sld"), CFile::Access::Read, CFile::Sharing::None));
    EXPECT_EQ(slide.LoadFromStream(L"a", &file, 31), 0);
    EXPECT_EQ(slide.GetDataSize(), 31u);
    EXPECT_EQ(slide.LoadFromStream(L"a", nullptr, 50), 0);
    EXPECT_EQ(slide.GetDataSize(), 50u);
    EXPECT_EQ(slide.LoadFromStream(L"a", &file, 32), 0);
    EXPECT_EQ(slide.GetDataSize(), 33u);
    EXPECT_EQ(slide.LoadFromStream(L"a", &file, 0xFFFFFFFF), 0);
    EXPECT_FALSE(slide.HasImage());
}

TEST(SlideLoad, OfWhatIsNoFileLeavesTheOldSlideAndNeverReadsBehindIt) {
    OpenSlide slide(narrowSlide());
    EXPECT_EQ(slide.LoadFromFile(L"/none.sld"), 0);
    EXPECT_TRUE(slide.HasImage());
    EXPECT_EQ(slide.LoadFromStream(L"a", nullptr, 100000), 0);
    const TempFolder folder;
    EXPECT_EQ(slide.SaveSld(folder.file("copy.sld")), 1);
    EXPECT_EQ(bytesOf<Bytes>(folder.file("copy.sld")), narrowSlide());
}

TEST(SlideName, IsTheMembersOrTheFilesWithoutExtension) {
    const std::pair<const wchar_t*, const wchar_t*> names[] = {
        {L"", L""},
        {L"c:\\d.e\\valve.v2.sld", L"valve.v2"},
        {L"valve", L"valve"},
        {L"c:/d/v.sld", L"c:/d/v"},
        {L"l.slb(a)", L"a"},
        {L"l(x)(a.b)", L"a"},
        {L"l.slb(", L""},
        {L"(.a)", L""},
        {L"c:\\l.slb(a\\b)", L"a\\b"},
    };
    for (const auto& [path, name] : names) {
        CSlideObject slide;
        slide.SetPath(path);
        EXPECT_EQ(slide.GetName(), name) << CString(path).size();
    }
}

TEST(SlideCopy, HasBytesOfItsOwn) {
    OpenSlide first;
    ASSERT_TRUE(first.Adopt(narrowSlide(), L"a.sld"));
    const CSlideObject copy(first);
    CSlideObject assigned;
    assigned = first;
    first.Clear();
    EXPECT_EQ(first.GetPath(), L"");
    EXPECT_EQ(first.GetExtents(), SlideSize{});
    for (const CSlideObject* slide : {&copy, static_cast<const CSlideObject*>(&assigned)}) {
        EXPECT_TRUE(slide->HasImage());
        EXPECT_EQ(slide->GetPath(), L"a.sld");
        EXPECT_EQ(slide->GetExtents(), (SlideSize{100, 50}));
    }
    EXPECT_TRUE(copy.IsKindOf(RUNTIME_CLASS(CSlideObject)));
    EXPECT_STREQ(copy.GetRuntimeClass()->name, "CSlideObject");
}

TEST(SlideSaving, WritesTheBytesAndTellsFailure) {
    const TempFolder folder;
    const OpenSlide slide(narrowSlide());
    EXPECT_EQ(slide.SaveSld(folder.file("a.SLD")), 1);
    EXPECT_EQ(bytesOf<Bytes>(folder.file("a.SLD")), narrowSlide());
    EXPECT_EQ(slide.SaveSld(folder.file("a.slb")), 0);
    EXPECT_EQ(slide.SaveSld(folder.file("no/folder.sld")), 0);
    EXPECT_EQ(CSlideObject().SaveSld(folder.file("empty.sld")), 1);
    EXPECT_EQ(bytesOf<Bytes>(folder.file("empty.sld")), Bytes{});
    EXPECT_EQ(slide.WriteData(nullptr), 0u);

    // A bitmap's rows are told to begin behind a palette of 2 to the power of its bits, modulo 32.
    for (const auto& [bits, begin] : {std::pair(4, 14 + 40 + 64), {8, 14 + 40 + 1024}, {33, 14 + 40 + 8}}) {
        Bytes block(40);
        block[0] = 40;
        block[14] = static_cast<uint8_t>(bits);
        EXPECT_EQ(CSlideObject::WriteDibFile(folder.file("a.bmp"), block), 1);
        const Bytes written = bytesOf<Bytes>(folder.file("a.bmp"));
        EXPECT_EQ(written.size(), 54u);
        EXPECT_EQ(written[10] | written[11] << 8, begin);
    }
}

}  // namespace
