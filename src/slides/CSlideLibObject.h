// A slide library in memory: all of its slides, in the order of its directory. Portable.
#pragma once

#include <list>
#include <optional>

#include "src/slides/CSlideObject.h"

class CSlideLibObject : public CObject {
    DECLARE_DYNAMIC(CSlideLibObject)

  public:
    // Nothing: no place.
    using POSITION = std::optional<std::list<CSlideObject*>::const_iterator>;

    CSlideLibObject() = default;
    CSlideLibObject(const CSlideLibObject& other);
    CSlideLibObject& operator=(CSlideLibObject source);
    ~CSlideLibObject() override { Clear(); }

    void Clear();
    // 1 where it is a library, even when none of its slides could be read. A path that ends in ".sld", or
    // names a member behind ".slb(", adds that one slide instead.
    int Load(const CString& path);
    int Save(const CString& path) const;

    // The first slide of that name, in any case; null where there is none. Belongs to the library.
    CSlideObject* Find(const CString& name) const;
    // Deletes the slide, be it in the library or not.
    void Remove(CSlideObject* slide);
    // The slide then belongs to the caller.
    void Detach(CSlideObject* slide);
    // Without `after`, puts the slide at the head, and the library owns it.
    //
    // kept: with `after`, it is `after` that is inserted again, behind its own place; `slide` goes nowhere
    // and stays the caller's.
    POSITION Insert(CSlideObject* slide, CSlideObject* after);
    uint32_t GetCount() const { return static_cast<uint32_t>(m_slides.size()); }

    POSITION GetHeadPosition() const;
    // Both throw CInvalidArgException for no place. GetNext moves on, to no place behind the last slide.
    CSlideObject* GetNext(POSITION& at) const;
    CSlideObject* GetAt(POSITION at) const;

    const CString& GetPath() const { return m_path; }
    CString GetFileName() const;
    // Of the file that Save would write.
    uint32_t GetFileSize() const;
    uint8_t GetOpenFlag() const { return m_open; }

  private:
    int loadOne(const CString& path);

    CString m_path;
    uint8_t m_open = 1;
    // Owned. A slide may stand here twice.
    std::list<CSlideObject*> m_slides;
};
