// The slide library's file: a header, a directory of names and places, and the slides back to back. Portable.
//
//   offset  bytes
//        0     32  header
//       32     36  for each slide: 32 bytes of name as 16-bit text, 4 bytes of offset, the lowest first
//                  then an entry whose first byte is 0
//                  then the slides; each ends where the next entry's begins, the last one at the end of the
//                  file
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "src/platform/base/CFile.h"

constexpr size_t LIBRARY_HEADER_BYTES = 32;
constexpr size_t LIBRARY_NAME_BYTES = 32;
constexpr size_t LIBRARY_ENTRY_BYTES = 36;
// A header and the entry that ends a directory.
constexpr size_t LEAST_LIBRARY_BYTES = LIBRARY_HEADER_BYTES + LIBRARY_ENTRY_BYTES;

using LibraryHeader = std::array<uint8_t, LIBRARY_HEADER_BYTES>;

// Whether the bytes begin with the whole text that a library begins with.
//
// kept: it is longer than a header, so no header matches, not even one that Save wrote.
bool libraryHeaderMatches(std::span<const uint8_t> bytes);
// What Save writes, which is the first half of a header's text.
LibraryHeader writtenLibraryHeader();

struct LibraryEntry {
    std::wstring name;
    uint32_t offset = 0;
};

// One slide of a library. The size may be nonsense: then there is no such slide.
struct LibraryMember {
    std::wstring name;
    uint32_t offset = 0;
    uint32_t size = 0;
};

// The entries before the one that ends the directory; the end of `directory` ends it too. A name that fills
// its field goes on into the offset.
std::vector<LibraryEntry> parseDirectory(std::span<const uint8_t> directory);
// Entries with the offset 0 are none.
std::vector<LibraryMember> libraryMembers(const std::vector<LibraryEntry>& entries, uint32_t fileLength);
// The member of that name, letter case aside, or else the last one, under the wanted name. Nothing where the
// directory is empty or the entry found has the offset 0.
std::optional<LibraryMember> findMember(const std::vector<LibraryEntry>& entries, std::wstring_view wanted,
                                        uint32_t fileLength);

// An entry as Save writes it.
//
// kept: a name of n characters yields the first n bytes of its 16-bit text, which is half a name.
std::array<uint8_t, LIBRARY_ENTRY_BYTES> writtenLibraryEntry(std::wstring_view name, uint32_t offset);

// A library that was opened and begins as one should; the file stands before the directory.
struct OpenLibrary {
    CFile file;
    uint32_t length = 0;
    LibraryHeader header{};
};
std::optional<OpenLibrary> openLibrary(const std::wstring& path);
// The bytes of the directory. Stops behind its last entry.
std::vector<uint8_t> readDirectory(CFile& file);

// Bytes as text of 16-bit units, up to the first zero unit.
std::wstring textOfUnits(std::span<const uint8_t> bytes);
