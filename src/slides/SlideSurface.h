// What a slide is drawn on: the operations of a device context that its drawing needs, under their own names.
// In the product it is a device context (DcSurface), in tests a record of the calls. Portable.
#pragma once

#include <cstdint>
#include <span>

struct SlidePoint {
    int32_t x = 0, y = 0;
    bool operator==(const SlidePoint&) const = default;
};

struct SlideSize {
    int32_t cx = 0, cy = 0;
    bool operator==(const SlideSize&) const = default;
};

// The platform's numbers.
enum class SlideMapMode : int32_t { Isotropic = 7, Anisotropic = 8 };
constexpr int32_t SLIDE_FILL_ALTERNATE = 1;

// A pen or a brush; null for none.
using SlideTool = void*;

// Colours are 0x00BBGGRR.
class SlideSurface {
  public:
    virtual ~SlideSurface() = default;

    virtual void SetMapMode(SlideMapMode mode) = 0;
    virtual void SetWindowExt(SlideSize extent) = 0;
    virtual void SetViewportExt(SlideSize extent) = 0;
    virtual void SetViewportOrg(SlidePoint origin) = 0;
    // The extent that the device really has.
    virtual SlideSize GetViewportExt() = 0;

    virtual void SetBkColor(uint32_t color) = 0;
    // The former colour.
    virtual uint32_t SetTextColor(uint32_t color) = 0;
    virtual uint32_t GetTextColor() = 0;

    // True only where the two surely land on different pixels: who just compares them needs no conversion
    // then, which on a device costs as much as drawing the line between them.
    virtual bool AreApart(SlidePoint a, SlidePoint b) = 0;
    // Convert in place; false where the surface has no device, as a metafile.
    virtual bool LPtoDP(std::span<SlidePoint> points) = 0;
    virtual bool DPtoLP(std::span<SlidePoint> points) = 0;

    virtual void MoveTo(SlidePoint to) = 0;
    virtual void LineTo(SlidePoint to) = 0;
    virtual void SetPolyFillMode(int32_t mode) = 0;
    virtual void Polygon(std::span<const SlidePoint> points) = 0;

    // A solid pen of width 1, a solid brush; null where none can be made. Who makes one destroys it.
    virtual SlideTool CreatePen(uint32_t color) = 0;
    virtual SlideTool CreateBrush(uint32_t color) = 0;
    // Give what was selected before, null where the surface doesn't know it. Null selects the platform's
    // stock tool, so that one's own can be destroyed.
    virtual SlideTool SelectPen(SlideTool pen) = 0;
    virtual SlideTool SelectBrush(SlideTool brush) = 0;
    virtual void Destroy(SlideTool tool) = 0;
};
