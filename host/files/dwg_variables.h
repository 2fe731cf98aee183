#pragma once
// The variables of a drawing file by their names. Those that nothing here sets have the values of a new
// drawing.

#include "host/files/bytes.h"
#include "host/files/dwg_handle.h"
#include "platform/acad/geometry.h"

#include <array>
#include <numbers>
#include <string>

/// A moment or a duration: days (of a moment the Julian day) and milliseconds of the day.
struct CDwgTime {
    std::uint32_t m_nDay = 0, m_nMilliseconds = 0;
};

/// The variables that model and paper space have each for itself.
struct CDwgSpaceVariables {
    AcGePoint3d m_ptInsbase;
    AcGePoint3d m_ptExtmin{1e20, 1e20, 1e20}, m_ptExtmax{-1e20, -1e20, -1e20}; ///< of nothing at all
    AcGePoint2d m_ptLimmin, m_ptLimmax{420.0, 297.0};
    double m_dElevation = 0.0;
    AcGePoint3d m_ptUcsorg;
    AcGeVector3d m_vecUcsxdir{1.0, 0.0, 0.0}, m_vecUcsydir{0.0, 1.0, 0.0};
    CDwgHandle m_hUcsname = HardPointer(0), m_hUcsorthoref = HardPointer(0);
    std::uint16_t m_nUcsorthoview = 0;
    CDwgHandle m_hUcsbase = HardPointer(0);
    std::array<AcGePoint3d, 6> m_arUcsorgs; ///< top, bottom, left, right, front, back
};

/// The dimension variables that stand in the header and in each dimension style alike.
struct CDwgDimensionVariables {
    std::string m_strDimpost, m_strDimapost;
    double m_dDimscale = 1.0, m_dDimasz = 0.18, m_dDimexo = 0.0625, m_dDimdli = 0.38, m_dDimexe = 0.18,
           m_dDimrnd = 0.0, m_dDimdle = 0.0, m_dDimtp = 0.0, m_dDimtm = 0.0;
    bool m_bDimtol = false, m_bDimlim = false, m_bDimtih = true, m_bDimtoh = true, m_bDimse1 = false,
         m_bDimse2 = false;
    std::uint16_t m_nDimtad = 0, m_nDimzin = 0, m_nDimazin = 0;
    double m_dDimtxt = 0.18, m_dDimcen = 0.09, m_dDimtsz = 0.0, m_dDimaltf = 25.4, m_dDimlfac = 1.0,
           m_dDimtvp = 0.0, m_dDimtfac = 1.0, m_dDimgap = 0.09, m_dDimaltrnd = 0.0;
    bool m_bDimalt = false;
    std::uint16_t m_nDimaltd = 2;
    bool m_bDimtofl = false, m_bDimsah = false, m_bDimtix = false, m_bDimsoxd = false;
    std::uint16_t m_nDimclrd = 0, m_nDimclre = 0, m_nDimclrt = 0;
    std::uint16_t m_nDimadec = 0, m_nDimdec = 4, m_nDimtdec = 4, m_nDimaltu = 2, m_nDimalttd = 2,
                  m_nDimaunit = 0, m_nDimfrac = 0, m_nDimlunit = 2, m_nDimdsep = '.', m_nDimtmove = 0,
                  m_nDimjust = 0;
    bool m_bDimsd1 = false, m_bDimsd2 = false;
    std::uint16_t m_nDimtolj = 1, m_nDimtzin = 0, m_nDimaltz = 0, m_nDimalttz = 0;
    bool m_bDimupt = false;
    std::uint16_t m_nDimatfit = 3;
    std::int16_t m_nDimlwd = -2, m_nDimlwe = -2;
};

/// The objects that the header names: the tables and what every drawing has.
struct CDwgRoots {
    CDwgHandle m_hBlocks = HardOwner(0), m_hLayers = HardOwner(0), m_hStyles = HardOwner(0),
               m_hLinetypes = HardOwner(0), m_hViews = HardOwner(0), m_hUcss = HardOwner(0),
               m_hViewports = HardOwner(0), m_hApps = HardOwner(0), m_hDimstyles = HardOwner(0),
               m_hViewportEntities = HardOwner(0);
    CDwgHandle m_hGroups = HardPointer(0), m_hMlineStyles = HardPointer(0), m_hNamedObjects = HardOwner(0);
    CDwgHandle m_hLayouts = HardPointer(0), m_hPlotSettings = HardPointer(0), m_hPlotStyles = HardPointer(0);
    CDwgHandle m_hPaperSpace = HardPointer(0), m_hModelSpace = HardPointer(0), m_hByLayer = HardPointer(0),
               m_hByBlock = HardPointer(0), m_hContinuous = HardPointer(0);
};

