#include "host/files/dxf_style_font.h"

#include "platform/acad/result_buffer.h"

namespace {

constexpr const ACHAR* g_szApp = L"ACAD";
constexpr Adesk::Int32 g_nBold = 0x2000000, g_nItalic = 0x1000000, g_nByte = 0xFF;
constexpr int g_nTypefaceCode = 1000, g_nTraitsCode = 1071, g_nCharsetShift = 8;

} // namespace

void TakeDxfStyleFont(AcDbObjectId idStyle) {
    const CDbOpen<AcDbTextStyleTableRecord> style(idStyle, AcDb::kForWrite);
    const CResbufChain chain(style ? style->xData(g_szApp) : nullptr);
    const resbuf* const pTypeface = chain ? chain->rbnext : nullptr;
    const resbuf* const pTraits = pTypeface ? pTypeface->rbnext : nullptr;
    if (!pTraits || pTypeface->restype != g_nTypefaceCode || pTraits->restype != g_nTraitsCode) return;
    const Adesk::Int32 nTraits = pTraits->resval.rlong;
    const Acad::ErrorStatus status =
        style->setFont(pTypeface->resval.rstring, (nTraits & g_nBold) != 0, (nTraits & g_nItalic) != 0,
                       (nTraits >> g_nCharsetShift) & g_nByte, nTraits & g_nByte);
    if (status != Acad::eOk) return;
    const CResbufChain without(acutBuildList(1001, g_szApp, RTNONE));
    style->setXData(without.Get());
}

void WriteDxfStyleFont(CDxfWriter& writer, const AcDbTextStyleTableRecord& style) {
    std::wstring strTypeface;
    Adesk::Boolean bBold = 0, bItalic = 0;
    int nCharset = 0, nPitchAndFamily = 0;
    style.font(strTypeface, bBold, bItalic, nCharset, nPitchAndFamily);
    if (strTypeface.empty()) return;
    writer.Text(1001, g_szApp);
    writer.Text(g_nTypefaceCode, strTypeface);
    writer.Whole(g_nTraitsCode, (bBold ? g_nBold : 0) | (bItalic ? g_nItalic : 0) |
                                    ((nCharset & g_nByte) << g_nCharsetShift) | (nPitchAndFamily & g_nByte));
}
