// The orbit gadget as an object that a view can draw. It draws nothing by itself: what a person sees of the
// gadget is painted by the preview over its window.
#pragma once

#include "src/platform/host/HostGraphics.h"

class OrbitGadget : public HostDrawable {
  public:
    explicit OrbitGadget(HostGsView* view = nullptr) : m_view(view) {}

    HostGsView* view() const { return m_view; }

  protected:
    uint32_t subSetAttributes(HostSubEntityTraits* traits) override;
    bool subWorldDraw(HostWorldDraw*) override { return false; }
    void subViewportDraw(HostViewportDraw* draw) override;

  private:
    HostGsView* m_view;
};
