// A device context as what a slide is drawn on.
#pragma once

#include <optional>

#include "src/platform/mfc/Drawing.h"
#include "src/slides/SlideMapping.h"
#include "src/slides/SlideSurface.h"

class DcSurface final : public SlideSurface {
  public:
    // The context is borrowed. While it is drawn on, its mapping changes through the surface only.
    explicit DcSurface(const CDC& dc) : m_dc(dc) {}

    void SetMapMode(SlideMapMode mode) override;
    void SetWindowExt(SlideSize extent) override;
    void SetViewportExt(SlideSize extent) override;
    void SetViewportOrg(SlidePoint origin) override;
    SlideSize GetViewportExt() override;

    void SetBkColor(uint32_t color) override;
    uint32_t SetTextColor(uint32_t color) override;
    uint32_t GetTextColor() override;

    bool AreApart(SlidePoint a, SlidePoint b) override;
    bool LPtoDP(std::span<SlidePoint> points) override;
    bool DPtoLP(std::span<SlidePoint> points) override;

    void MoveTo(SlidePoint to) override;
    void LineTo(SlidePoint to) override;
    void SetPolyFillMode(int32_t mode) override;
    void Polygon(std::span<const SlidePoint> points) override;

    SlideTool CreatePen(uint32_t color) override;
    SlideTool CreateBrush(uint32_t color) override;
    SlideTool SelectPen(SlideTool pen) override;
    SlideTool SelectBrush(SlideTool brush) override;
    void Destroy(SlideTool tool) override;

  private:
    HDC m_dc;
    // Nothing: not known since the mapping has changed.
    std::optional<PixelGrid> m_grid;
};
