#include "commands/pick_entity.h"

#include "commands/text_conversion.h"
#include "platform/acad/editor.h"
#include "platform/acad/selection.h"

void CPickRelease::operator()(AcDbEntity* pEntity) const {
    pEntity->unhighlight();
    pEntity->close();
}

CPickedEntity PickEntity(const CString& strPrompt, AcDbObjectId& id, AcDb::OpenMode mode) {
    ads_name entity{};
    ads_point point{};
    if (acedEntSel(ToWide(strPrompt), entity, point) != RTNORM) {
        acutPrintf(L"什么也没有选中.\n");
        return nullptr;
    }
    if (const Acad::ErrorStatus status = acdbGetObjectId(id, entity); status != Acad::eOk) {
        acutPrintf(L"取试体ID失败: \n试体名：<%lx,%lx>, 错误码=%d.\n", entity[0], entity[1],
                   static_cast<int>(status));
        return nullptr;
    }
    AcDbEntity* pEntity = nullptr;
    if (const Acad::ErrorStatus status = acdbOpenAcDbEntity(pEntity, id, mode); status != Acad::eOk) {
        acutPrintf(L"打开试体错误，错误码=%d.\n", static_cast<int>(status));
        return nullptr;
    }
    pEntity->highlight();
    return CPickedEntity(pEntity);
}
