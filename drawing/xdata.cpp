#include "drawing/xdata.h"

#include "commands/text_conversion.h"
#include "platform/acad/db_entity.h"
#include "platform/acad/result_buffer.h"
#include "platform/windows/code_page.h"

#include <array>

namespace {
constexpr int g_nAppCode = 1001;
constexpr int g_nTextCode = 1000;
constexpr int g_nPointCode = 1010;
constexpr int g_nRealCode = 1040;
constexpr int g_nLongCode = 1071;

/// Hands the second item of the application's chain to take, if it is of the code.
template <class Take>
int ReadItem(const AcDbEntity* pEntity, const CString& strApp, int nCode, Take take) {
    const CResbufChain chain(pEntity->xData(ToWide(strApp)));
    if (!chain || !chain->rbnext || chain->rbnext->restype != nCode) return 0;
    take(chain->rbnext->resval);
    return 1;
}

template <class Take>
int ReadItem(AcDbObjectId idEntity, const CString& strApp, int nCode, Take take) {
    const CDbOpen<AcDbEntity> pEntity(idEntity);
    return pEntity ? ReadItem(pEntity.Get(), strApp, nCode, take) : 0;
}

template <class Value>
int WriteItem(AcDbObjectId idObject, const CString& strApp, int nCode, Value value) {
    AcDbObject* pObject = nullptr;
    if (acdbOpenAcDbObject(pObject, idObject, AcDb::kForRead) != Acad::eOk) return 0;
    acdbRegApp(ToWide(strApp));
    if (pObject->upgradeOpen() == Acad::eOk) {
        const std::wstring strName = WideFromGbk(strApp.View());
        const CResbufChain chain(acutBuildList(g_nAppCode, strName.c_str(), nCode, value, RTNONE));
        pObject->setXData(chain.Get());
    }
    pObject->close();
    return 1;
}
} // namespace

int GetXDataText(const AcDbEntity* pEntity, const CString& strApp, CString& strValue) {
    strValue.Empty();
    return ReadItem(pEntity, strApp, g_nTextCode,
                    [&](const ads_u_val& value) { strValue = GbkFromWide(value.rstring).c_str(); });
}

int GetXDataText(AcDbObjectId idEntity, const CString& strApp, CString& strValue) {
    strValue.Empty();
    return ReadItem(idEntity, strApp, g_nTextCode,
                    [&](const ads_u_val& value) { strValue = GbkFromWide(value.rstring).c_str(); });
}

int GetXDataDouble(AcDbObjectId idEntity, const CString& strApp, double& dValue) {
    dValue = g_dNoXData;
    return ReadItem(idEntity, strApp, g_nRealCode, [&](const ads_u_val& value) { dValue = value.rreal; });
}

int GetXDataFloat(AcDbObjectId idEntity, const CString& strApp, float& fValue) {
    fValue = g_fNoXData;
    return ReadItem(idEntity, strApp, g_nRealCode,
                    [&](const ads_u_val& value) { fValue = static_cast<float>(value.rreal); });
}

int GetXDataPoint(AcDbObjectId idEntity, const CString& strApp, AcGePoint3d& point) {
    point.set(g_dNoXData, g_dNoXData, g_dNoXData);
    return ReadItem(idEntity, strApp, g_nPointCode, [&](const ads_u_val& value) {
        point.set(value.rpoint[0], value.rpoint[1], value.rpoint[2]);
    });
}

int GetXDataInt(AcDbObjectId idEntity, const CString& strApp, Adesk::Int32& nValue) {
    return ReadItem(idEntity, strApp, g_nLongCode, [&](const ads_u_val& value) { nValue = value.rlong; });
}

int SetXDataText(AcDbObjectId idObject, const CString& strApp, const CString& strValue) {
    const std::wstring strText = WideFromGbk(strValue.View());
    return WriteItem(idObject, strApp, g_nTextCode, strText.c_str());
}

int SetXDataDouble(AcDbObjectId idObject, const CString& strApp, double dValue) {
    return WriteItem(idObject, strApp, g_nRealCode, dValue);
}

int SetXDataPoint(AcDbObjectId idObject, const CString& strApp, const AcGePoint3d& point) {
    const std::array<double, 3> arPoint = {point.x, point.y, point.z};
    return WriteItem(idObject, strApp, g_nPointCode, arPoint.data());
}

int SetXDataInt(AcDbObjectId idObject, const CString& strApp, Adesk::Int32 nValue) {
    return WriteItem(idObject, strApp, g_nLongCode, nValue);
}
