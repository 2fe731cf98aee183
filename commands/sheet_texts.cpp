#include "commands/sheet_texts.h"

#include "commands/text_conversion.h"
#include "data/date_text.h"
#include "data/project_context.h"
#include "drawing/model_space.h"
#include "platform/acad/db_text.h"
#include "platform/acad/editor.h"
#include "ui/bren_dlg.h"

#include <array>

namespace {
constexpr double g_dStripTextY = -287.0 + 3.0; // from the sheet's top
constexpr double g_dStripTextHeight = 5.0;
constexpr double g_dStripDateHeight = 4.0;
constexpr std::size_t g_nFoundPath = 1024;
} // namespace

void AddSheetText(const AcGePoint3d& ptPosition, const CString& strText, double dHeight) {
    AcDbObjectId idText;
    AddToModelSpace(new AcDbText(ptPosition, ToWide(strText), AcDbObjectId::kNull, dHeight, 0.0), idText);
}

void InsertSupportBlock(const CString& strName) {
    const CString strFile = strName.Mid(strName.ReverseFind('\\') + 1);
    CString strRoot;
    if (!GetRootPath(&strRoot)) {
        acutPrintf(L"\n读取路径出错!");
        return;
    }
    std::array<ACHAR, g_nFoundPath> path{};
    if (acedFindFile(ToWide(strRoot + "\\Support\\Block\\" + strFile), path.data()) != RTNORM)
        acutPrintf(L"\n缺图框文件%s!", ToWide(strFile));
}

void AddTitleStrip(const AcGePoint3d& ptCorner, const CBRENDlg& dialog) {
    InsertSupportBlock("gltka3.dwg");
    const auto add = [&ptCorner](double x, const CString& strText, double dHeight) {
        AddSheetText({ptCorner.x + x, ptCorner.y + g_dStripTextY, ptCorner.z}, strText, dHeight);
    };
    if (dialog.m_bUnit) add(6.0, dialog.m_strUnit, g_dStripTextHeight);
    if (dialog.m_bTester) add(190.0, dialog.m_strTester, g_dStripTextHeight);
    if (dialog.m_bChecker) add(260.0, dialog.m_strChecker, g_dStripTextHeight);
    if (dialog.m_bDate) add(361.0, DateText(dialog.m_tDate), g_dStripDateHeight);
    add(120.0, "三轴剪切试验成果图", g_dStripTextHeight);
}
