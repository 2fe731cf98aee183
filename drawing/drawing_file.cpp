#include "drawing/drawing_file.h"

#include "drawing/model_space.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/editor.h"
#include "platform/acad/host_application.h"
#include "platform/windows/code_page.h"

#include <array>

namespace {
constexpr int g_nDenyWrite = 32;
constexpr std::size_t g_nFoundPath = 1024;
} // namespace

int FindDrawingFile(const CString& strFile, CString& strFound) {
    std::array<ACHAR, g_nFoundPath> path{};
    if (acedFindFile(WideFromGbk(strFile.View()).c_str(), path.data()) != RTNORM) return 0;
    strFound = CString(path.data());
    return 1;
}

std::unique_ptr<AcDbDatabase> CopyOfDrawing(const CString& strPath) {
    AcDbDatabase file(false);
    AcDbDatabase* pCopy = nullptr;
    if (file.readDwgFile(WideFromGbk(strPath.View()).c_str(), g_nDenyWrite) == Acad::eOk) file.wblock(pCopy);
    return std::unique_ptr<AcDbDatabase>(pCopy);
}

void InsertDwgAsBlock(const CString& strPath, const AcGePoint3d& ptPosition, double dRotation,
                      double dScale) {
    AcDbDatabase* const pWorking = acdbHostApplicationServices()->workingDatabase();
    const std::unique_ptr<AcDbDatabase> pSource = CopyOfDrawing(strPath);
    AcDbObjectId idBlock, idReference;
    if (!pWorking || !pSource ||
        pWorking->insert(idBlock, WideFromGbk(strPath.View()).c_str(), pSource.get()) != Acad::eOk)
        return;
    auto pReference = std::make_unique<AcDbBlockReference>(ptPosition, idBlock);
    pReference->setRotation(dRotation);
    pReference->setScaleFactors(AcGeScale3d(dScale));
    AddToModelSpace(pReference.get(), idReference, pWorking);
    if (!idReference.isNull()) static_cast<void>(pReference.release());
}
