// The graphics system's objects: who made them owns them until it is asked to delete them.
#pragma once

#include <memory>
#include <vector>

#include "host/graphics/GsView.h"

namespace graphics {

class GsDevice final : public HostGsDevice {
  public:
    explicit GsDevice(HWND window) : m_pixels(window) {}
    int onSize(int width, int height) override;
    int eraseView(HostGsView* view) override;
    PixelWindow& pixels() { return m_pixels; }

  private:
    PixelWindow m_pixels;
};

class GsKernel final : public HostGsKernel {
  public:
    explicit GsKernel(BlockFinder find) : m_find(find) {}
    HostGsView* createView(int left, int top) override;
    int deleteView(HostGsView* view) override;
    int deleteExtra(HostGsModel* model) override;

    GsDevice& createDevice(HWND window);
    // False where it isn't one of this kernel.
    bool deleteDevice(HostGsDevice* device);
    GsModel& createModel();
    bool deleteModel(HostGsModel* model);

  private:
    BlockFinder m_find;
    // Views refer to the others, so they go first.
    std::vector<std::unique_ptr<GsModel>> m_models;
    std::vector<std::unique_ptr<GsDevice>> m_devices;
    std::vector<std::unique_ptr<GsView>> m_views;
};

class GsManager final : public HostGsManager {
  public:
    explicit GsManager(BlockFinder find) : m_find(find) {}
    HostGsKernel* acquireKernel(const HostGsKernelDescriptor& descriptor) override;
    int releaseKernel(HostGsKernel* kernel) override;
    HostGsDevice* createDevice(HostGsKernel* kernel, HWND window) override;
    int deleteDevice(HostGsDevice* device) override;
    HostGsModel* createModel(HostGsKernel* kernel) override;
    int deleteModel(HostGsModel* model) override;

  private:
    BlockFinder m_find;
    std::vector<std::unique_ptr<GsKernel>> m_kernels;
};

}  // namespace graphics
