// The host's graphics system as a plug-in reaches it: a kernel gives views, a device paints them on a window,
// a model keeps what is drawn. Portable but for the window's handle.
#pragma once

#include <cstdint>

#include "src/platform/host/HostApi.h"
#include "src/platform/host/HostGeometry.h"
#include "src/platform/host/HostValue.h"

struct HWND__;

// An object of a drawing; 0 is none.
using HostObjectId = uint64_t;

class HostGsView;

// What a drawable may say of the primitives that it draws.
class HostSubEntityTraits {
  public:
    virtual void setTrueColor(uint8_t red, uint8_t green, uint8_t blue) = 0;

  protected:
    ~HostSubEntityTraits() = default;
};

// Where a drawable draws by itself.
class HostGeometryDraw {
  public:
    virtual HostSubEntityTraits& traits() = 0;
    virtual void polyline(int count, const HostPoint3d* points) = 0;

  protected:
    ~HostGeometryDraw() = default;
};

class HostWorldDraw : public HostGeometryDraw {};

class HostViewportDraw : public HostGeometryDraw {
  public:
    virtual HostGsRect viewport() const = 0;
    virtual HostMatrix3d viewingMatrix() const = 0;
    virtual HostMatrix3d worldToDeviceMatrix() const = 0;
    virtual HostPoint3d cameraPosition() const = 0;
    virtual HostPoint3d cameraTarget() const = 0;
};

class HostObject {
  public:
    virtual ~HostObject() = default;
    virtual const wchar_t* isA() const { return L"HostObject"; }
    virtual HostObject* clone() const { return nullptr; }
    virtual int copyFrom(const HostObject*) { return HOST_ERROR; }
    virtual bool isEqualTo(const HostObject* other) const { return this == other; }
    // 0: the same; other values have no meaning between objects of the base.
    virtual int comparedTo(const HostObject* other) const { return this == other ? 0 : 1; }
    virtual void* queryX(const wchar_t*) { return nullptr; }
};

// What a view can draw. The host draws an object of a drawing by its id(), anything else by the functions
// below.
class HostDrawable : public HostObject {
  public:
    const wchar_t* isA() const override { return L"HostDrawable"; }
    virtual uint32_t setAttributes(HostSubEntityTraits* traits) { return subSetAttributes(traits); }
    virtual bool worldDraw(HostWorldDraw* draw) { return subWorldDraw(draw); }
    virtual void viewportDraw(HostViewportDraw* draw) { subViewportDraw(draw); }
    virtual uint32_t viewportDrawLogicalFlags(HostViewportDraw* draw) {
        return subViewportDrawLogicalFlags(draw);
    }
    virtual bool isPersistent() const { return false; }
    virtual HostObjectId id() const { return 0; }
    virtual int drawableType() const { return 0; }
    virtual bool hasGsNode() const { return false; }
    virtual bool bounds(HostExtents*) const { return false; }
    virtual void setDrawStream(void* stream) { m_drawStream = stream; }
    virtual void* drawStream() const { return m_drawStream; }

  protected:
    virtual uint32_t subSetAttributes(HostSubEntityTraits*) { return 0; }
    // True: all is drawn, and viewportDraw isn't asked.
    virtual bool subWorldDraw(HostWorldDraw*) { return true; }
    virtual void subViewportDraw(HostViewportDraw*) {}
    virtual uint32_t subViewportDrawLogicalFlags(HostViewportDraw*) { return 0; }

  private:
    void* m_drawStream = nullptr;
};

// How a view draws: 0 flat shaded, 2 wireframe in plan, 4 wireframe in three dimensions, 6 hidden lines, 10
// shaded with edges. Others count as 2.
enum HostVisualStyleType : int {
    HOST_STYLE_FLAT = 0,
    HOST_STYLE_WIREFRAME_2D = 2,
    HOST_STYLE_WIREFRAME_3D = 4,
    HOST_STYLE_HIDDEN = 6,
    HOST_STYLE_SHADED = 10,
};
struct HostVisualStyle {
    explicit HostVisualStyle(int styleType) : type(styleType) {}
    int type;
};

enum HostGsCapability : uint32_t { HOST_GS_3D_DRAWING = 1 };
struct HostGsKernelDescriptor {
    uint32_t capabilities = 0;
    void addRequirement(HostGsCapability capability) { capabilities |= capability; }
};

// What views share of what they draw.
class HostGsModel {
  protected:
    ~HostGsModel() = default;
};

// A camera on a window. Statuses other than HOST_NORMAL mean that nothing changed.
class HostGsView {
  public:
    // Sees `width` by `height` world units around `target` from `position`, by parallel projection (0).
    // Refused for another projection, where a number isn't finite, a size isn't positive, the camera stands
    // at its target, or `up` lies along the direction of view.
    virtual int setView(const HostPoint3d& position, const HostPoint3d& target, const HostVector3d& up,
                        double width, double height, int projection) = 0;
    virtual int add(HostDrawable* drawable, HostGsModel* model) = 0;
    virtual int eraseAll() = 0;
    virtual int setVisualStyle(const HostVisualStyle& style) = 0;
    // Marks the view for update(), which paints it on the device's window.
    virtual int invalidate() = 0;
    virtual int update() = 0;
    // Shows `factor` times as large.
    virtual int zoom(double factor) = 0;
    // Moves camera and target by a vector along the view's right, its up and towards the camera, in world
    // units.
    virtual int dolly(const HostVector3d& vector) = 0;
    // Turns the up vector by the right-hand rule about the direction from the camera to its target.
    virtual int roll(double angle) = 0;
    // Turns the camera around its target: by x towards its right, then by y towards its up.
    virtual int orbit(double x, double y) = 0;
    virtual HostGsRect getViewport() const = 0;
    // From world to view units: x to the right, y up, z towards the camera, the target in the middle.
    virtual HostMatrix3d viewingMatrix() const = 0;
    // From world to pixels with y upward.
    virtual HostMatrix3d worldToDeviceMatrix() const = 0;

  protected:
    ~HostGsView() = default;
};

class HostGsDevice {
  public:
    virtual int onSize(int width, int height) = 0;
    // Lets the device forget the view.
    virtual int eraseView(HostGsView* view) = 0;

  protected:
    ~HostGsDevice() = default;
};

class HostGsKernel {
  public:
    // The view is painted by the device that was made last with this kernel.
    virtual HostGsView* createView(int left, int top) = 0;
    virtual int deleteView(HostGsView* view) = 0;
    virtual int deleteExtra(HostGsModel* model) = 0;

  protected:
    ~HostGsKernel() = default;
};

class HostGsManager {
  public:
    virtual HostGsKernel* acquireKernel(const HostGsKernelDescriptor& descriptor) = 0;
    virtual int releaseKernel(HostGsKernel* kernel) = 0;
    // The window may be destroyed before the device; it then paints nothing.
    virtual HostGsDevice* createDevice(HostGsKernel* kernel, HWND__* window) = 0;
    virtual int deleteDevice(HostGsDevice* device) = 0;
    virtual HostGsModel* createModel(HostGsKernel* kernel) = 0;
    virtual int deleteModel(HostGsModel* model) = 0;

  protected:
    ~HostGsManager() = default;
};

// `document` must be null: one manager serves all.
HOST_API HostGsManager* hostGetGsManager(void* document);
// The host's own view of a viewport; null where that number shows none.
HOST_API HostGsView* hostGetCurrent3dView(int viewport);
