#include "src/slides/CSlideLibObject.h"

#include <algorithm>
#include <memory>
#include <set>

#include "src/platform/base/CInvalidArgException.h"
#include "src/slides/LibraryDirectory.h"
#include "src/slides/SlidePath.h"

IMPLEMENT_DYNAMIC(CSlideLibObject, CObject)

CSlideLibObject::CSlideLibObject(const CSlideLibObject& other)
    : CObject(), m_path(other.m_path), m_open(other.m_open) {
    for (const CSlideObject* slide : other.m_slides) m_slides.push_back(new CSlideObject(*slide));
}

CSlideLibObject& CSlideLibObject::operator=(CSlideLibObject source) {
    m_path.swap(source.m_path);
    std::swap(m_open, source.m_open);
    m_slides.swap(source.m_slides);
    return *this;
}

void CSlideLibObject::Clear() {
    const std::set<CSlideObject*> slides(m_slides.begin(), m_slides.end());
    m_slides.clear();
    for (const CSlideObject* slide : slides) delete slide;
    m_path.clear();
    m_open = 1;
}

int CSlideLibObject::Load(const CString& path) {
    Clear();
    const auto extension = extensionOf(path);
    if (equalNames(extension, L".sld") || equalNames(extension.substr(0, 5), L".slb(")) return loadOne(path);
    if (!equalNames(extension, L".slb")) return 0;
    auto library = openLibrary(path);
    if (!library) return 0;
    m_open = 1;
    m_path = path;
    const auto entries = parseDirectory(readDirectory(library->file));
    for (const LibraryMember& member : libraryMembers(entries, library->length)) {
        auto slide = std::make_unique<CSlideObject>();
        library->file.Seek(member.offset);
        if (slide->LoadFromStream(member.name, &library->file, member.size))
            m_slides.push_back(slide.release());
    }
    return 1;
}

int CSlideLibObject::loadOne(const CString& path) {
    auto slide = std::make_unique<CSlideObject>();
    if (!slide->Load(path)) return 0;
    m_slides.push_back(slide.release());
    return 1;
}

CSlideObject* CSlideLibObject::Find(const CString& name) const {
    const auto found = std::find_if(m_slides.begin(), m_slides.end(), [&](const CSlideObject* slide) {
        return equalNames(slide->GetName(), name);
    });
    return found == m_slides.end() ? nullptr : *found;
}

void CSlideLibObject::Remove(CSlideObject* slide) {
    Detach(slide);
    delete slide;
}

void CSlideLibObject::Detach(CSlideObject* slide) { m_slides.remove(slide); }

CSlideLibObject::POSITION CSlideLibObject::Insert(CSlideObject* slide, CSlideObject* after) {
    if (!after) return m_slides.insert(m_slides.begin(), slide);
    auto place = std::find(m_slides.begin(), m_slides.end(), after);
    if (place != m_slides.end()) ++place;
    return m_slides.insert(place, after);
}

CSlideLibObject::POSITION CSlideLibObject::GetHeadPosition() const {
    return m_slides.empty() ? POSITION{} : m_slides.begin();
}

CSlideObject* CSlideLibObject::GetNext(POSITION& at) const {
    CSlideObject* slide = GetAt(at);
    if (++*at == m_slides.end()) at.reset();
    return slide;
}

CSlideObject* CSlideLibObject::GetAt(POSITION at) const {
    if (!at) AfxThrowInvalidArgException();
    return **at;
}

CString CSlideLibObject::GetFileName() const { return fileNameOf(m_path); }

uint32_t CSlideLibObject::GetFileSize() const {
    uint32_t size = LEAST_LIBRARY_BYTES;
    for (const CSlideObject* slide : m_slides)
        size += static_cast<uint32_t>(LIBRARY_ENTRY_BYTES) + slide->GetDataSize();
    return size;
}
