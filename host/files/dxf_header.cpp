#include "host/files/dxf_header.h"

namespace {
constexpr int g_nName = 9;
constexpr std::string_view g_szFirstUtf8 = "AC1021";
} // namespace

CDxfHeader::CDxfHeader(const CDxfRecord& section) {
    CDxfRecord* pVariable = nullptr;
    for (const CDxfTag& tag : section.m_arTags) {
        if (tag.m_nCode == g_nName) {
            pVariable = &m_mapVariables[tag.Text()];
            pVariable->m_pEncoding = section.m_pEncoding;
        } else if (pVariable) {
            pVariable->m_arTags.push_back(tag);
        }
    }
}

const CDxfRecord& CDxfHeader::Variable(std::string_view name) const {
    static const CDxfRecord s_none;
    const auto found = m_mapVariables.find(name);
    return found == m_mapVariables.end() ? s_none : found->second;
}

CDrawingText CDxfHeader::Encoding() const {
    const CDxfTag* const pVersion = Variable("$ACADVER").Find(1);
    if (pVersion && pVersion->Text() >= g_szFirstUtf8)
        return CDrawingText(g_nUtf8Page, CDrawingText::CCarets::Escapes);
    const CDxfTag* const pCodePage = Variable("$DWGCODEPAGE").Find(3);
    return CDrawingText(pCodePage ? CodePageOfDxf(pCodePage->Text()) : g_nWesternPage,
                        CDrawingText::CCarets::Escapes);
}

void CDxfHeader::Apply(CDxfDrawing& drawing) const {
    AcDbDatabase& database = drawing.Database();
    database.setLtscale(Variable("$LTSCALE").Real(40, database.ltscale()));
    database.setInsbase(Variable("$INSBASE").Point(10));
    database.setCeltype(drawing.Linetype(Variable("$CELTYPE").Text(6)));
    database.setClayer(drawing.Layer(Variable("$CLAYER").Text(8)));
    database.setTextstyle(drawing.TextStyle(Variable("$TEXTSTYLE").Text(7)));
}
