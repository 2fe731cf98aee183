#include "drawing/entity_selection.h"

#include "commands/text_conversion.h"
#include "drawing/xdata.h"
#include "platform/acad/editor.h"
#include "platform/acad/selection.h"

namespace {
constexpr int g_nLayerCode = 8;
constexpr int g_nAppCode = 1001;

/// Takes what acedSSGet selects; null corners for modes without a box.
int Select(const ACHAR* pMode, const ads_real* pCorner, const ads_real* pOpposite, const resbuf* pFilter,
           AcDbObjectIdArray& ids) {
    ads_name set{};
    if (acedSSGet(pMode, pCorner, pOpposite, pFilter, set) != RTNORM) return 0;
    const int nBefore = ids.length();
    Adesk::Int32 nCount = 0;
    if (acedSSLength(set, &nCount) != RTNORM) nCount = 0;
    for (Adesk::Int32 i = 0; i < nCount; i++) {
        ads_name entity{};
        AcDbObjectId id;
        if (acedSSName(set, i, entity) == RTNORM && acdbGetObjectId(id, entity) == Acad::eOk) ids.append(id);
    }
    acedSSFree(set);
    return ids.length() > nBefore ? 1 : 0;
}

int SelectAll(int nCode, const CString& strValue, AcDbObjectIdArray& ids) {
    const CResbufChain filter(acutBuildList(nCode, ToWide(strValue), RTNONE));
    return Select(L"X", nullptr, nullptr, filter.Get(), ids);
}
} // namespace

int ObjectIdsByXDataApp(const CString& strApp, AcDbObjectIdArray& ids) {
    return SelectAll(g_nAppCode, strApp, ids);
}

int ObjectIdsByClassName(const CString& strClass, AcDbObjectIdArray& ids) {
    constexpr const char* pApp = "PMTCLASSNAME";
    AcDbObjectIdArray arNamed;
    ObjectIdsByXDataApp(pApp, arNamed);
    const int nBefore = ids.length();
    for (const AcDbObjectId& id : arNamed) {
        CString strFound;
        if (GetXDataText(id, pApp, strFound) && strFound == strClass) ids.append(id);
    }
    return ids.length() > nBefore ? 1 : 0;
}

int ObjectIdsByType(const CString& strDxfName, AcDbObjectIdArray& ids) {
    return SelectAll(RTDXF0, strDxfName, ids);
}

int ObjectIdsInBox(const AcGePoint3d& ptCorner, const AcGePoint3d& ptOpposite, const CString& strLayer,
                   AcDbObjectIdArray& ids) {
    const ads_point corner = {ptCorner.x, ptCorner.y, ptCorner.z};
    const ads_point opposite = {ptOpposite.x, ptOpposite.y, ptOpposite.z};
    if (strLayer.IsEmpty()) return Select(L"C", corner, opposite, nullptr, ids);
    const CResbufChain filter(acutBuildList(g_nLayerCode, ToWide(strLayer), RTNONE));
    return Select(L"C", corner, opposite, filter.Get(), ids);
}

int PickEntity(const CString& strPrompt, AcDbObjectId& id) {
    ads_name entity{};
    ads_point point{};
    return acedEntSel(ToWide(strPrompt), entity, point) == RTNORM && acdbGetObjectId(id, entity) == Acad::eOk;
}

int PickEntities(const CString& strPrompt, AcDbObjectIdArray& ids) {
    acutPrintf(L"%s", ToWide(strPrompt));
    return Select(nullptr, nullptr, nullptr, nullptr, ids);
}
