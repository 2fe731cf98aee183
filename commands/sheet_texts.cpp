#include "commands/sheet_texts.h"

#include "commands/text_conversion.h"
#include "data/date_text.h"
#include "data/project_context.h"
#include "drawing/drawing_file.h"
#include "drawing/model_space.h"
#include "platform/acad/db_text.h"
#include "platform/acad/editor.h"
#include "ui/bren_dlg.h"

#include <memory>

namespace {
constexpr double g_dStripTextY = -287.0 + 3.0; // from the sheet's top
constexpr double g_dStripTextHeight = 5.0;
constexpr double g_dStripDateHeight = 4.0;
constexpr double g_dStripScale = 1000.0; // the strip is drawn in metres
} // namespace

void AddSheetText(const AcGePoint3d& ptPosition, const CString& strText, double dHeight) {
    auto pText = std::make_unique<AcDbText>(ptPosition, ToWide(strText), AcDbObjectId::kNull, dHeight, 0.0);
    AcDbObjectId idText;
    AddToModelSpace(pText.get(), idText);
    if (!idText.isNull()) static_cast<void>(pText.release()); // the drawing's now
}

void InsertSupportBlock(const CString& strName, const AcGePoint3d& ptPosition, double dRotation,
                        double dScale) {
    const CString strFile = strName.Mid(strName.ReverseFind('\\') + 1);
    CString strRoot;
    if (!GetRootPath(&strRoot)) {
        acutPrintf(L"\n读取路径出错!");
        return;
    }
    CString strFound;
    if (!FindDrawingFile(strRoot + "\\Support\\Block\\" + strFile, strFound))
        acutPrintf(L"\n缺图框文件%s!", ToWide(strFile));
    InsertDwgAsBlock(strFound, ptPosition, dRotation, dScale);
}

void AddTitleStrip(const AcGePoint3d& ptCorner, const CBRENDlg& dialog) {
    InsertSupportBlock("gltka3.dwg", {ptCorner.x - 24.0, ptCorner.y - 292.0, 0.0}, 0.0, g_dStripScale);
    const auto add = [&ptCorner](double x, const CString& strText, double dHeight) {
        AddSheetText({ptCorner.x + x, ptCorner.y + g_dStripTextY, ptCorner.z}, strText, dHeight);
    };
    if (dialog.m_bUnit) add(6.0, dialog.m_strUnit, g_dStripTextHeight);
    if (dialog.m_bTester) add(190.0, dialog.m_strTester, g_dStripTextHeight);
    if (dialog.m_bChecker) add(260.0, dialog.m_strChecker, g_dStripTextHeight);
    if (dialog.m_bDate) add(361.0, DateText(dialog.m_tDate), g_dStripDateHeight);
    add(120.0, "三轴剪切试验成果图", g_dStripTextHeight);
}
