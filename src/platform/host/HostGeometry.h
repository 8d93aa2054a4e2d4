// Points, vectors, matrices and extents of the host's drawings. Portable; all coordinates are world units of
// a right-handed system, all angles radians.
#pragma once

#include <algorithm>
#include <cmath>

// What is shorter counts as without length.
constexpr double HOST_TOLERANCE = 1e-10;

struct HostVector3d {
    double x = 0.0, y = 0.0, z = 0.0;

    constexpr HostVector3d operator+(const HostVector3d& o) const { return {x + o.x, y + o.y, z + o.z}; }
    constexpr HostVector3d operator-(const HostVector3d& o) const { return {x - o.x, y - o.y, z - o.z}; }
    constexpr HostVector3d operator-() const { return {-x, -y, -z}; }
    constexpr HostVector3d operator*(double factor) const { return {x * factor, y * factor, z * factor}; }
    constexpr double dotProduct(const HostVector3d& o) const { return x * o.x + y * o.y + z * o.z; }
    constexpr HostVector3d crossProduct(const HostVector3d& o) const {
        return {y * o.z - z * o.y, z * o.x - x * o.z, x * o.y - y * o.x};
    }
    double length() const { return std::hypot(x, y, z); }
    // Of length 1; what is shorter than the tolerance stays as it is.
    HostVector3d normal(double tolerance = HOST_TOLERANCE) const {
        const double size = length();
        return size <= tolerance ? *this : HostVector3d{x / size, y / size, z / size};
    }
    // A vector at a right angle to this one, by the arbitrary axis rule of the drawing exchange format: the
    // cross product with the world's Z axis, near that axis with its Y axis.
    HostVector3d perpVector() const {
        constexpr double NEAR_Z = 1.0 / 64.0;
        const bool nearZ = std::fabs(x) < NEAR_Z && std::fabs(y) < NEAR_Z;
        return (nearZ ? HostVector3d{0, 1, 0} : HostVector3d{0, 0, 1}).crossProduct(*this);
    }
    // Turned about `axis`, which has length 1, by the right-hand rule.
    HostVector3d rotateBy(double angle, const HostVector3d& axis) const {
        const double c = std::cos(angle);
        return *this * c + axis.crossProduct(*this) * std::sin(angle) +
               axis * (axis.dotProduct(*this) * (1.0 - c));
    }
};

struct HostPoint3d {
    double x = 0.0, y = 0.0, z = 0.0;

    constexpr HostPoint3d operator+(const HostVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
    constexpr HostPoint3d operator-(const HostVector3d& v) const { return {x - v.x, y - v.y, z - v.z}; }
    constexpr HostVector3d operator-(const HostPoint3d& p) const { return {x - p.x, y - p.y, z - p.z}; }
    constexpr HostVector3d asVector() const { return {x, y, z}; }
};

struct HostLineSeg3d {
    HostPoint3d start, end;

    // Halves first, so that huge coordinates don't overflow.
    constexpr HostPoint3d midPoint() const {
        return {start.x * 0.5 + end.x * 0.5, start.y * 0.5 + end.y * 0.5, start.z * 0.5 + end.z * 0.5};
    }
};

// Rows times columns; points are columns on the right.
struct HostMatrix3d {
    double entry[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};

    // From the frame (origin; x, y, z) to the world.
    static constexpr HostMatrix3d coordSystem(const HostPoint3d& origin, const HostVector3d& x,
                                              const HostVector3d& y, const HostVector3d& z) {
        return {
            {{x.x, y.x, z.x, origin.x}, {x.y, y.y, z.y, origin.y}, {x.z, y.z, z.z, origin.z}, {0, 0, 0, 1}}};
    }
    static constexpr HostMatrix3d scaling(double x, double y, double z) {
        return {{{x, 0, 0, 0}, {0, y, 0, 0}, {0, 0, z, 0}, {0, 0, 0, 1}}};
    }

    constexpr HostMatrix3d operator*(const HostMatrix3d& o) const {
        HostMatrix3d product;
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 4; ++column) {
                double sum = 0.0;
                for (int at = 0; at < 4; ++at) sum += entry[row][at] * o.entry[at][column];
                product.entry[row][column] = sum;
            }
        }
        return product;
    }
    constexpr HostVector3d operator*(const HostVector3d& v) const {
        const auto row = [&](int at) { return entry[at][0] * v.x + entry[at][1] * v.y + entry[at][2] * v.z; };
        return {row(0), row(1), row(2)};
    }
    // Of affine matrices: the last row counts as 0, 0, 0, 1.
    constexpr HostPoint3d operator*(const HostPoint3d& p) const {
        const HostVector3d v = *this * p.asVector();
        return {v.x + entry[0][3], v.y + entry[1][3], v.z + entry[2][3]};
    }
    // Of an affine matrix; one that can't be inverted gives the identity.
    HostMatrix3d inverse() const {
        const HostVector3d a{entry[0][0], entry[1][0], entry[2][0]};
        const HostVector3d b{entry[0][1], entry[1][1], entry[2][1]};
        const HostVector3d c{entry[0][2], entry[1][2], entry[2][2]};
        const double determinant = a.dotProduct(b.crossProduct(c));
        if (determinant == 0.0 || !std::isfinite(determinant)) return {};
        const double scale = 1.0 / determinant;
        const HostVector3d p = b.crossProduct(c) * scale, q = c.crossProduct(a) * scale,
                           r = a.crossProduct(b) * scale;
        const HostVector3d move{entry[0][3], entry[1][3], entry[2][3]};
        return {{{p.x, p.y, p.z, -p.dotProduct(move)},
                 {q.x, q.y, q.z, -q.dotProduct(move)},
                 {r.x, r.y, r.z, -r.dotProduct(move)},
                 {0, 0, 0, 1}}};
    }
};

// A box along the axes. Fresh ones hold nothing: their least corner lies beyond their greatest.
struct HostExtents {
    HostPoint3d min{1e20, 1e20, 1e20};
    HostPoint3d max{-1e20, -1e20, -1e20};

    bool isEmpty() const { return min.x > max.x || min.y > max.y || min.z > max.z; }
    // What has no finite place is left out.
    void addPoint(const HostPoint3d& p) {
        if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.z)) return;
        if (isEmpty()) {
            // What lies beyond the corners of fresh extents counts too.
            min = max = p;
            return;
        }
        min = {std::min(min.x, p.x), std::min(min.y, p.y), std::min(min.z, p.z)};
        max = {std::max(max.x, p.x), std::max(max.y, p.y), std::max(max.z, p.z)};
    }
    void addExt(const HostExtents& other) {
        if (other.isEmpty()) return;
        addPoint(other.min);
        addPoint(other.max);
    }
    // The box around the transformed corners.
    void transformBy(const HostMatrix3d& matrix) {
        HostExtents moved;
        for (int corner = 0; corner < 8; ++corner) {
            moved.addPoint(matrix * HostPoint3d{corner & 1 ? max.x : min.x, corner & 2 ? max.y : min.y,
                                                corner & 4 ? max.z : min.z});
        }
        *this = moved;
    }
};

// Pixels of a window, y downward.
struct HostGsRect {
    int left = 0, top = 0, right = 0, bottom = 0;
};
