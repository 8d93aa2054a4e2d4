// A surface without a device, which watches over what is drawn: tools are destroyed once, never while they
// are selected, and only those that were made.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

#include "src/slides/SlideSurface.h"

class TestSurface : public SlideSurface {
  public:
    ~TestSurface() override { require(m_made.empty() && m_pen == ownPen() && m_brush == ownBrush()); }

    static SlideTool ownPen() { return reinterpret_cast<SlideTool>(1); }
    static SlideTool ownBrush() { return reinterpret_cast<SlideTool>(2); }

    void SetMapMode(SlideMapMode) override {}
    void SetWindowExt(SlideSize) override {}
    void SetViewportExt(SlideSize extent) override { m_extent = extent; }
    void SetViewportOrg(SlidePoint) override {}
    SlideSize GetViewportExt() override { return m_extent; }
    void SetBkColor(uint32_t) override {}
    uint32_t SetTextColor(uint32_t color) override { return std::exchange(m_textColor, color); }
    uint32_t GetTextColor() override { return m_textColor; }
    bool AreApart(SlidePoint, SlidePoint) override { return false; }
    bool LPtoDP(std::span<SlidePoint>) override { return true; }
    bool DPtoLP(std::span<SlidePoint>) override { return true; }
    void MoveTo(SlidePoint) override {}
    void LineTo(SlidePoint) override { ++m_lines; }
    void SetPolyFillMode(int32_t) override {}
    void Polygon(std::span<const SlidePoint> corners) override { m_corners += corners.size(); }

    SlideTool CreatePen(uint32_t) override { return make(); }
    SlideTool CreateBrush(uint32_t) override { return make(); }
    SlideTool SelectPen(SlideTool pen) override { return select(m_pen, pen); }
    SlideTool SelectBrush(SlideTool brush) override { return select(m_brush, brush); }
    void Destroy(SlideTool tool) override {
        require(tool != m_pen && tool != m_brush && std::erase(m_made, tool) == 1);
    }

    size_t lines() const { return m_lines; }
    size_t corners() const { return m_corners; }

  protected:
    static void require(bool condition) {
        if (!condition) std::abort();
    }

    SlideSize m_extent;

  private:
    SlideTool make() {
        const auto tool = reinterpret_cast<SlideTool>(m_next++);
        m_made.push_back(tool);
        return tool;
    }
    SlideTool select(SlideTool& selected, SlideTool tool) {
        require(tool == ownPen() || tool == ownBrush() ||
                std::find(m_made.begin(), m_made.end(), tool) != m_made.end());
        return std::exchange(selected, tool);
    }

    uint32_t m_textColor = 0;
    SlideTool m_pen = ownPen();
    SlideTool m_brush = ownBrush();
    uintptr_t m_next = 10;
    std::vector<SlideTool> m_made;
    size_t m_lines = 0;
    size_t m_corners = 0;
};
