#include "host/graphics/GsManager.h"

#include <algorithm>

namespace graphics {
namespace {

template <class Object, class Interface>
Object* find(const std::vector<std::unique_ptr<Object>>& objects, const Interface* object) {
    const auto found =
        std::find_if(objects.begin(), objects.end(), [=](const auto& one) { return one.get() == object; });
    return found == objects.end() ? nullptr : found->get();
}

template <class Object, class Interface>
bool drop(std::vector<std::unique_ptr<Object>>& objects, const Interface* object) {
    return std::erase_if(objects, [=](const auto& one) { return one.get() == object; }) > 0;
}

int statusOf(bool done) { return done ? HOST_NORMAL : HOST_ERROR; }

}  // namespace

int GsDevice::onSize(int width, int height) {
    m_pixels.resize(width, height);
    return HOST_NORMAL;
}

int GsDevice::eraseView(HostGsView* view) {
    auto* own = static_cast<GsView*>(view);
    if (!own || own->device() != &m_pixels) return HOST_ERROR;
    own->setDevice(nullptr);
    return HOST_NORMAL;
}

HostGsView* GsKernel::createView(int, int) {
    GsView* view = m_views.emplace_back(std::make_unique<GsView>(m_find)).get();
    if (!m_devices.empty()) view->setDevice(&m_devices.back()->pixels());
    return view;
}

int GsKernel::deleteView(HostGsView* view) { return statusOf(drop(m_views, view)); }

int GsKernel::deleteExtra(HostGsModel* model) { return statusOf(deleteModel(model)); }

GsDevice& GsKernel::createDevice(HWND window) {
    return *m_devices.emplace_back(std::make_unique<GsDevice>(window));
}

bool GsKernel::deleteDevice(HostGsDevice* device) {
    GsDevice* own = find(m_devices, device);
    if (!own) return false;
    for (const auto& view : m_views) {
        if (view->device() == &own->pixels()) view->setDevice(nullptr);
    }
    return drop(m_devices, device);
}

GsModel& GsKernel::createModel() { return *m_models.emplace_back(std::make_unique<GsModel>(m_find)); }

bool GsKernel::deleteModel(HostGsModel* model) {
    GsModel* own = find(m_models, model);
    if (!own) return false;
    for (const auto& view : m_views) view->forget(own);
    return drop(m_models, model);
}

HostGsKernel* GsManager::acquireKernel(const HostGsKernelDescriptor& descriptor) {
    // Three dimensions is all that a kernel can be asked for.
    if (descriptor.capabilities & ~HOST_GS_3D_DRAWING) return nullptr;
    return m_kernels.emplace_back(std::make_unique<GsKernel>(m_find)).get();
}

int GsManager::releaseKernel(HostGsKernel* kernel) { return statusOf(drop(m_kernels, kernel)); }

HostGsDevice* GsManager::createDevice(HostGsKernel* kernel, HWND window) {
    GsKernel* own = find(m_kernels, kernel);
    return own ? &own->createDevice(window) : nullptr;
}

int GsManager::deleteDevice(HostGsDevice* device) {
    for (const auto& kernel : m_kernels) {
        if (kernel->deleteDevice(device)) return HOST_NORMAL;
    }
    return HOST_ERROR;
}

HostGsModel* GsManager::createModel(HostGsKernel* kernel) {
    GsKernel* own = find(m_kernels, kernel);
    return own ? &own->createModel() : nullptr;
}

int GsManager::deleteModel(HostGsModel* model) {
    for (const auto& kernel : m_kernels) {
        if (kernel->deleteModel(model)) return HOST_NORMAL;
    }
    return HOST_ERROR;
}

}  // namespace graphics
