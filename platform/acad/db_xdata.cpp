#include "platform/acad/db_xdata.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_filer.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/filed_text.h"
#include "platform/acad/host_application.h"
#include "platform/acad/result_buffer.h"
#include "platform/acad/wide_names.h"

#include <algorithm>

namespace {

constexpr int g_nAppCode = 1001;

/// The value of a buffer; nothing for a code that extended data has not.
std::optional<CXDataItem> ItemOf(const resbuf& buffer) {
    if (buffer.restype < 1000 || buffer.restype == g_nAppCode) return std::nullopt;
    CXDataItem item;
    item.m_nCode = buffer.restype;
    const ads_u_val& value = buffer.resval;
    switch (ResbufKind(buffer.restype)) {
    case CResbufKind::Text:
        item.m_value = std::wstring(value.rstring ? value.rstring : L"");
        return item;
    case CResbufKind::Real:
        item.m_value = value.rreal;
        return item;
    case CResbufKind::Point:
        item.m_value = AcGePoint3d(value.rpoint[0], value.rpoint[1], value.rpoint[2]);
        return item;
    case CResbufKind::Short:
        item.m_value = value.rint;
        return item;
    case CResbufKind::Long:
        item.m_value = value.rlong;
        return item;
    case CResbufKind::None:
        break;
    }
    return std::nullopt;
}

struct CFillBuffer {
    resbuf& m_buffer;
    void operator()(const std::wstring& text) const { m_buffer.resval.rstring = acutNewString(text.c_str()); }
    void operator()(double value) const { m_buffer.resval.rreal = value; }
    void operator()(const AcGePoint3d& point) const {
        m_buffer.resval.rpoint[0] = point.x;
        m_buffer.resval.rpoint[1] = point.y;
        m_buffer.resval.rpoint[2] = point.z;
    }
    void operator()(Adesk::Int16 value) const { m_buffer.resval.rint = value; }
    void operator()(Adesk::Int32 value) const { m_buffer.resval.rlong = value; }
};

struct CWriteValue {
    AcDbDwgFiler* m_pFiler;
    void operator()(const std::wstring& text) const { m_pFiler->writeString(text.c_str()); }
    void operator()(double value) const { m_pFiler->writeDouble(value); }
    void operator()(const AcGePoint3d& point) const { m_pFiler->writePoint3d(point); }
    void operator()(Adesk::Int16 value) const { m_pFiler->writeInt16(value); }
    void operator()(Adesk::Int32 value) const { m_pFiler->writeInt32(value); }
};

/// Reads the value that belongs to the item's code; false for a code that there is not.
bool ReadValue(AcDbDwgFiler* pFiler, CXDataItem& item) {
    switch (ResbufKind(item.m_nCode)) {
    case CResbufKind::Text:
        return ReadText(pFiler, item.m_value.emplace<std::wstring>()) == Acad::eOk;
    case CResbufKind::Real:
        return pFiler->readDouble(&item.m_value.emplace<double>()) == Acad::eOk;
    case CResbufKind::Point:
        return pFiler->readPoint3d(&item.m_value.emplace<AcGePoint3d>()) == Acad::eOk;
    case CResbufKind::Short:
        return pFiler->readInt16(&item.m_value.emplace<Adesk::Int16>()) == Acad::eOk;
    case CResbufKind::Long:
        return pFiler->readInt32(&item.m_value.emplace<Adesk::Int32>()) == Acad::eOk;
    case CResbufKind::None:
        break;
    }
    pFiler->setFilerStatus(Acad::eFilerError);
    return false;
}

AcDbObjectId RegisteredApp(const ACHAR* name, const AcDbDatabase* pDatabase) {
    if (!pDatabase) pDatabase = acdbHostApplicationServices()->workingDatabase();
    AcDbObjectId id;
    const CDbOpen<AcDbRegAppTable> table(pDatabase ? pDatabase->regAppTableId() : AcDbObjectId::kNull);
    if (table && name) table->getAt(name, id);
    return id;
}

} // namespace

