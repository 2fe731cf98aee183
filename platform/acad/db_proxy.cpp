#include "platform/acad/db_proxy.h"

#include "platform/acad/db_database.h"
#include "platform/acad/display_recorder.h"
#include "platform/acad/rx_registry.h"
#include "platform/windows/host_assert.h"

#include <cwchar>

ACRX_DEFINE_MEMBERS(AcDbProxyObject, AcDbObject, L"ACAD_PROXY_OBJECT")
ACRX_DEFINE_MEMBERS(AcDbProxyEntity, AcDbEntity, L"ACAD_PROXY_ENTITY")

namespace {

/// Fills target, a free object, with source's record and picture. False unless it reads all of the record.
bool TakeOver(AcDbObject& target, const AcDbObject& source) {
    const CDbRecord record = RecordOf(source, AcDb::kFileFiler);
    CRecordReader reader(AcDb::kFileFiler, record);
    if (target.dwgIn(&reader) != Acad::eOk || !reader.IsAtEnd()) return false;
    if (auto* const pEntity = dynamic_cast<AcDbEntity*>(&target))
        pEntity->SetPicture(dynamic_cast<const AcDbEntity&>(source).Picture());
    return true;
}

/// A proxy of either kind for an object.
template <class Proxy>
std::unique_ptr<AcDbObject> MakeProxy(const AcDbObject& object) {
    auto pProxy = std::make_unique<Proxy>();
    const AcRxClass& original = *object.isA();
    pProxy->SetOrigin({original.name(), original.dxfName(), original.appName(), original.proxyFlags()});
    const bool bTaken = TakeOver(*pProxy, object);
    HOST_ASSERT(bTaken, "a proxy reads any record");
    return pProxy;
}

std::unique_ptr<AcDbObject> ProxyOf(AcDbObject& object) {
    auto* const pEntity = AcDbEntity::cast(&object);
    if (!pEntity) return MakeProxy<AcDbProxyObject>(object);
    if (!pEntity->Picture()) DrawEntity(*pEntity); // its class can for the last time
    return MakeProxy<AcDbProxyEntity>(object);
}

/// The object that a proxy stands for; null when its class cannot make it. The class is on its way to its
/// module, whose objects cannot be asked for it yet.
std::unique_ptr<AcDbObject> OriginalOf(const AcDbObject& proxy, const AcRxClass& come) {
    const AcRxClass* const pKind =
        proxy.isKindOf(AcDbEntity::desc()) ? AcDbEntity::desc() : AcDbObject::desc();
    if (!come.isDerivedFrom(pKind)) return nullptr;
    std::unique_ptr<AcDbObject> pObject(static_cast<AcDbObject*>(come.create()));
    const bool bOriginal = pObject && !dynamic_cast<const CProxy*>(pObject.get());
    return bOriginal && TakeOver(*pObject, proxy) ? std::move(pObject) : nullptr;
}

template <class Proxy>
std::optional<CDbRecord> ClassPartThrough(const AcDbObject& object) {
    CRecordWriter writer(AcDb::kFileFiler);
    if (object.dwgOut(&writer) != Acad::eOk || writer.filerStatus() != Acad::eOk) return std::nullopt;
    const CDbRecord record = writer.Take();
    CRecordReader reader(AcDb::kFileFiler, record);
    Proxy proxy;
    proxy.dwgIn(&reader);
    return proxy.ClassPart();
}

} // namespace

Adesk::Boolean AcDbProxyEntity::subWorldDraw(AcGiWorldDraw* pMode) {
    assertReadEnabled();
    if (Picture()) pMode->rawGeometry()->Picture(*Picture());
    return Adesk::kTrue;
}

void MakeProxies(const AcRxClass& going) {
    AcDbDatabase::ReplaceObjects(
        [&going](AcDbObject& object) { return object.isA() == &going ? ProxyOf(object) : nullptr; });
}

void ReviveProxies(const AcRxClass& come) {
    AcDbDatabase::ReplaceObjects([&come](AcDbObject& object) -> std::unique_ptr<AcDbObject> {
        const auto* const pProxy = dynamic_cast<const CProxy*>(&object);
        if (!pProxy || std::wcscmp(pProxy->originalClassName(), come.name()) != 0) return nullptr;
        return OriginalOf(object, come);
    });
}

void ReviveProxies(AcDbDatabase& database) {
    const auto* const pClasses = dynamic_cast<AcRxDictionary*>(acrxSysRegistry()->at(ACDB_CLASS_DICTIONARY));
    AcDbDatabase::ReplaceObjects([&](AcDbObject& object) -> std::unique_ptr<AcDbObject> {
        const auto* const pProxy = dynamic_cast<const CProxy*>(&object);
        if (!pProxy || object.database() != &database) return nullptr;
        const auto* const pClass = dynamic_cast<const AcRxClass*>(pClasses->at(pProxy->originalClassName()));
        return pClass ? OriginalOf(object, *pClass) : nullptr;
    });
}

std::optional<CDbRecord> ClassPartOf(const AcDbObject& object) {
    return object.isKindOf(AcDbEntity::desc()) ? ClassPartThrough<AcDbProxyEntity>(object)
                                               : ClassPartThrough<AcDbProxyObject>(object);
}
