#pragma once

/// Reads or writes dimension variables in the order that the header and a dimension style have in common; the
/// line weights, which differ in place, are left out.
template <class Bits, class Dimension>
void FileDimensionVariables(Bits& bits, Dimension& dim) {
    const auto flags = [&bits](auto&... values) { (bits.B(values), ...); };
    const auto shorts = [&bits](auto&... values) { (bits.BS(values), ...); };
    const auto doubles = [&bits](auto&... values) { (bits.BD(values), ...); };
    bits.T(dim.m_strDimpost);
    bits.T(dim.m_strDimapost);
    doubles(dim.m_dDimscale, dim.m_dDimasz, dim.m_dDimexo, dim.m_dDimdli, dim.m_dDimexe, dim.m_dDimrnd,
            dim.m_dDimdle, dim.m_dDimtp, dim.m_dDimtm);
    flags(dim.m_bDimtol, dim.m_bDimlim, dim.m_bDimtih, dim.m_bDimtoh, dim.m_bDimse1, dim.m_bDimse2);
    shorts(dim.m_nDimtad, dim.m_nDimzin, dim.m_nDimazin);
    doubles(dim.m_dDimtxt, dim.m_dDimcen, dim.m_dDimtsz, dim.m_dDimaltf, dim.m_dDimlfac, dim.m_dDimtvp,
            dim.m_dDimtfac, dim.m_dDimgap, dim.m_dDimaltrnd);
    flags(dim.m_bDimalt);
    shorts(dim.m_nDimaltd);
    flags(dim.m_bDimtofl, dim.m_bDimsah, dim.m_bDimtix, dim.m_bDimsoxd);
    shorts(dim.m_nDimclrd, dim.m_nDimclre, dim.m_nDimclrt);
    shorts(dim.m_nDimadec, dim.m_nDimdec, dim.m_nDimtdec, dim.m_nDimaltu, dim.m_nDimalttd, dim.m_nDimaunit,
           dim.m_nDimfrac, dim.m_nDimlunit, dim.m_nDimdsep, dim.m_nDimtmove, dim.m_nDimjust);
    flags(dim.m_bDimsd1, dim.m_bDimsd2);
    shorts(dim.m_nDimtolj, dim.m_nDimtzin, dim.m_nDimaltz, dim.m_nDimalttz);
    flags(dim.m_bDimupt);
    shorts(dim.m_nDimatfit);
}
