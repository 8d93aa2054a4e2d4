#include "src/slides/LibraryDirectory.h"

#include <algorithm>
#include <limits>

#include "src/slides/SlideFormat.h"
#include "src/slides/SlidePath.h"

namespace {

constexpr std::u16string_view READ_TEXT = u"Korvale Slide Library 1.0";
constexpr std::u16string_view WRITTEN_TEXT = u"Korvale Slide Library 1.0\r\n\x1A";

using EntryBytes = std::array<uint8_t, LIBRARY_ENTRY_BYTES>;

bool endsDirectory(const EntryBytes& entry) { return entry[0] == 0; }

uint32_t offsetOf(const EntryBytes& entry) {
    uint32_t offset = 0;
    for (size_t at = LIBRARY_ENTRY_BYTES; at-- > LIBRARY_NAME_BYTES;) offset = offset << 8 | entry[at];
    return offset;
}

LibraryMember memberAt(const std::vector<LibraryEntry>& entries, size_t at, uint32_t fileLength) {
    const uint32_t end = at + 1 < entries.size() ? entries[at + 1].offset : fileLength;
    return {entries[at].name, entries[at].offset, end - entries[at].offset};
}

}  // namespace

bool libraryHeaderMatches(std::span<const uint8_t> bytes) { return beginsWithUnits(bytes, READ_TEXT); }

LibraryHeader writtenLibraryHeader() {
    LibraryHeader header{};
    for (size_t at = 0; at < header.size(); ++at)
        header[at] = static_cast<uint8_t>(WRITTEN_TEXT[at / 2] >> (at % 2 * 8));
    return header;
}

std::vector<LibraryEntry> parseDirectory(std::span<const uint8_t> directory) {
    std::vector<LibraryEntry> entries;
    while (!directory.empty()) {
        EntryBytes entry{};
        const size_t there = std::min(directory.size(), entry.size());
        std::copy_n(directory.begin(), there, entry.begin());
        if (endsDirectory(entry)) break;
        entries.push_back({textOfUnits(entry), offsetOf(entry)});
        directory = directory.subspan(there);
    }
    return entries;
}

std::vector<LibraryMember> libraryMembers(const std::vector<LibraryEntry>& entries, uint32_t fileLength) {
    std::vector<LibraryMember> members;
    for (size_t at = 0; at < entries.size(); ++at)
        if (entries[at].offset != 0) members.push_back(memberAt(entries, at, fileLength));
    return members;
}

std::optional<LibraryMember> findMember(const std::vector<LibraryEntry>& entries, std::wstring_view wanted,
                                        uint32_t fileLength) {
    if (entries.empty()) return std::nullopt;
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const LibraryEntry& entry) {
        return equalNames(entry.name, wanted);
    });
    // kept: a name that isn't there yields the last slide; programs see it instead of none.
    const size_t at = std::min<size_t>(found - entries.begin(), entries.size() - 1);
    if (entries[at].offset == 0) return std::nullopt;
    LibraryMember member = memberAt(entries, at, fileLength);
    member.name = wanted;
    return member;
}

std::array<uint8_t, LIBRARY_ENTRY_BYTES> writtenLibraryEntry(std::wstring_view name, uint32_t offset) {
    const std::wstring upper = upperName(name.substr(0, LIBRARY_NAME_BYTES));
    EntryBytes entry{};
    for (size_t at = 0; at < upper.size(); ++at)
        entry[at] = static_cast<uint8_t>(static_cast<uint32_t>(upper[at / 2]) >> (at % 2 * 8));
    for (size_t at = 0; at < 4; ++at)
        entry[LIBRARY_NAME_BYTES + at] = static_cast<uint8_t>(offset >> (8 * at));
    return entry;
}

std::optional<OpenLibrary> openLibrary(const std::wstring& path) {
    OpenLibrary library;
    if (!library.file.Open(path, CFile::Access::Read, CFile::Sharing::None)) return std::nullopt;
    const uint64_t length = library.file.GetLength();
    // Offsets reach no further than 32 bits.
    if (length < LEAST_LIBRARY_BYTES || length > std::numeric_limits<uint32_t>::max()) return std::nullopt;
    library.length = static_cast<uint32_t>(length);
    library.file.Read(library.header);
    if (!libraryHeaderMatches(library.header)) return std::nullopt;
    return library;
}

std::vector<uint8_t> readDirectory(CFile& file) {
    std::vector<uint8_t> directory;
    for (;;) {
        EntryBytes entry{};
        const size_t read = file.Read(entry);
        if (read == 0 || endsDirectory(entry)) return directory;
        directory.insert(directory.end(), entry.begin(), entry.begin() + read);
    }
}

std::wstring textOfUnits(std::span<const uint8_t> bytes) {
    std::wstring text;
    for (size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const uint16_t unit = readU16(&bytes[at], true);
        if (unit == 0) break;
        text += static_cast<wchar_t>(unit);
    }
    return text;
}
