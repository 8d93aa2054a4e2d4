#include "host/graphics/Camera.h"

#include <initializer_list>

namespace graphics {
namespace {

// Beyond these a view's size or place would overflow in the matrices.
constexpr double LEAST_SIZE = 1e-100;
constexpr double MOST_SIZE = 1e100;

bool finite(std::initializer_list<double> numbers) {
    for (const double number : numbers) {
        if (!(std::fabs(number) <= MOST_SIZE)) return false;
    }
    return true;
}

bool isSize(double size) { return size >= LEAST_SIZE && size <= MOST_SIZE; }

}  // namespace

bool Camera::setView(const HostPoint3d& position, const HostPoint3d& target, const HostVector3d& up,
                     double width, double height) {
    if (!finite({position.x, position.y, position.z, target.x, target.y, target.z, up.x, up.y, up.z}))
        return false;
    if (!isSize(width) || !isSize(height)) return false;
    const HostVector3d towards = position - target;
    const double distance = towards.length();
    // Far from the origin a step of 1 may be lost, and there is no direction to see.
    if (distance <= HOST_TOLERANCE) return false;
    const HostVector3d back = towards * (1.0 / distance);
    const HostVector3d side = up.crossProduct(back);
    if (side.length() <= HOST_TOLERANCE) return false;
    m_position = position;
    m_target = target;
    m_back = back;
    m_up = back.crossProduct(side).normal();
    m_distance = distance;
    m_width = width;
    m_height = height;
    return true;
}

bool Camera::zoom(double factor) {
    if (!(factor > 0.0) || !isSize(m_width / factor) || !isSize(m_height / factor)) return false;
    m_width /= factor;
    m_height /= factor;
    return true;
}

bool Camera::dolly(const HostVector3d& vector) {
    const HostVector3d step = right() * vector.x + m_up * vector.y + m_back * vector.z;
    const HostPoint3d target = m_target + step;
    if (!finite({target.x, target.y, target.z})) return false;
    m_target = target;
    m_position = m_position + step;
    return true;
}

void Camera::turn(double angle, const HostVector3d& axis) {
    m_back = m_back.rotateBy(angle, axis).normal();
    // Made square again at each turn, so that rounding doesn't add up over a long drag.
    const HostVector3d up = m_up.rotateBy(angle, axis);
    m_up = (up - m_back * up.dotProduct(m_back)).normal();
    m_position = m_target + m_back * m_distance;
}

bool Camera::roll(double angle) {
    if (!finite({angle})) return false;
    turn(angle, -m_back);
    return true;
}

bool Camera::orbit(double x, double y) {
    if (!finite({x, y})) return false;
    if (x != 0.0) turn(x, m_up);
    if (y != 0.0) turn(y, -right());
    return true;
}

HostMatrix3d Camera::viewingMatrix() const {
    const HostVector3d x = right();
    const HostVector3d at = m_target.asVector();
    return {{{x.x, x.y, x.z, -x.dotProduct(at)},
             {m_up.x, m_up.y, m_up.z, -m_up.dotProduct(at)},
             {m_back.x, m_back.y, m_back.z, -m_back.dotProduct(at)},
             {0, 0, 0, 1}}};
}

HostMatrix3d Camera::worldToDevice(const HostGsRect& viewport) const {
    const double wide = std::max(1, viewport.right - viewport.left);
    const double high = std::max(1, viewport.bottom - viewport.top);
    const double scale = std::min(wide / m_width, high / m_height);
    HostMatrix3d place = HostMatrix3d::scaling(scale, scale, scale);
    place.entry[0][3] = wide / 2.0;
    place.entry[1][3] = high / 2.0;
    return place * viewingMatrix();
}

}  // namespace graphics
