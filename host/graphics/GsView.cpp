#include "host/graphics/GsView.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "host/graphics/GdiGlyphs.h"

namespace graphics {
namespace {

// A frame may take so long while a person moves the view.
constexpr double FRAME_MILLISECONDS = 60.0;
// Paints that follow one another sooner belong to one movement, which is over when none came for as long.
constexpr UINT REST_MILLISECONDS = 200;

Style styleOf(int type) {
    switch (type) {
        case HOST_STYLE_FLAT:
            return Style::shaded;
        case HOST_STYLE_HIDDEN:
            return Style::hidden;
        case HOST_STYLE_SHADED:
            return Style::shadedWithEdges;
        default:
            return Style::wireframe;
    }
}

// What a drawable of the plug-in's own draws by itself.
class OwnDrawing final : public HostWorldDraw, public HostViewportDraw, public HostSubEntityTraits {
  public:
    OwnDrawing(const HostGsView& view, const Camera& camera, Raster& raster)
        : m_view(view), m_camera(camera), m_raster(raster) {}

    HostSubEntityTraits& traits() override { return *this; }
    void setTrueColor(uint8_t red, uint8_t green, uint8_t blue) override {
        m_color = static_cast<uint32_t>(red << 16 | green << 8 | blue);
    }
    void polyline(int count, const HostPoint3d* points) override {
        const HostMatrix3d device = m_view.worldToDeviceMatrix();
        const auto pixel = [&](const HostPoint3d& p) {
            const HostPoint3d at = device * p;
            return PixelPoint{static_cast<float>(at.x), static_cast<float>(m_raster.height() - at.y),
                              static_cast<float>(at.z)};
        };
        for (int at = 1; at < count; ++at)
            m_raster.line(pixel(points[at - 1]), pixel(points[at]), m_color, true);
    }
    HostGsRect viewport() const override { return m_view.getViewport(); }
    HostMatrix3d viewingMatrix() const override { return m_view.viewingMatrix(); }
    HostMatrix3d worldToDeviceMatrix() const override { return m_view.worldToDeviceMatrix(); }
    HostPoint3d cameraPosition() const override { return m_camera.position(); }
    HostPoint3d cameraTarget() const override { return m_camera.target(); }

  private:
    const HostGsView& m_view;
    const Camera& m_camera;
    Raster& m_raster;
    uint32_t m_color = 0xFFFFFF;
};

}  // namespace

std::map<UINT_PTR, GsView*> GsView::s_timers;

const Scene* GsModel::sceneOf(HostObjectId id) {
    const FoundBlock found = m_find(id);
    if (!found.block) {
        m_scenes.erase(id);
        return nullptr;
    }
    const auto kept = m_scenes.find(id);
    if (kept != m_scenes.end() && kept->second.revision == found.block->revision())
        return &kept->second.scene;
    return &(m_scenes[id] = {found.block->revision(),
                             graphics::sceneOf(*found.drawing, *found.block, drawingGlyphs())})
                .scene;
}

GsView::~GsView() { stopTimer(); }

void GsView::forget(const GsModel* model) {
    for (Shown& shown : m_shown) {
        if (shown.model == model) shown.model = &m_ownModel;
    }
}

int GsView::setView(const HostPoint3d& position, const HostPoint3d& target, const HostVector3d& up,
                    double width, double height, int projection) {
    if (projection != 0 || !m_camera.setView(position, target, up, width, height)) return HOST_ERROR;
    return invalidate();
}

int GsView::add(HostDrawable* drawable, HostGsModel* model) {
    if (!drawable) return HOST_ERROR;
    const HostObjectId id = drawable->id();
    m_shown.push_back({id, id ? nullptr : drawable, model ? static_cast<GsModel*>(model) : &m_ownModel});
    return invalidate();
}

int GsView::eraseAll() {
    m_shown.clear();
    return invalidate();
}

int GsView::setVisualStyle(const HostVisualStyle& style) {
    m_look.style = styleOf(style.type);
    return invalidate();
}

int GsView::invalidate() {
    m_valid = false;
    return HOST_NORMAL;
}

int GsView::update() {
    if (!m_device) return HOST_ERROR;
    if (!m_valid) {
        const bool moving = m_moved && GetTickCount64() - m_lastPaint < REST_MILLISECONDS;
        const bool slow = m_fullMilliseconds > FRAME_MILLISECONDS;
        paint(moving && slow ? static_cast<uint32_t>(std::ceil(m_fullMilliseconds / FRAME_MILLISECONDS)) : 1);
    }
    m_device->show();
    return HOST_NORMAL;
}

void GsView::paint(uint32_t stride) {
    const auto start = std::chrono::steady_clock::now();
    m_look.stride = stride;
    Raster& raster = m_device->raster();
    std::vector<const Scene*> scenes;
    for (const Shown& shown : m_shown) {
        const Scene* scene = shown.block ? shown.model->sceneOf(shown.block) : nullptr;
        if (scene) scenes.push_back(scene);
    }
    render(scenes, m_camera, m_look, drawingGlyphs(), raster);
    for (const Shown& shown : m_shown) {
        if (shown.drawable) drawBySelf(shown);
    }
    stopTimer();
    if (stride > 1) {
        m_timer = SetTimer(nullptr, 0, REST_MILLISECONDS, &GsView::onTimer);
        s_timers[m_timer] = this;
    } else {
        m_fullMilliseconds =
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    }
    m_moved = false;
    m_valid = true;
    m_lastPaint = GetTickCount64();
}

void GsView::drawBySelf(const Shown& shown) {
    OwnDrawing draw(*this, m_camera, m_device->raster());
    shown.drawable->setAttributes(&draw);
    if (!shown.drawable->worldDraw(&draw)) shown.drawable->viewportDraw(&draw);
}

void CALLBACK GsView::onTimer(HWND, UINT, UINT_PTR timer, DWORD) noexcept {
    const auto found = s_timers.find(timer);
    if (found == s_timers.end()) {
        KillTimer(nullptr, timer);
        return;
    }
    GsView& view = *found->second;
    view.stopTimer();
    if (!view.m_device) return;
    view.invalidate();
    // By the window itself, which draws more than the view.
    InvalidateRect(view.m_device->window(), nullptr, FALSE);
}

void GsView::stopTimer() {
    if (!m_timer) return;
    KillTimer(nullptr, m_timer);
    s_timers.erase(m_timer);
    m_timer = 0;
}

int GsView::zoom(double factor) {
    m_moved = true;
    return m_camera.zoom(factor) ? invalidate() : HOST_ERROR;
}

int GsView::dolly(const HostVector3d& vector) {
    m_moved = true;
    return m_camera.dolly(vector) ? invalidate() : HOST_ERROR;
}

int GsView::roll(double angle) {
    m_moved = true;
    return m_camera.roll(angle) ? invalidate() : HOST_ERROR;
}

int GsView::orbit(double x, double y) {
    m_moved = true;
    return m_camera.orbit(x, y) ? invalidate() : HOST_ERROR;
}

HostGsRect GsView::getViewport() const {
    return m_device ? HostGsRect{0, 0, m_device->width(), m_device->height()} : HostGsRect{};
}

}  // namespace graphics
