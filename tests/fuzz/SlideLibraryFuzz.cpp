// A library's directory and members, past both gates.
#include "src/slides/LibraryDirectory.h"
#include "src/slides/SlidePath.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/support/slides/MadeSlide.h"
#include "tests/support/slides/TestSurface.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::span<const uint8_t> bytes(data, size);
    require(!libraryHeaderMatches(bytes.first(std::min(size, LIBRARY_HEADER_BYTES))));
    if (size < LEAST_LIBRARY_BYTES) return 0;

    const auto length = static_cast<uint32_t>(size);
    const auto entries = parseDirectory(bytes.subspan(LIBRARY_HEADER_BYTES));
    const auto members = libraryMembers(entries, length);
    require(members.size() <= entries.size());
    require(entries.size() <= (size - LIBRARY_HEADER_BYTES) / LIBRARY_ENTRY_BYTES + 1);
    require(findMember(entries, L"none of this name", length).has_value() ==
            (!entries.empty() && entries.back().offset != 0));

    for (const LibraryMember& member : members) {
        require(member.name.size() <= LIBRARY_ENTRY_BYTES / 2);
        const auto found = findMember(entries, member.name, length);
        require(!found || equalNames(found->name, member.name));
        if (member.offset > size || member.size > size - member.offset) continue;
        const uint8_t* image = data + member.offset;
        const OpenSlide slide({image, image + member.size});
        TestSurface surface;
        slide.Draw(surface, 0);
    }
    return 0;
}
