#pragma once
// The own parts of a drawing file's lines and curves, and how each is filed.

#include "host/files/dwg_zero.h"
#include "platform/acad/geometry.h"

#include <utility>
#include <vector>

inline constexpr std::uint16_t g_nDwgArc = 0x11, g_nDwgLine = 0x13, g_nDwgSpline = 0x24,
                               g_nDwgPolyline = 0x4D;

struct CDwgLine {
    AcGePoint3d m_ptStart, m_ptEnd;
    double m_dThickness = 0.0;
    AcGeVector3d m_vecExtrusion{0.0, 0.0, 1.0};
};

template <class Io, class Line>
void FileLine(Io& io, Line& line) {
    bool bFlat = IsPlainZero(line.m_ptStart.z) && IsPlainZero(line.m_ptEnd.z);
    io.B(bFlat);
    io.RD(line.m_ptStart.x);
    io.DD(line.m_ptEnd.x, line.m_ptStart.x);
    io.RD(line.m_ptStart.y);
    io.DD(line.m_ptEnd.y, line.m_ptStart.y);
    if (!bFlat) {
        io.RD(line.m_ptStart.z);
        io.DD(line.m_ptEnd.z, line.m_ptStart.z);
    }
    io.BT(line.m_dThickness);
    io.BE(line.m_vecExtrusion);
}

struct CDwgArc {
    AcGePoint3d m_ptCenter;
    double m_dRadius = 0.0, m_dThickness = 0.0;
    AcGeVector3d m_vecExtrusion{0.0, 0.0, 1.0};
    double m_dStart = 0.0, m_dEnd = 0.0; ///< radians
};

template <class Io, class Arc>
void FileArc(Io& io, Arc& arc) {
    io.BD3(arc.m_ptCenter);
    io.BD(arc.m_dRadius);
    io.BT(arc.m_dThickness);
    io.BE(arc.m_vecExtrusion);
    io.BD(arc.m_dStart);
    io.BD(arc.m_dEnd);
}

struct CDwgWidths {
    double m_dStart = 0.0, m_dEnd = 0.0;
};

/// A polyline in a plane; bulges and widths are none or as many as points.
struct CDwgPolyline {
    // What m_nFlags tells to be there, and what it tells besides.
    static constexpr std::uint16_t s_nExtrusion = 1, s_nThickness = 2, s_nConstantWidth = 4, s_nElevation = 8,
                                   s_nBulges = 16, s_nWidths = 32, s_nClosed = 512;
    std::uint16_t m_nFlags = 0;
    double m_dConstantWidth = 0.0, m_dElevation = 0.0, m_dThickness = 0.0;
    AcGeVector3d m_vecExtrusion{0.0, 0.0, 1.0};
    std::vector<AcGePoint2d> m_arPoints;
    std::vector<double> m_arBulges;
    std::vector<CDwgWidths> m_arWidths;
};

template <class Io, class Polyline>
void FilePolyline(Io& io, Polyline& polyline) {
    std::uint32_t nPoints = static_cast<std::uint32_t>(polyline.m_arPoints.size());
    std::uint32_t nBulges = static_cast<std::uint32_t>(polyline.m_arBulges.size());
    std::uint32_t nWidths = static_cast<std::uint32_t>(polyline.m_arWidths.size());
    io.BS(polyline.m_nFlags);
    const auto has = [&polyline](std::uint16_t nFlag) { return (polyline.m_nFlags & nFlag) != 0; };
    if (has(CDwgPolyline::s_nConstantWidth)) io.BD(polyline.m_dConstantWidth);
    if (has(CDwgPolyline::s_nElevation)) io.BD(polyline.m_dElevation);
    if (has(CDwgPolyline::s_nThickness)) io.BD(polyline.m_dThickness);
    if (has(CDwgPolyline::s_nExtrusion)) io.BD3(polyline.m_vecExtrusion);
    io.BL(nPoints);
    if (has(CDwgPolyline::s_nBulges)) io.BL(nBulges);
    if (has(CDwgPolyline::s_nWidths)) io.BL(nWidths);
    bool bFirst = true;
    AcGePoint2d ptLast;
    io.List(polyline.m_arPoints, nPoints, [&](auto& pt) {
        if (std::exchange(bFirst, false)) {
            io.RD2(pt);
        } else {
            io.DD(pt.x, ptLast.x);
            io.DD(pt.y, ptLast.y);
        }
        ptLast = pt;
    });
    io.List(polyline.m_arBulges, nBulges, [&](auto& dBulge) { io.BD(dBulge); });
    io.List(polyline.m_arWidths, nWidths, [&](auto& widths) {
        io.BD(widths.m_dStart);
        io.BD(widths.m_dEnd);
    });
}

