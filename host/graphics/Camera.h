// Where a view is seen from, by parallel projection.
#pragma once

#include "src/platform/host/HostGeometry.h"

namespace graphics {

class Camera {
  public:
    // False, with nothing changed, where a number isn't finite, a size isn't positive, or `up` lies along the
    // direction of view.
    bool setView(const HostPoint3d& position, const HostPoint3d& target, const HostVector3d& up, double width,
                 double height);
    // Shows `factor` times as large. False where the result couldn't be seen any more.
    bool zoom(double factor);
    // Moves camera and target by a vector in view units: right, up, towards the camera.
    bool dolly(const HostVector3d& vector);
    // Turns `up` by the right-hand rule about the direction from the camera to its target.
    bool roll(double angle);
    // Turns the camera around its target: by x towards its right, then by y towards its up.
    bool orbit(double x, double y);

    const HostPoint3d& position() const { return m_position; }
    const HostPoint3d& target() const { return m_target; }
    // At a right angle to the direction of view, of length 1.
    const HostVector3d& up() const { return m_up; }
    HostVector3d right() const { return m_up.crossProduct(m_back); }
    // From the target towards the camera, of length 1.
    const HostVector3d& back() const { return m_back; }
    double width() const { return m_width; }
    double height() const { return m_height; }

    // From world to view units, the target in the middle.
    HostMatrix3d viewingMatrix() const;
    // From world to the pixels of a viewport, y upward from its bottom, as large as the viewport can show the
    // whole view; z in pixels towards the camera.
    HostMatrix3d worldToDevice(const HostGsRect& viewport) const;

  private:
    void turn(double angle, const HostVector3d& axis);

    HostPoint3d m_position{0, 0, 1};
    HostPoint3d m_target;
    HostVector3d m_up{0, 1, 0};
    HostVector3d m_back{0, 0, 1};
    double m_distance = 1.0;
    double m_width = 1.0;
    double m_height = 1.0;
};

}  // namespace graphics