resbuf* CXData::Chain(const ACHAR* appName) const {
    resbuf* pFirst = nullptr;
    resbuf** ppNext = &pFirst;
    const auto append = [&ppNext](int code) -> resbuf& {
        *ppNext = acutNewRb(code);
        resbuf& buffer = **ppNext;
        ppNext = &buffer.rbnext;
        return buffer;
    };
    for (const CXDataOfApp& app : m_arApps) {
        const auto* const pRecord = PeekObject<AcDbRegAppTableRecord>(app.m_idApp);
        if (!pRecord || (appName && !SameName(pRecord->Name(), appName))) continue;
        append(g_nAppCode).resval.rstring = acutNewString(pRecord->Name().c_str());
        for (const CXDataItem& item : app.m_arItems)
            std::visit(CFillBuffer{append(item.m_nCode)}, item.m_value);
    }
    return pFirst;
}

Acad::ErrorStatus CXData::Put(const resbuf* pChain, const AcDbDatabase* pDatabase) {
    std::vector<CXDataOfApp> arApps;
    for (; pChain; pChain = pChain->rbnext) {
        if (pChain->restype == g_nAppCode) {
            CXDataOfApp app;
            app.m_idApp = RegisteredApp(pChain->resval.rstring, pDatabase);
            if (app.m_idApp.isNull()) return Acad::eRegappIdNotFound;
            arApps.push_back(std::move(app));
            continue;
        }
        std::optional<CXDataItem> item = ItemOf(*pChain);
        if (!item || arApps.empty()) return Acad::eInvalidInput;
        arApps.back().m_arItems.push_back(std::move(*item));
    }
    if (arApps.empty()) return Acad::eInvalidInput;
    for (CXDataOfApp& app : arApps)
        PutApp(std::move(app));
    return Acad::eOk;
}

void CXData::PutApp(CXDataOfApp app) {
    const auto found = std::find_if(m_arApps.begin(), m_arApps.end(), [&](const CXDataOfApp& present) {
        return present.m_idApp == app.m_idApp;
    });
    if (found == m_arApps.end()) {
        if (!app.m_arItems.empty()) m_arApps.push_back(std::move(app));
    } else if (app.m_arItems.empty()) {
        m_arApps.erase(found);
    } else {
        *found = std::move(app);
    }
}

void CXData::Write(AcDbDwgFiler* pFiler) const {
    pFiler->writeInt32(static_cast<Adesk::Int32>(m_arApps.size()));
    for (const CXDataOfApp& app : m_arApps) {
        pFiler->writeHardPointerId(app.m_idApp);
        pFiler->writeInt32(static_cast<Adesk::Int32>(app.m_arItems.size()));
        for (const CXDataItem& item : app.m_arItems) {
            pFiler->writeInt16(item.m_nCode);
            std::visit(CWriteValue{pFiler}, item.m_value);
        }
    }
}

void CXData::Read(AcDbDwgFiler* pFiler) {
    m_arApps.clear();
    Adesk::Int32 nApps = 0;
    pFiler->readInt32(&nApps);
    for (Adesk::Int32 i = 0; i < nApps && pFiler->filerStatus() == Acad::eOk; ++i) {
        CXDataOfApp app;
        Adesk::Int32 nItems = 0;
        pFiler->readHardPointerId(&app.m_idApp);
        pFiler->readInt32(&nItems);
        for (Adesk::Int32 j = 0; j < nItems && pFiler->filerStatus() == Acad::eOk; ++j) {
            CXDataItem item;
            pFiler->readInt16(&item.m_nCode);
            if (ReadValue(pFiler, item)) app.m_arItems.push_back(std::move(item));
        }
        if (PeekObject<AcDbRegAppTableRecord>(app.m_idApp)) PutApp(std::move(app));
    }
}

int acdbRegApp(const ACHAR* appName) {
    AcDbDatabase* const pDatabase = acdbHostApplicationServices()->workingDatabase();
    if (!pDatabase || !appName || !*appName) return RTERROR;
    if (!RegisteredApp(appName, pDatabase).isNull()) return RTNORM;
    const CDbOpen<AcDbRegAppTable> table(pDatabase->regAppTableId(), AcDb::kForWrite);
    if (!table) return RTERROR;
    auto pRecord = std::make_unique<AcDbRegAppTableRecord>();
    pRecord->setName(appName);
    if (table->add(pRecord.get()) != Acad::eOk) return RTERROR;
    pRecord.release()->close();
    return RTNORM;
}
