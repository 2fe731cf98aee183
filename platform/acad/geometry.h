#pragma once
// Points, vectors, matrices and tolerances. Lengths are drawing units, angles radians.

#include "platform/acad/ac_array.h"
#include "platform/acad/adesk.h"

#include <cmath>

/// Two tolerances: how far equal points may lie apart, and how much equal vectors may differ.
class AcGeTol {
public:
    double equalPoint() const { return m_dEqualPoint; }
    double equalVector() const { return m_dEqualVector; }
    void setEqualPoint(double value) { m_dEqualPoint = value; }
    void setEqualVector(double value) { m_dEqualVector = value; }

private:
    double m_dEqualPoint = 1e-10;
    double m_dEqualVector = 1e-10;
};

struct AcGeContext {
    /// The tolerance of every comparison that is given none.
    static AcGeTol gTol;
};

class AcGeVector2d {
public:
    double x = 0.0, y = 0.0;
    AcGeVector2d() = default;
    AcGeVector2d(double xx, double yy)
        : x(xx)
        , y(yy) {}
    double length() const { return std::hypot(x, y); }
};

class AcGePoint2d {
public:
    double x = 0.0, y = 0.0;
    AcGePoint2d() = default;
    AcGePoint2d(double xx, double yy)
        : x(xx)
        , y(yy) {}
    AcGePoint2d& set(double xx, double yy) {
        x = xx;
        y = yy;
        return *this;
    }
    double distanceTo(const AcGePoint2d& other) const { return std::hypot(x - other.x, y - other.y); }
};

class AcGeMatrix3d;

/// Factors along the three axes; a negative one mirrors.
class AcGeScale3d {
public:
    double sx = 1.0, sy = 1.0, sz = 1.0;
    AcGeScale3d() = default;
    explicit AcGeScale3d(double factor)
        : AcGeScale3d(factor, factor, factor) {}
    AcGeScale3d(double x, double y, double z)
        : sx(x)
        , sy(y)
        , sz(z) {}
    bool operator==(const AcGeScale3d&) const = default;
};

class AcGeVector3d {
public:
    double x = 0.0, y = 0.0, z = 0.0;
    static const AcGeVector3d kIdentity; // the zero vector
    static const AcGeVector3d kXAxis, kYAxis, kZAxis;

    AcGeVector3d() = default;
    AcGeVector3d(double xx, double yy, double zz)
        : x(xx)
        , y(yy)
        , z(zz) {}
    AcGeVector3d& set(double xx, double yy, double zz) {
        x = xx;
        y = yy;
        z = zz;
        return *this;
    }

    double length() const { return std::sqrt(x * x + y * y + z * z); }
    bool isZeroLength(const AcGeTol& tol = AcGeContext::gTol) const { return length() <= tol.equalVector(); }
    /// Vectors are equal when their difference is no longer than the vector tolerance.
    bool isEqualTo(const AcGeVector3d& other, const AcGeTol& tol = AcGeContext::gTol) const {
        return AcGeVector3d(x - other.x, y - other.y, z - other.z).length() <= tol.equalVector();
    }
    bool operator==(const AcGeVector3d& other) const { return isEqualTo(other); }
    bool operator!=(const AcGeVector3d& other) const { return !isEqualTo(other); }

    AcGeVector3d operator+(const AcGeVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
    AcGeVector3d operator-(const AcGeVector3d& v) const { return {x - v.x, y - v.y, z - v.z}; }
    AcGeVector3d operator*(double s) const { return {x * s, y * s, z * s}; }
    AcGeVector3d operator-() const { return {-x, -y, -z}; }
    double dotProduct(const AcGeVector3d& v) const { return x * v.x + y * v.y + z * v.z; }
    AcGeVector3d crossProduct(const AcGeVector3d& v) const {
        return {y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x};
    }
    /// A vector of length 1 in the same direction; the zero vector stays.
    AcGeVector3d normal() const {
        const double len = length();
        return len > 0.0 ? *this * (1.0 / len) : *this;
    }
    AcGeVector3d& transformBy(const AcGeMatrix3d& matrix);
};

class AcGePoint3d {
public:
    double x = 0.0, y = 0.0, z = 0.0;
    static const AcGePoint3d kOrigin;

    AcGePoint3d() = default;
    AcGePoint3d(double xx, double yy, double zz)
        : x(xx)
        , y(yy)
        , z(zz) {}
    AcGePoint3d& set(double xx, double yy, double zz) {
        x = xx;
        y = yy;
        z = zz;
        return *this;
    }

    double distanceTo(const AcGePoint3d& p) const { return (*this - p).length(); }
    bool isEqualTo(const AcGePoint3d& p, const AcGeTol& tol = AcGeContext::gTol) const {
        return distanceTo(p) <= tol.equalPoint();
    }
    bool operator==(const AcGePoint3d& p) const { return isEqualTo(p); }
    bool operator!=(const AcGePoint3d& p) const { return !isEqualTo(p); }

    AcGePoint3d operator+(const AcGeVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
    AcGePoint3d operator-(const AcGeVector3d& v) const { return {x - v.x, y - v.y, z - v.z}; }
    AcGeVector3d operator-(const AcGePoint3d& p) const { return {x - p.x, y - p.y, z - p.z}; }
    AcGePoint3d& operator+=(const AcGeVector3d& v) { return *this = *this + v; }
    AcGeVector3d asVector() const { return {x, y, z}; }
    AcGePoint3d& transformBy(const AcGeMatrix3d& matrix);
};

using AcGePoint3dArray = AcArray<AcGePoint3d>;
using AcDbIntArray = AcArray<int>;

/// A 4 x 4 transformation; a point is a column on its right.
class AcGeMatrix3d {
public:
    double entry[4][4];
    AcGeMatrix3d() { setToIdentity(); }

    AcGeMatrix3d& setToIdentity();
    AcGeMatrix3d operator*(const AcGeMatrix3d& right) const;
    static AcGeMatrix3d translation(const AcGeVector3d& offset);
    /// A turn by angle about an axis through center.
    static AcGeMatrix3d rotation(double angle, const AcGeVector3d& axis, const AcGePoint3d& center);
    static AcGeMatrix3d scaling(double factor, const AcGePoint3d& center);
    static AcGeMatrix3d scaling(const AcGeScale3d& factors, const AcGePoint3d& center);
    /// The mirror image at the plane through point with the given normal.
    static AcGeMatrix3d mirroring(const AcGePoint3d& point, const AcGeVector3d& planeNormal);
};

/// A box that grows to what is added; points with a coordinate that is no finite number are left out.
class AcDbExtents {
public:
    AcDbExtents() = default;
    void addPoint(const AcGePoint3d& point);
    void addExt(const AcDbExtents& other);
    const AcGePoint3d& minPoint() const { return m_ptMin; }
    const AcGePoint3d& maxPoint() const { return m_ptMax; }
    bool isEmpty() const { return m_bEmpty; }

private:
    AcGePoint3d m_ptMin, m_ptMax;
    bool m_bEmpty = true;
};
