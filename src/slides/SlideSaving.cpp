// Slides, libraries and bitmaps as files.
#include <array>

#include "src/slides/CSlideLibObject.h"
#include "src/slides/LibraryDirectory.h"
#include "src/slides/SavedFile.h"
#include "src/slides/SlidePath.h"

namespace {

// A bitmap file's own header, before the device-independent bitmap.
constexpr size_t BITMAP_FILE_HEADER_BYTES = 14;
// Of a bitmap's header: where the bits of a pixel stand, and how much of it is needed for that.
constexpr size_t BITMAP_BITS_AT = 14, BITMAP_HEADER_USED = 16;

void putU32(uint8_t* at, size_t value) {
    for (int byte = 0; byte < 4; ++byte) at[byte] = static_cast<uint8_t>(value >> (8 * byte));
}

}  // namespace

int CSlideObject::SaveSld(const CString& path) const {
    if (!hasExtension(path, L".sld")) return 0;
    return saveFile(path, CFile::Sharing::None, [this](CFile& file) { WriteData(&file); });
}

uint32_t CSlideObject::WriteData(CFile* file) const {
    if (!file || !HasImage()) return 0;
    file->Write(image());
    return m_size;
}

int CSlideObject::WriteDibFile(const CString& path, std::span<const uint8_t> block) {
    if (block.size() < BITMAP_HEADER_USED) return 0;
    const uint32_t headerBytes = readU16(&block[0], true) | uint32_t{readU16(&block[2], true)} << 16;
    // kept: a palette of all colours is assumed even with 16 bits a pixel and more.
    const uint32_t paletteBytes = 4u << readU16(&block[BITMAP_BITS_AT], true) % 32;
    std::array<uint8_t, BITMAP_FILE_HEADER_BYTES> header{'B', 'M'};
    putU32(&header[2], block.size() + header.size());
    putU32(&header[10], headerBytes + header.size() + paletteBytes);
    return saveFile(path, CFile::Sharing::None, [&](CFile& file) {
        file.Write(header);
        file.Write(block);
    });
}

int CSlideLibObject::Save(const CString& path) const {
    if (!hasExtension(path, L".slb")) return 0;
    return saveFile(path, CFile::Sharing::None, [this](CFile& file) {
        file.Write(writtenLibraryHeader());
        auto offset = static_cast<uint32_t>(LEAST_LIBRARY_BYTES + LIBRARY_ENTRY_BYTES * m_slides.size());
        for (const CSlideObject* slide : m_slides) {
            file.Write(writtenLibraryEntry(slide->GetName(), offset));
            offset += slide->GetDataSize();
        }
        file.Write(std::array<uint8_t, LIBRARY_ENTRY_BYTES>{});
        for (const CSlideObject* slide : m_slides) slide->WriteData(&file);
    });
}