struct CDwgControlPoint {
    AcGePoint3d m_pt;
    double m_dWeight = 1.0;
};

/// A spline in one of its two forms.
struct CDwgSpline {
    static constexpr std::uint32_t s_nByControlPoints = 1, s_nByFitPoints = 2;
    static constexpr std::uint32_t s_nHighestDegree = 25;
    std::uint32_t m_nForm = s_nByControlPoints;
    std::uint32_t m_nDegree = 3;
    // By fit points.
    double m_dFitTolerance = 0.0;
    AcGeVector3d m_vecStartTangent, m_vecEndTangent; ///< of no length: not given
    std::vector<AcGePoint3d> m_arFitPoints;
    // By control points.
    bool m_bRational = false, m_bClosed = false, m_bPeriodic = false;
    double m_dKnotTolerance = 1e-7, m_dControlTolerance = 1e-7;
    std::vector<double> m_arKnots;
    std::vector<CDwgControlPoint> m_arControlPoints;
    bool m_bWeights = false; ///< the control points' weights stand in the file
};

template <class Io, class Spline>
void FileFitPoints(Io& io, Spline& spline) {
    std::uint32_t nPoints = static_cast<std::uint32_t>(spline.m_arFitPoints.size());
    io.BD(spline.m_dFitTolerance);
    io.BD3(spline.m_vecStartTangent);
    io.BD3(spline.m_vecEndTangent);
    io.BL(nPoints);
    io.List(spline.m_arFitPoints, nPoints, [&io](auto& pt) { io.BD3(pt); });
}

template <class Io, class Spline>
void FileControlPoints(Io& io, Spline& spline) {
    std::uint32_t nKnots = static_cast<std::uint32_t>(spline.m_arKnots.size());
    std::uint32_t nPoints = static_cast<std::uint32_t>(spline.m_arControlPoints.size());
    io.B(spline.m_bRational);
    io.B(spline.m_bClosed);
    io.B(spline.m_bPeriodic);
    io.BD(spline.m_dKnotTolerance);
    io.BD(spline.m_dControlTolerance);
    io.BL(nKnots);
    io.BL(nPoints);
    io.B(spline.m_bWeights);
    io.List(spline.m_arKnots, nKnots, [&io](auto& dKnot) { io.BD(dKnot); });
    io.List(spline.m_arControlPoints, nPoints, [&](auto& point) {
        io.BD3(point.m_pt);
        if (spline.m_bWeights) io.BD(point.m_dWeight);
    });
}

/// Fails for a form that is none and for a degree that no curve has.
template <class Io, class Spline>
void FileSpline(Io& io, Spline& spline) {
    io.BL(spline.m_nForm);
    io.BL(spline.m_nDegree);
    if (spline.m_nDegree > CDwgSpline::s_nHighestDegree) return io.Fail();
    if (spline.m_nForm == CDwgSpline::s_nByFitPoints) return FileFitPoints(io, spline);
    if (spline.m_nForm == CDwgSpline::s_nByControlPoints) return FileControlPoints(io, spline);
    io.Fail();
}
