#pragma once

#include "host/files/dwg_table_records.h"
#include "platform/acad/geometry.h"

/// A view of model space, as a drawing file's table of viewports holds it.
struct CDwgViewportRecord : CDwgTableRecord {
    double m_dHeight = 297.0, m_dWidth = 420.0;
    AcGePoint2d m_ptCenter{210.0, 148.5};
    AcGePoint3d m_ptTarget;
    AcGeVector3d m_vecDirection{0.0, 0.0, 1.0};
    double m_dTwist = 0.0, m_dLens = 50.0, m_dFrontClip = 0.0, m_dBackClip = 0.0;
    std::uint8_t m_nViewMode = 1, m_nRenderMode = 0;
    AcGePoint2d m_ptLowerLeft, m_ptUpperRight{1.0, 1.0};
    bool m_bUcsFollow = false;
    std::uint16_t m_nCircleZoom = 100;
    bool m_bFastZoom = true;
    std::uint8_t m_nUcsIcon = 3;
    bool m_bGrid = false;
    AcGePoint2d m_ptGridSpacing{10.0, 10.0};
    bool m_bSnap = false, m_bSnapStyle = false;
    std::uint16_t m_nSnapIsopair = 0;
    double m_dSnapRotation = 0.0;
    AcGePoint2d m_ptSnapBase, m_ptSnapSpacing{10.0, 10.0};
    bool m_bUnknown = false, m_bOwnUcs = true;
    AcGePoint3d m_ptUcsOrigin;
    AcGeVector3d m_vecUcsX{1.0, 0.0, 0.0}, m_vecUcsY{0.0, 1.0, 0.0};
    double m_dElevation = 0.0;
    std::uint16_t m_nUcsOrtho = 0;
    CDwgHandle m_hNamedUcs = HardPointer(0), m_hBaseUcs = HardPointer(0);
};

template <class Io, class Viewport>
void FileViewport(Io& io, Viewport& view) {
    FileTableRecord(io, view);
    const auto doubles = [&io](auto&... values) { (io.BD(values), ...); };
    doubles(view.m_dHeight, view.m_dWidth);
    io.RD2(view.m_ptCenter);
    io.BD3(view.m_ptTarget);
    io.BD3(view.m_vecDirection);
    doubles(view.m_dTwist, view.m_dLens, view.m_dFrontClip, view.m_dBackClip);
    io.B4(view.m_nViewMode);
    io.RC(view.m_nRenderMode);
    io.RD2(view.m_ptLowerLeft);
    io.RD2(view.m_ptUpperRight);
    io.B(view.m_bUcsFollow);
    io.BS(view.m_nCircleZoom);
    io.B(view.m_bFastZoom);
    io.BB(view.m_nUcsIcon);
    io.B(view.m_bGrid);
    io.RD2(view.m_ptGridSpacing);
    io.B(view.m_bSnap);
    io.B(view.m_bSnapStyle);
    io.BS(view.m_nSnapIsopair);
    io.BD(view.m_dSnapRotation);
    io.RD2(view.m_ptSnapBase);
    io.RD2(view.m_ptSnapSpacing);
    io.B(view.m_bUnknown);
    io.B(view.m_bOwnUcs);
    io.BD3(view.m_ptUcsOrigin);
    io.BD3(view.m_vecUcsX);
    io.BD3(view.m_vecUcsY);
    io.BD(view.m_dElevation);
    io.BS(view.m_nUcsOrtho);
    io.Handle(view.m_hNamedUcs);
    io.Handle(view.m_hBaseUcs);
}
