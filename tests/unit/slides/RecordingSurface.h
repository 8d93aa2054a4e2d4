// A surface that writes down the calls, as "MoveTo 3,4; LineTo 5,6". Tools are numbered as they are made,
// from 10.
#pragma once

#include <functional>
#include <sstream>
#include <string>

#include "tests/support/slides/TestSurface.h"

class RecordingSurface : public TestSurface {
  public:
    std::string calls() const { return m_calls; }
    std::string take() { return std::exchange(m_calls, {}); }

    // How many logical units make a pixel across; 0 for a surface without a device.
    int unitsPerPixel = 1;
    // What the device makes of an extent.
    std::function<SlideSize(SlideSize)> settle = [](SlideSize asked) { return asked; };
    bool hasTools = true;
    // Otherwise what is selected isn't told, as by a metafile.
    bool tellsDisplaced = true;

    void SetMapMode(SlideMapMode mode) override { note("SetMapMode ", static_cast<int>(mode)); }
    void SetWindowExt(SlideSize extent) override { note("SetWindowExt ", extent.cx, ',', extent.cy); }
    void SetViewportExt(SlideSize extent) override {
        note("SetViewportExt ", extent.cx, ',', extent.cy);
        m_extent = settle(extent);
    }
    void SetViewportOrg(SlidePoint origin) override { note("SetViewportOrg ", origin.x, ',', origin.y); }
    SlideSize GetViewportExt() override {
        note("GetViewportExt");
        return m_extent;
    }
    void SetBkColor(uint32_t color) override { note("SetBkColor ", std::hex, color); }
    uint32_t SetTextColor(uint32_t color) override {
        note("SetTextColor ", std::hex, color);
        return TestSurface::SetTextColor(color);
    }

    bool LPtoDP(std::span<SlidePoint> points) override {
        if (unitsPerPixel)
            for (SlidePoint& point : points) point.x /= unitsPerPixel;
        return unitsPerPixel != 0;
    }
    bool DPtoLP(std::span<SlidePoint> points) override {
        for (SlidePoint& point : points) point.x *= unitsPerPixel;
        return unitsPerPixel != 0;
    }

    void MoveTo(SlidePoint to) override { note("MoveTo ", to.x, ',', to.y); }
    void LineTo(SlidePoint to) override { note("LineTo ", to.x, ',', to.y); }
    void SetPolyFillMode(int32_t mode) override { note("SetPolyFillMode ", mode); }
    void Polygon(std::span<const SlidePoint> corners) override {
        std::ostringstream text;
        for (const SlidePoint& corner : corners) text << ' ' << corner.x << ',' << corner.y;
        note("Polygon", text.str());
    }

    SlideTool CreatePen(uint32_t color) override { return made("CreatePen ", color); }
    SlideTool CreateBrush(uint32_t color) override { return made("CreateBrush ", color); }
    SlideTool SelectPen(SlideTool pen) override {
        note("SelectPen ", number(pen));
        return displaced(TestSurface::SelectPen(pen ? pen : ownPen()));
    }
    SlideTool SelectBrush(SlideTool brush) override {
        note("SelectBrush ", number(brush));
        return displaced(TestSurface::SelectBrush(brush ? brush : ownBrush()));
    }
    void Destroy(SlideTool tool) override {
        note("Destroy ", number(tool));
        TestSurface::Destroy(tool);
    }

  private:
    template <class... Parts>
    void note(const Parts&... parts) {
        std::ostringstream text;
        (text << ... << parts);
        if (!m_calls.empty()) m_calls += "; ";
        m_calls += text.str();
    }
    SlideTool made(const char* call, uint32_t color) {
        note(call, std::hex, color);
        return hasTools ? TestSurface::CreatePen(color) : nullptr;
    }
    SlideTool displaced(SlideTool tool) const { return tellsDisplaced ? tool : nullptr; }
    static uintptr_t number(SlideTool tool) { return reinterpret_cast<uintptr_t>(tool); }

    std::string m_calls;
};
