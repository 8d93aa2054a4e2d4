#include "src/slides/CSlideObject.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>

#include "src/slides/LibraryDirectory.h"
#include "src/slides/SlidePath.h"

namespace {

// kept: the least size of a file and that of a library's member differ.
constexpr uint32_t LEAST_FILE_BYTES = 33;
constexpr uint32_t LEAST_MEMBER_BYTES = 32;
// What the gate looks at: 13 units.
constexpr size_t GATE_BYTES = 26;

// `size` bytes from the file's position, zeros where the file has fewer. Empty where the gate would refuse
// them, so that a library that names thousands of huge members costs little; also where the block can't be
// had.
std::vector<uint8_t> readBlock(CFile& file, uint32_t size) {
    if (size > file.GetLength()) return {};
    const uint64_t start = file.GetPosition();
    std::array<uint8_t, GATE_BYTES> first{};
    file.Read(std::span(first).first(std::min<size_t>(size, first.size())));
    if (!slideMagicMatches(first)) return {};
    try {
        std::vector<uint8_t> block(size);
        file.Seek(start);
        file.Read(block);
        return block;
    } catch (const std::bad_alloc&) {
        return {};
    }
}

}  // namespace

IMPLEMENT_DYNAMIC(CSlideObject, CObject)

CSlideObject::CSlideObject(const CSlideObject& other)
    : CObject(),
      m_path(other.m_path),
      m_data(other.m_data),
      m_size(other.m_size),
      m_level(other.m_level),
      m_littleEndian(other.m_littleEndian),
      m_highX(other.m_highX),
      m_highY(other.m_highY) {}

CSlideObject& CSlideObject::operator=(CSlideObject source) {
    m_path = std::move(source.m_path);
    m_data = std::move(source.m_data);
    m_size = source.m_size;
    m_level = source.m_level;
    m_littleEndian = source.m_littleEndian;
    m_highX = source.m_highX;
    m_highY = source.m_highY;
    return *this;
}

int CSlideObject::Clear() {
    *this = CSlideObject();
    return 0;
}

int CSlideObject::Load(const CString& path) {
    Clear();
    if (path.empty()) return 1;
    return IsLibraryPath(path) ? LoadFromLibrary(path) : LoadFromFile(path);
}

int CSlideObject::LoadFromFile(const CString& path) {
    if (!hasExtension(path, L".sld")) return 0;
    CFile file;
    if (!file.Open(path, CFile::Access::Read, CFile::Sharing::None)) return 0;
    const uint64_t length = file.GetLength();
    if (length > std::numeric_limits<uint32_t>::max()) return 0;
    m_size = static_cast<uint32_t>(length);
    if (m_size < LEAST_FILE_BYTES) return 0;
    return take(readBlock(file, m_size), path);
}

int CSlideObject::LoadFromLibrary(const CString& path) {
    const auto [libraryPath, name] = splitLibraryPath(path);
    auto library = openLibrary(libraryPath);
    if (!library || equalNames(textOfUnits(library->header), name)) return 0;
    const auto entries = parseDirectory(readDirectory(library->file));
    const auto member = findMember(entries, name, library->length);
    if (!member) return 0;
    m_size = member->size;
    library->file.Seek(member->offset);
    return take(readBlock(library->file, m_size),
                name.empty() ? libraryPath : libraryPath + L'(' + name + L')');
}

int CSlideObject::LoadFromStream(const CString& name, CFile* file, uint32_t count) {
    m_size = count;
    if (count < LEAST_MEMBER_BYTES || !file) return 0;
    return take(readBlock(*file, count), name);
}

// m_size is that of the image, or of what it should have been.
int CSlideObject::take(std::vector<uint8_t> image, const CString& path) {
    m_data = std::move(image);
    if (HasImage() && Validate(m_data.data())) {
        m_path = path;
        return 1;
    }
    drop();
    return 0;
}

int CSlideObject::Adopt(std::vector<uint8_t> image, const CString& path) {
    m_data = std::move(image);
    m_size = static_cast<uint32_t>(m_data.size());
    if (takeHeader(m_data)) {
        m_path = path;
        return 1;
    }
    drop();
    return 0;
}

void CSlideObject::drop() {
    m_data = {};
    m_size = 0;
}

int CSlideObject::Validate(const uint8_t* image) {
    const std::span bytes(image, m_size);
    return slideMagicMatches(bytes) && takeHeader(bytes);
}

bool CSlideObject::takeHeader(std::span<const uint8_t> image) {
    const auto header = readSlideHeader(image);
    if (!header) return false;
    m_level = header->level;
    m_littleEndian = header->littleEndian;
    m_highX = header->highX;
    m_highY = header->highY;
    return true;
}

bool CSlideObject::IsLibraryPath(const CString& path) { return isLibraryPath(path); }

CString CSlideObject::GetName() const { return slideNameOf(m_path); }

uint32_t CSlideObject::GetDataSize() const { return m_size ? m_size : LEAST_FILE_BYTES; }

std::span<const uint8_t> CSlideObject::image() const {
    return std::span(m_data).first(std::min<size_t>(m_data.size(), m_size));
}
