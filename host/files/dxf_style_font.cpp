#include "host/files/dxf_style_font.h"

#include "host/files/dxf_output.h"
#include "host/files/dxf_xdata.h"
#include "host/files/typeface.h"

void TakeDxfStyleFont(AcDbObjectId idStyle) {
    const CDbOpen<AcDbTextStyleTableRecord> style(idStyle, AcDb::kForWrite);
    if (!style) return;
    const std::vector<CXDataOfApp> arApps = style->XData().Apps(); // as they were
    for (const CXDataOfApp& app : arApps)
        if (DxfName(app.m_idApp) == g_szTypefaceApp && GiveTypeface(*style.Get(), app.m_arItems))
            style->PutXData({app.m_idApp, {}});
}

void WriteDxfStyleFont(CDxfWriter& writer, const AcDbTextStyleTableRecord& style) {
    if (const std::vector<CXDataItem> items = TypefaceItems(style); !items.empty())
        WriteDxfXDataOf(writer, g_szTypefaceApp, items);
}
