#include "commands/chart_folder.h"

#include "data/project_context.h"
#include "platform/mfc/file_find.h"

namespace {
// The suite writes the tree's name both ways; paths are found in any case.
constexpr const char* g_pListed = "\\output\\";
constexpr const char* g_pOpened = "\\Output\\";

CString FolderBelow(const char* pTree, const CString& strGCBH) {
    CString strRoot;
    GetRootPath(&strRoot);
    return strRoot + pTree + strGCBH + "\\室内曲线";
}
} // namespace

CString ChartFolder(const CString& strGCBH) {
    return FolderBelow(g_pListed, strGCBH);
}

int HasChartFolder(const CString& strGCBH) {
    return CFileFind().FindFile(ChartFolder(strGCBH));
}

CString ChartFile(const CString& strGCBH, const CString& strTitle) {
    return FolderBelow(g_pOpened, strGCBH) + "\\" + strTitle + ".dwg";
}