struct CDwgVariables {
    CDwgHandle m_hViewport = HardPointer(0);
    bool m_bDimaso = true, m_bDimsho = true, m_bPlinegen = false, m_bOrthomode = false, m_bRegenmode = true,
         m_bFillmode = true, m_bQtextmode = false, m_bPsltscale = true, m_bLimcheck = false,
         m_bUsrtimer = true, m_bSkpoly = false, m_bAngdir = false, m_bSplframe = false, m_bMirrtext = true,
         m_bWorldview = true, m_bTilemode = true, m_bPlimcheck = false, m_bVisretain = true,
         m_bDispsilh = false, m_bPellipse = false;
    std::uint16_t m_nProxygraphics = 1, m_nTreedepth = 3020, m_nLunits = 2, m_nLuprec = 4, m_nAunits = 0,
                  m_nAuprec = 0, m_nAttmode = 1, m_nPdmode = 0;
    std::array<std::uint16_t, 5> m_arUseri{};
    std::uint16_t m_nSplinesegs = 8, m_nSurfu = 6, m_nSurfv = 6, m_nSurftype = 6, m_nSurftab1 = 6,
                  m_nSurftab2 = 6, m_nSplinetype = 6, m_nShadedge = 3, m_nShadedif = 70, m_nUnitmode = 0,
                  m_nMaxactvp = 64, m_nIsolines = 4, m_nCmljust = 0, m_nTextqlty = 50;
    double m_dLtscale = 1.0, m_dTextsize = 2.5, m_dTracewid = 1.0, m_dSketchinc = 1.0, m_dFilletrad = 0.0,
           m_dThickness = 0.0, m_dAngbase = 0.0, m_dPdsize = 0.0, m_dPlinewid = 0.0;
    std::array<double, 5> m_arUserr{};
    double m_dChamfera = 0.0, m_dChamferb = 0.0, m_dChamferc = 0.0, m_dChamferd = 0.0, m_dFacetres = 0.5,
           m_dCmlscale = 1.0, m_dCeltscale = 1.0;
    std::string m_strMenuname = ".";
    CDwgTime m_tdcreate, m_tdupdate, m_tdindwg, m_tdusrtimer;
    std::uint16_t m_nCecolor = 256;
    CDwgHandle m_hHandseed; ///< above every handle in use
    CDwgHandle m_hClayer = HardPointer(0), m_hTextstyle = HardPointer(0), m_hCeltype = HardPointer(0),
               m_hDimstyle = HardPointer(0), m_hCmlstyle = HardPointer(0);
    double m_dPsvpscale = 0.0;
    CDwgSpaceVariables m_paper, m_model;
    CDwgDimensionVariables m_dimension;
    CDwgHandle m_hDimtxsty = HardPointer(0), m_hDimldrblk = HardPointer(0), m_hDimblk = HardPointer(0),
               m_hDimblk1 = HardPointer(0), m_hDimblk2 = HardPointer(0);
    CDwgRoots m_roots;
    std::uint16_t m_nTstackalign = 1, m_nTstacksize = 70;
    std::string m_strHyperlinkbase, m_strStylesheet;
    std::uint32_t m_nFlags = 0x2A1D; ///< line weight of new entities by layer, and what a new drawing has set
    std::uint16_t m_nInsunits = 0, m_nCepsntype = 0;
    CDwgHandle m_hCpsnid = HardPointer(0); ///< in the file only where m_nCepsntype is 3
    std::string m_strFingerprint, m_strVersion;
};

/// Reads the data of the section; texts stay in the drawing's code page. Throws CDwgError.
CDwgVariables ReadDwgVariables(CByteView data);

/// The section's data. Throws CDwgError for a text that is too long.
CBytes WriteDwgVariables(const CDwgVariables& variables);
