#include "host/files/dwg_variables.h"

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"
#include "host/files/dwg_dimension_fields.h"
#include "host/files/dwg_error.h"

namespace {

constexpr double g_dLeading = 412148564080.0; ///< what every header's data begin with
constexpr int g_nTrailingShorts = 4;

/// Reads past a value that has no meaning, or writes it.
template <class Bits>
void FileUnknowns(Bits& bits) {
    double dLeading = g_dLeading, dOne = 1.0;
    std::string strUnit = "m", strNone;
    std::uint32_t nNone = 0;
    bits.BD(dLeading);
    for (int i = 0; i < 3; ++i)
        bits.BD(dOne);
    bits.T(strUnit);
    for (int i = 0; i < 3; ++i)
        bits.T(strNone);
    bits.BL(nNone);
    bits.BL(nNone);
}

template <class Bits, class Variables>
void FileModes(Bits& bits, Variables& vars) {
    const auto flags = [&bits](auto&... values) { (bits.B(values), ...); };
    const auto shorts = [&bits](auto&... values) { (bits.BS(values), ...); };
    flags(vars.m_bDimaso, vars.m_bDimsho, vars.m_bPlinegen, vars.m_bOrthomode, vars.m_bRegenmode,
          vars.m_bFillmode, vars.m_bQtextmode, vars.m_bPsltscale, vars.m_bLimcheck, vars.m_bUsrtimer,
          vars.m_bSkpoly, vars.m_bAngdir, vars.m_bSplframe, vars.m_bMirrtext, vars.m_bWorldview,
          vars.m_bTilemode, vars.m_bPlimcheck, vars.m_bVisretain, vars.m_bDispsilh, vars.m_bPellipse);
    shorts(vars.m_nProxygraphics, vars.m_nTreedepth, vars.m_nLunits, vars.m_nLuprec, vars.m_nAunits,
           vars.m_nAuprec, vars.m_nAttmode, vars.m_nPdmode);
    for (auto& nValue : vars.m_arUseri)
        bits.BS(nValue);
    shorts(vars.m_nSplinesegs, vars.m_nSurfu, vars.m_nSurfv, vars.m_nSurftype, vars.m_nSurftab1,
           vars.m_nSurftab2, vars.m_nSplinetype, vars.m_nShadedge, vars.m_nShadedif, vars.m_nUnitmode,
           vars.m_nMaxactvp, vars.m_nIsolines, vars.m_nCmljust, vars.m_nTextqlty);
}

template <class Bits, class Variables>
void FileSizes(Bits& bits, Variables& vars) {
    const auto doubles = [&bits](auto&... values) { (bits.BD(values), ...); };
    doubles(vars.m_dLtscale, vars.m_dTextsize, vars.m_dTracewid, vars.m_dSketchinc, vars.m_dFilletrad,
            vars.m_dThickness, vars.m_dAngbase, vars.m_dPdsize, vars.m_dPlinewid);
    for (auto& dValue : vars.m_arUserr)
        bits.BD(dValue);
    doubles(vars.m_dChamfera, vars.m_dChamferb, vars.m_dChamferc, vars.m_dChamferd, vars.m_dFacetres,
            vars.m_dCmlscale, vars.m_dCeltscale);
}

template <class Bits, class Variables>
void FileCurrent(Bits& bits, Variables& vars) {
    bits.T(vars.m_strMenuname);
    const auto times = [&bits](auto&... values) {
        ((bits.BL(values.m_nDay), bits.BL(values.m_nMilliseconds)), ...);
    };
    const auto handles = [&bits](auto&... values) { (bits.H(values), ...); };
    times(vars.m_tdcreate, vars.m_tdupdate, vars.m_tdindwg, vars.m_tdusrtimer);
    bits.CMC(vars.m_nCecolor);
    handles(vars.m_hHandseed, vars.m_hClayer, vars.m_hTextstyle, vars.m_hCeltype, vars.m_hDimstyle,
            vars.m_hCmlstyle);
    bits.BD(vars.m_dPsvpscale);
}

template <class Bits, class Space>
void FileSpace(Bits& bits, Space& space) {
    bits.BD3(space.m_ptInsbase);
    bits.BD3(space.m_ptExtmin);
    bits.BD3(space.m_ptExtmax);
    bits.RD2(space.m_ptLimmin);
    bits.RD2(space.m_ptLimmax);
    bits.BD(space.m_dElevation);
    bits.BD3(space.m_ptUcsorg);
    bits.BD3(space.m_vecUcsxdir);
    bits.BD3(space.m_vecUcsydir);
    bits.H(space.m_hUcsname);
    bits.H(space.m_hUcsorthoref);
    bits.BS(space.m_nUcsorthoview);
    bits.H(space.m_hUcsbase);
    for (auto& pt : space.m_arUcsorgs)
        bits.BD3(pt);
}

template <class Bits, class Variables>
void FileDimension(Bits& bits, Variables& vars) {
    FileDimensionVariables(bits, vars.m_dimension);
    const auto handles = [&bits](auto&... values) { (bits.H(values), ...); };
    handles(vars.m_hDimtxsty, vars.m_hDimldrblk, vars.m_hDimblk, vars.m_hDimblk1, vars.m_hDimblk2);
    bits.BS(vars.m_dimension.m_nDimlwd);
    bits.BS(vars.m_dimension.m_nDimlwe);
}

template <class Bits, class Variables>
void FileRoots(Bits& bits, Variables& vars) {
    const auto handles = [&bits](auto&... values) { (bits.H(values), ...); };
    auto& roots = vars.m_roots;
    handles(roots.m_hBlocks, roots.m_hLayers, roots.m_hStyles, roots.m_hLinetypes, roots.m_hViews,
            roots.m_hUcss, roots.m_hViewports, roots.m_hApps, roots.m_hDimstyles, roots.m_hViewportEntities,
            roots.m_hGroups, roots.m_hMlineStyles, roots.m_hNamedObjects);
    bits.BS(vars.m_nTstackalign);
    bits.BS(vars.m_nTstacksize);
    bits.T(vars.m_strHyperlinkbase);
    bits.T(vars.m_strStylesheet);
    handles(roots.m_hLayouts, roots.m_hPlotSettings, roots.m_hPlotStyles);
    bits.BL(vars.m_nFlags);
    bits.BS(vars.m_nInsunits);
    bits.BS(vars.m_nCepsntype);
    if (vars.m_nCepsntype == 3) bits.H(vars.m_hCpsnid);
    bits.T(vars.m_strFingerprint);
    bits.T(vars.m_strVersion);
    handles(roots.m_hPaperSpace, roots.m_hModelSpace, roots.m_hByLayer, roots.m_hByBlock,
            roots.m_hContinuous);
    for (int i = 0; i < g_nTrailingShorts; ++i) {
        std::uint16_t nUnknown = 0;
        bits.BS(nUnknown);
    }
}

template <class Bits, class Variables>
void FileVariables(Bits& bits, Variables& vars) {
    FileUnknowns(bits);
    bits.H(vars.m_hViewport);
    FileModes(bits, vars);
    FileSizes(bits, vars);
    FileCurrent(bits, vars);
    FileSpace(bits, vars.m_paper);
    FileSpace(bits, vars.m_model);
    FileDimension(bits, vars);
    FileRoots(bits, vars);
}

} // namespace

CDwgVariables ReadDwgVariables(CByteView data) {
    CDwgVariables variables;
    CBitReader bits(data);
    FileVariables(bits, variables);
    if (bits.Failed()) throw CDwgError("Header variables: the data end too early or hold no legal value.");
    return variables;
}

CBytes WriteDwgVariables(const CDwgVariables& variables) {
    CBitWriter bits;
    FileVariables(bits, variables);
    if (bits.Failed()) throw CDwgError("Header variables: a text is too long.");
    return bits.Take();
}
