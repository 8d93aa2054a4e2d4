// The virtual operations of CSlideObject, which draw it.
#include "src/slides/CSlideObject.h"
#include "src/slides/SlideColors.h"
#include "src/slides/SlideDrawing.h"
#include "src/slides/SlideMapping.h"

SlideRecordReader CSlideObject::records() const { return {image(), m_level, m_littleEndian != 0}; }

void CSlideObject::PrepareDC(SlideSurface& dc, const PixelRect& rect, int isotropic, int fit) const {
    if (!HasImage()) return;
    dc.SetMapMode(isotropic ? SlideMapMode::Isotropic : SlideMapMode::Anisotropic);
    if (m_highX == 0 || m_highY == 0) return;
    dc.SetWindowExt(GetExtents());
    dc.SetViewportExt({rect.right, wrapped(-int64_t{rect.bottom})});
    const SlideSize set = dc.GetViewportExt();
    if (!fit || !isotropic) return dc.SetViewportOrg(centredOrigin(rect.right, rect.bottom, set));
    if (const auto fitted = fittedExtent(rect.right, rect.bottom, set)) dc.SetViewportExt(*fitted);
    dc.SetViewportOrg({0, wrapped(-int64_t{dc.GetViewportExt().cy})});
}

uint32_t CSlideObject::SetColors(SlideSurface& dc, uint32_t background, uint32_t foreground) const {
    dc.SetBkColor(background);
    const uint32_t former = dc.SetTextColor(foreground);
    for (const int entry : {0, 7, 256}) g_slideColors[entry] = foreground;
    return former;
}

void CSlideObject::Draw(SlideSurface& dc, int monochrome) const {
    if (HasImage()) drawSlide(records(), dc, monochrome != 0);
}

void CSlideObject::DrawFlipped(SlideSurface& dc, int32_t height, int monochrome) const {
    if (HasImage()) drawSlideFlipped(records(), dc, height, monochrome != 0);
}

void CSlideObject::DrawInRect(SlideSurface& dc, const PixelRect& rect, int monochrome, int keepAspect) const {
    if (HasImage() && m_highX > 0 && m_highY > 0)
        drawSlideInRect(records(), dc, GetExtents(), rect, monochrome != 0, keepAspect != 0);
}
