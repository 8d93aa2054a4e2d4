// A view of the graphics system: a camera, what it sees, and the device on whose window it is painted.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <vector>

#include "host/graphics/Camera.h"
#include "host/graphics/PixelWindow.h"
#include "host/graphics/Renderer.h"
#include "host/graphics/Scene.h"
#include "src/platform/host/HostGraphics.h"

namespace graphics {

// A block with the drawing that has it; null where there is none of that id.
struct FoundBlock {
    const cad::Drawing* drawing = nullptr;
    const cad::Block* block = nullptr;
};
using BlockFinder = FoundBlock (*)(HostObjectId id);

// The scenes that were made, so that several views share them.
class GsModel final : public HostGsModel {
  public:
    explicit GsModel(BlockFinder find) : m_find(find) {}
    // Made anew after the block was changed. Null where there is none.
    const Scene* sceneOf(HostObjectId id);

  private:
    struct Kept {
        uint64_t revision;
        Scene scene;
    };
    BlockFinder m_find;
    std::map<HostObjectId, Kept> m_scenes;
};

class GsView final : public HostGsView {
  public:
    GsView(BlockFinder find) : m_ownModel(find) {}
    ~GsView();
    GsView(const GsView&) = delete;
    GsView& operator=(const GsView&) = delete;

    void setDevice(PixelWindow* device) { m_device = device; }
    PixelWindow* device() const { return m_device; }
    void forget(const GsModel* model);
    Camera& camera() { return m_camera; }
    void setBackground(uint32_t color) { m_look.background = color; }
    void setScale(float scale) { m_look.scale = scale; }

    int setView(const HostPoint3d& position, const HostPoint3d& target, const HostVector3d& up, double width,
                double height, int projection) override;
    int add(HostDrawable* drawable, HostGsModel* model) override;
    int eraseAll() override;
    int setVisualStyle(const HostVisualStyle& style) override;
    int invalidate() override;
    int update() override;
    int zoom(double factor) override;
    int dolly(const HostVector3d& vector) override;
    int roll(double angle) override;
    int orbit(double x, double y) override;
    HostGsRect getViewport() const override;
    HostMatrix3d viewingMatrix() const override { return m_camera.viewingMatrix(); }
    HostMatrix3d worldToDeviceMatrix() const override { return m_camera.worldToDevice(getViewport()); }

  private:
    struct Shown {
        // One of the two.
        HostObjectId block;
        HostDrawable* drawable;
        GsModel* model;
    };

    void paint(uint32_t stride);
    void drawBySelf(const Shown& shown);
    static void CALLBACK onTimer(HWND, UINT, UINT_PTR timer, DWORD) noexcept;
    void stopTimer();

    PixelWindow* m_device = nullptr;
    GsModel m_ownModel;
    Camera m_camera;
    Look m_look;
    std::vector<Shown> m_shown;
    bool m_valid = false;
    // While a person turns the view what can't be drawn in time is drawn in part, and whole when it rests.
    bool m_moved = false;
    double m_fullMilliseconds = 0.0;
    ULONGLONG m_lastPaint = 0;
    UINT_PTR m_timer = 0;
    static std::map<UINT_PTR, GsView*> s_timers;
};

}  // namespace graphics
