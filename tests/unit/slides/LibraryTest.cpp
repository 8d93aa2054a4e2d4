// Slide libraries: their directory, their writing, and the list of slides in memory.
#include <gtest/gtest.h>

#include "src/platform/base/CInvalidArgException.h"
#include "src/slides/CSlideLibObject.h"
#include "src/slides/LibraryDirectory.h"
#include "src/slides/SlidePath.h"
#include "tests/support/TempFolder.h"
#include "tests/support/slides/MadeSlide.h"

namespace {

using Bytes = std::vector<uint8_t>;

Bytes entry(const std::u16string& name, uint32_t offset) {
    Bytes bytes;
    for (const char16_t unit : name) {
        bytes.push_back(static_cast<uint8_t>(unit));
        bytes.push_back(static_cast<uint8_t>(unit >> 8));
    }
    bytes.resize(32);
    for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<uint8_t>(offset >> shift));
    return bytes;
}

Bytes joined(std::initializer_list<Bytes> parts) {
    Bytes all;
    for (const Bytes& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

std::string described(const LibraryMember& member) {
    return std::string(member.name.begin(), member.name.end()) + ' ' + std::to_string(member.offset) + '+' +
           std::to_string(member.size);
}

std::string described(const std::vector<LibraryMember>& members) {
    std::string text;
    for (const LibraryMember& member : members) text += described(member) + ';';
    return text;
}

Bytes slideImage(int highX) { return MadeSlide({2, true}, highX, 10).vector(1, 2, 3, 4).end(); }

CSlideObject* slideNamed(const CString& path, const Bytes& image = slideImage(5)) {
    auto slide = std::make_unique<OpenSlide>();
    EXPECT_EQ(slide->Adopt(image, path), 1);
    return slide.release();
}

TEST(LibraryHeader, IsNeverThatOfAFile) {
    Bytes whole;
    for (const char c : std::string("Korvale Slide Library 1.0"))
        whole.insert(whole.end(), {static_cast<uint8_t>(c), 0});
    EXPECT_TRUE(libraryHeaderMatches(whole));
    const Bytes read(whole.begin(), whole.begin() + 32);
    EXPECT_FALSE(libraryHeaderMatches(read));
    EXPECT_FALSE(libraryHeaderMatches(Bytes(32, 'K')));
    const LibraryHeader written = writtenLibraryHeader();
    EXPECT_EQ(Bytes(written.begin(), written.end()), read);
    EXPECT_EQ(textOfUnits(written), L"Korvale Slide Li");
}

TEST(LibraryDirectory, EndsAtAZeroByteAndMembersAtTheNextOne) {
    const Bytes directory = joined(
        {entry(u"one", 200), entry(u"Two", 300), entry(u"three", 0x01020304), Bytes(36), entry(u"no", 9)});
    const auto entries = parseDirectory(directory);
    EXPECT_EQ(described(libraryMembers(entries, 0x01020400)),
              "one 200+100;Two 300+16908760;three 16909060+252;");
    EXPECT_TRUE(parseDirectory(Bytes(36)).empty());
    // Without an end the directory ends with its bytes; what is cut counts as zeros.
    const auto cut = parseDirectory(Bytes(directory.begin(), directory.begin() + 36 + 34));
    EXPECT_EQ(described(libraryMembers(cut, 1000)), "one 200+100;Two 300+700;");
}

TEST(LibraryDirectory, LeavesOutEntriesWithoutPlaceAndWrapsSizes) {
    const auto entries =
        parseDirectory(joined({entry(u"a", 0), entry(u"b", 500), entry(u"c", 100), entry(u"d", 0)}));
    EXPECT_EQ(described(libraryMembers(entries, 600)), "b 500+4294966896;c 100+4294967196;");
}

TEST(LibraryDirectory, LetsANameRunIntoTheOffset) {
    const std::u16string name = u"sixteen letters!";
    EXPECT_EQ(parseDirectory(entry(name, 0x00420041))[0].name, L"sixteen letters!AB");
    EXPECT_EQ(parseDirectory(entry(name, 0x00000041))[0].name, L"sixteen letters!A");
}

TEST(LibraryDirectory, FindsANameInAnyCaseAndElseTheLast) {
    const auto entries = parseDirectory(
        joined({entry(u"One", 200), entry(u"two", 300), entry(u"TWO", 350), entry(u"\xC4", 400)}));
    const auto found = [&](const wchar_t* name) {
        const auto member = findMember(entries, name, 1000);
        return member ? described(*member) : "none";
    };
    EXPECT_EQ(found(L"oNE"), "oNE 200+100");
    EXPECT_EQ(found(L"Two"), "Two 300+50");
    EXPECT_EQ(found(L"three"), "three 400+600");
    EXPECT_EQ(found(L""), " 400+600");
    // Only A to Z have cases.
    EXPECT_EQ(findMember(entries, L"\xE4", 1000)->name, L"\xE4");
    EXPECT_FALSE(findMember({}, L"one", 1000));
    EXPECT_FALSE(findMember(parseDirectory(entry(u"a", 0)), L"a", 1000));
    // A match takes the next entry's place for its end, also one that has none; a miss takes the file's.
    const auto holed = parseDirectory(joined({entry(u"a", 100), entry(u"b", 0)}));
    EXPECT_EQ(findMember(holed, L"a", 1000)->size, 0u - 100);
    EXPECT_FALSE(findMember(holed, L"c", 1000));
}

TEST(LibraryPath, IsSplitAtItsLastParenthesis) {
    const auto split = [](const wchar_t* path) {
        const LibraryPath parts = splitLibraryPath(path);
        return parts.file + L'|' + parts.name;
    };
    EXPECT_EQ(split(L"c:\\l.slb(a)"), L"c:\\l.slb|a");
    EXPECT_EQ(split(L"l(1).slb(a)"), L"l(1).slb|a");
    EXPECT_EQ(split(L"l.slb"), L"l.slb|");
    EXPECT_EQ(split(L"l.slb(a"), L"l.slb(a|");
    EXPECT_EQ(split(L"a)"), L"|");
}

TEST(LibraryFile, IsReadBackAsItWasWritten) {
    const TempFolder folder;
    CSlideLibObject library;
    library.Insert(slideNamed(L"c:\\x\\odd.sld", slideImage(7)), nullptr);
    library.Insert(new CSlideObject, nullptr);
    library.Insert(slideNamed(L"l.slb(even)", slideImage(9)), nullptr);
    const std::wstring path = folder.file("made.slb");
    ASSERT_EQ(library.Save(path), 1);

    // Half of each name: "EVEN" keeps two letters, "ODD" one and the half that a zero byte completes.
    const Bytes nine = slideImage(9), seven = slideImage(7);
    const auto header = writtenLibraryHeader();
    Bytes even(32), odd(32);
    std::copy_n("E\0V\0", 4, even.begin());
    std::copy_n("O\0D", 3, odd.begin());
    const auto place = [](size_t offset) { return Bytes{static_cast<uint8_t>(offset), 0, 0, 0}; };
    const size_t first = 68 + 3 * 36;
    EXPECT_EQ(bytesOf<Bytes>(path), joined({Bytes(header.begin(), header.end()), even, place(first),
                                            Bytes(32), place(first + nine.size()), odd,
                                            place(first + nine.size() + 33), Bytes(36), nine, seven}));
    EXPECT_EQ(library.GetFileSize(), 68 + 3 * 36 + nine.size() + 33 + seven.size());

    // Of a long name 16 letters.
    const auto longNamed = writtenLibraryEntry(std::wstring(40, L'x'), 7);
    EXPECT_EQ(textOfUnits(std::span(longNamed).first(32)), std::wstring(16, L'X'));
    EXPECT_EQ(longNamed[32], 7);

    // The reader finds both slides again, if it comes past the header, and then past the gate.
    CSlideLibObject two;
    two.Insert(slideNamed(L"two", seven), nullptr);
    two.Insert(slideNamed(L"one", nine), nullptr);
    ASSERT_EQ(two.Save(path), 1);
    EXPECT_EQ(two.Load(path), 0);
    CFile file;
    ASSERT_TRUE(file.Open(path, CFile::Access::Read, CFile::Sharing::None));
    const auto length = static_cast<uint32_t>(file.GetLength());
    file.Seek(LIBRARY_HEADER_BYTES);
    const auto members = libraryMembers(parseDirectory(readDirectory(file)), length);
    ASSERT_EQ(members.size(), 2u);
    EXPECT_EQ(members[0].name, L"ON");
    EXPECT_EQ(members[1].name, L"TW");
    for (const LibraryMember& member : members) {
        Bytes image(member.size);
        file.Seek(member.offset);
        EXPECT_EQ(file.Read(image), image.size());
        EXPECT_EQ(OpenSlide(image).GetExtents().cx, &member == &members[0] ? 9 : 7);
    }
}

TEST(LibraryFile, OfNoKindOrTooShortOrUnwritableGivesZero) {
    const TempFolder folder;
    CSlideLibObject library;
    EXPECT_EQ(library.Load(folder.file("short.slb", Bytes(67))), 0);
    EXPECT_EQ(library.Load(folder.file("zeros.slb", Bytes(68))), 0);
    EXPECT_EQ(library.Load(folder.file("none.slb")), 0);
    for (const wchar_t* path : {L"", L"slb", L"l.slb(a.b)", L"a.slbx", L"a.sld", L"a.slb(x)", L"a.b(x)"})
        EXPECT_EQ(library.Load(path), 0);
    EXPECT_EQ(CSlideObject().Load(folder.file("zeros.slb") + L"(a)"), 0);
    EXPECT_EQ(CSlideObject().Load(L"a)"), 0);
    EXPECT_EQ(library.GetCount(), 0u);
    EXPECT_EQ(library.GetOpenFlag(), 1);
    EXPECT_EQ(library.GetFileSize(), 68u);
    EXPECT_EQ(library.GetFileName(), L"");
    EXPECT_STREQ(library.GetRuntimeClass()->name, "CSlideLibObject");
    EXPECT_EQ(library.Save(folder.file("l.sld")), 0);
    EXPECT_EQ(library.Save(folder.file("no/folder.slb")), 0);
}

// Names of the slides in order.
std::wstring names(const CSlideLibObject& library) {
    std::wstring text;
    for (auto at = library.GetHeadPosition(); at;) text += library.GetNext(at)->GetName();
    return text;
}

TEST(LibraryList, OwnsItsSlides) {
    CSlideLibObject library;
    CSlideObject* const b = slideNamed(L"b");
    library.Insert(b, nullptr);
    const auto head = library.Insert(slideNamed(L"a"), nullptr);
    EXPECT_EQ(library.GetAt(head)->GetName(), L"a");
    EXPECT_EQ(library.Find(L"B"), b);
    EXPECT_EQ(library.Find(L"c"), nullptr);

    CSlideLibObject copy(library), assigned;
    assigned = library;
    library.Remove(b);
    EXPECT_EQ(names(library), L"a");
    EXPECT_EQ(names(copy), L"ab");
    EXPECT_EQ(names(assigned), L"ab");

    const std::unique_ptr<CSlideObject> own(copy.Find(L"a"));
    copy.Detach(own.get());
    copy.Remove(slideNamed(L"of nobody"));
    copy.Remove(nullptr);
    EXPECT_EQ(names(copy), L"b");

    // What stands behind a slide is that slide once more; the other one goes nowhere.
    CSlideObject* const a = library.Find(L"a");
    const std::unique_ptr<CSlideObject> spare(slideNamed(L"spare"));
    library.Insert(slideNamed(L"c"), nullptr);
    EXPECT_EQ(library.GetAt(library.Insert(spare.get(), a)), a);
    library.Insert(spare.get(), slideNamed(L"d"));
    EXPECT_EQ(names(library), L"caad");
    EXPECT_EQ(names(CSlideLibObject(library)), L"caad");
    library.Insert(spare.get(), library.Find(L"d"));
    library.Remove(a);
    EXPECT_EQ(names(library), L"cdd");

    auto none = CSlideLibObject().GetHeadPosition();
    EXPECT_THROW(library.GetNext(none), CInvalidArgException);
    EXPECT_THROW(library.GetAt(none), CInvalidArgException);
}

}  // namespace
