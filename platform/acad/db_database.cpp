#include "platform/acad/db_database.h"

#include "platform/acad/db_stub.h"
#include "platform/acad/host_application.h"
#include "platform/acad/selection.h"
#include "platform/acad/standard_handles.h"
#include "platform/windows/code_page.h"
#include "platform/windows/host_assert.h"

#include <algorithm>
#include <cmath>
#include <limits>

ACRX_DEFINE_DESC(AcDbDatabase, AcRxObject)

namespace {

using CHandles = CStandardHandles;

/// Adds a closed record of the given name and handle to a table that is open for writing.
template <class T>
AcDbObjectId AddNamed(AcDbSymbolTable& table, std::uint64_t nHandle, const ACHAR* name, T* pRecord) {
    pRecord->setName(name);
    table.database()->SetHandseed(AcDbHandle(nHandle));
    AcDbObjectId id;
    table.add(id, pRecord);
    pRecord->close();
    return id;
}

/// A new table or dictionary, open for writing.
template <class T>
T* AddTable(AcDbDatabase& database, std::uint64_t nHandle, AcDbObjectId& idTable) {
    T* const pTable = new T;
    database.SetHandseed(AcDbHandle(nHandle));
    database.AddObject(idTable, pTable, AcDbObjectId::kNull);
    return pTable;
}

std::vector<AcDbDatabase*>& OpenDrawings() {
    static auto* const pDrawings = new std::vector<AcDbDatabase*>; // a static drawing may outlive any other
    return *pDrawings;
}

} // namespace

AcDbDatabase::AcDbDatabase(bool buildDefaultDrawing) {
    OpenDrawings().push_back(this);
    if (!buildDefaultDrawing) return;
    auto* const pBlocks = AddTable<AcDbBlockTable>(*this, CHandles::s_nBlocks, m_idBlockTable);
    auto* const pLayers = AddTable<AcDbLayerTable>(*this, CHandles::s_nLayers, m_idLayerTable);
    auto* const pLinetypes = AddTable<AcDbLinetypeTable>(*this, CHandles::s_nLinetypes, m_idLinetypeTable);
    auto* const pStyles = AddTable<AcDbTextStyleTable>(*this, CHandles::s_nStyles, m_idTextStyleTable);
    auto* const pApps = AddTable<AcDbRegAppTable>(*this, CHandles::s_nApps, m_idRegAppTable);
    auto* const pNamedObjects = AddTable<AcDbDictionary>(*this, CHandles::s_nNamedObjects, m_idNamedObjects);
    m_idModelSpace = AddNamed(*pBlocks, CHandles::s_nModelSpace, ACDB_MODEL_SPACE, new AcDbBlockTableRecord);
    AddNamed(*pBlocks, CHandles::s_nPaperSpace, ACDB_PAPER_SPACE, new AcDbBlockTableRecord);
    AddNamed(*pLinetypes, CHandles::s_nByLayer, L"ByLayer", new AcDbLinetypeTableRecord);
    AddNamed(*pLinetypes, CHandles::s_nByBlock, L"ByBlock", new AcDbLinetypeTableRecord);
    AddNamed(*pLinetypes, CHandles::s_nContinuous, L"Continuous", new AcDbLinetypeTableRecord);
    m_variables.m_idClayer = AddNamed(*pLayers, CHandles::s_nLayer0, L"0", new AcDbLayerTableRecord);
    auto* const pStandard = new AcDbTextStyleTableRecord;
    pStandard->setFileName(L"txt.shx");
    AddNamed(*pApps, CHandles::s_nAcadApp, L"ACAD", new AcDbRegAppTableRecord);
    m_variables.m_idTextstyle = AddNamed(*pStyles, CHandles::s_nStandardStyle, L"Standard", pStandard);
    SetHandseed(AcDbHandle(CHandles::s_nFirstFree));
    for (AcDbObject* pTable :
         std::initializer_list<AcDbObject*>{pBlocks, pLayers, pLinetypes, pStyles, pApps, pNamedObjects})
        pTable->close();
    m_bModified = false;
}

AcDbDatabase::~AcDbDatabase() {
    std::erase(OpenDrawings(), this);
    ForgetSelections(*this);
    AcDbHostApplicationServices* const pServices = acdbHostApplicationServices();
    if (pServices->workingDatabase() == this) pServices->setWorkingDatabase(nullptr);
    // All objects go before the first stub does: an id held by one of them stays good until the last is gone.
    for (auto stub = m_mapStubs.rbegin(); stub != m_mapStubs.rend(); ++stub)
        stub->second->m_pObject.reset();
}

Acad::ErrorStatus AcDbDatabase::getBlockTable(AcDbBlockTable*& pTable, AcDb::OpenMode mode) {
    return acdbOpenObject(pTable, m_idBlockTable, mode);
}

Acad::ErrorStatus AcDbDatabase::getLayerTable(AcDbLayerTable*& pTable, AcDb::OpenMode mode) {
    return acdbOpenObject(pTable, m_idLayerTable, mode);
}

Acad::ErrorStatus AcDbDatabase::getLinetypeTable(AcDbLinetypeTable*& pTable, AcDb::OpenMode mode) {
    return acdbOpenObject(pTable, m_idLinetypeTable, mode);
}

Acad::ErrorStatus AcDbDatabase::getTextStyleTable(AcDbTextStyleTable*& pTable, AcDb::OpenMode mode) {
    return acdbOpenObject(pTable, m_idTextStyleTable, mode);
}

Acad::ErrorStatus AcDbDatabase::getRegAppTable(AcDbRegAppTable*& pTable, AcDb::OpenMode mode) {
    return acdbOpenObject(pTable, m_idRegAppTable, mode);
}

Acad::ErrorStatus AcDbDatabase::getNamedObjectsDictionary(AcDbDictionary*& pDictionary, AcDb::OpenMode mode) {
    return acdbOpenObject(pDictionary, m_idNamedObjects, mode);
}

Acad::ErrorStatus AcDbDatabase::setLtscale(double scale) {
    if (!std::isfinite(scale) || scale <= 0.0) return Acad::eInvalidInput;
    CDbVariables variables = m_variables;
    variables.m_dLtscale = scale;
    SetVariables(variables);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::setInsbase(const AcGePoint3d& base) {
    CDbVariables variables = m_variables;
    variables.m_ptInsbase = base;
    SetVariables(variables);
    return Acad::eOk;
}

void AcDbDatabase::SetVariables(const CDbVariables& variables) {
    if (variables == m_variables) return;
    m_undoLog.NoteVariables(m_variables);
    m_variables = variables;
    m_bModified = true;
}

template <class T>
Acad::ErrorStatus AcDbDatabase::SetCurrent(AcDbObjectId CDbVariables::*pVariable, AcDbObjectId id) {
    if (id.isNull()) return Acad::eNullObjectId;
    if (id.database() != this) return Acad::eWrongDatabase;
    if (!PeekObject<T>(id)) return Acad::eNotThatKindOfClass;
    if (id.isErased()) return Acad::eWasErased;
    CDbVariables variables = m_variables;
    variables.*pVariable = id;
    SetVariables(variables);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::setCeltype(AcDbObjectId idLinetype) {
    if (!idLinetype.isNull())
        return SetCurrent<AcDbLinetypeTableRecord>(&CDbVariables::m_idCeltype, idLinetype);
    CDbVariables variables = m_variables;
    variables.m_idCeltype.setNull();
    SetVariables(variables);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::setClayer(AcDbObjectId idLayer) {
    return SetCurrent<AcDbLayerTableRecord>(&CDbVariables::m_idClayer, idLayer);
}

Acad::ErrorStatus AcDbDatabase::setTextstyle(AcDbObjectId idStyle) {
    return SetCurrent<AcDbTextStyleTableRecord>(&CDbVariables::m_idTextstyle, idStyle);
}

Acad::ErrorStatus AcDbDatabase::getFilename(std::wstring& fileName) const {
    fileName = m_strFilename;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::getAcDbObjectId(AcDbObjectId& id, AcDbHandle handle) const {
    const auto found = m_mapStubs.find(handle);
    if (found == m_mapStubs.end()) return Acad::eUnknownHandle;
    id = AcDbObjectId(found->second.get());
    return Acad::eOk;
}

std::vector<AcDbObjectId> AcDbDatabase::ObjectIds() const {
    std::vector<AcDbObjectId> ids;
    for (const auto& [handle, pStub] : m_mapStubs)
        if (!pStub->m_bErased) ids.emplace_back(pStub.get());
    return ids;
}

bool AcDbDatabase::SetHandseed(AcDbHandle handle) {
    if (handle.isNull() || m_mapStubs.contains(handle)) return false;
    m_nNextHandle = handle.Value();
    return true;
}

Acad::ErrorStatus AcDbDatabase::AddObject(AcDbObjectId& id, AcDbObject* pObject, AcDbObjectId idOwner) {
    if (!pObject) return Acad::eNullObjectPointer;
    if (!pObject->m_id.isNull()) return Acad::eAlreadyInDb;
    if (!idOwner.isNull() && idOwner.database() != this) return Acad::eWrongDatabase;
    auto pStub = std::make_unique<CDbStub>();
    pStub->m_pDatabase = this;
    pStub->m_handle = AcDbHandle(m_nNextHandle);
    pStub->m_pObject.reset(pObject);
    pStub->m_bWriting = pStub->m_bModified = true;
    id = AcDbObjectId(pStub.get());
    pObject->m_id = id;
    pObject->m_idOwner = idOwner;
    m_undoLog.NoteAppended(*pStub);
    PassUsedHandles(m_mapStubs.emplace(pStub->m_handle, std::move(pStub)).first);
    return Acad::eOk;
}

/// The seed may have been set below handles in use; what the next object gets never is.
void AcDbDatabase::PassUsedHandles(CStubs::const_iterator stub) {
    for (; stub != m_mapStubs.end() && stub->first.Value() == m_nNextHandle; ++stub)
        ++m_nNextHandle;
}

Acad::ErrorStatus AcDbDatabase::SetHandle(AcDbObjectId id, AcDbHandle handle) {
    constexpr Adesk::UInt64 nHighest = std::numeric_limits<Adesk::Int64>::max();
    if (id.isNull() || id.database() != this) return Acad::eWrongDatabase;
    if (handle.isNull() || handle.Value() > nHighest || m_mapStubs.contains(handle))
        return Acad::eInvalidInput;
    auto node = m_mapStubs.extract(id.handle());
    node.key() = node.mapped()->m_handle = handle;
    const auto place = m_mapStubs.insert(std::move(node)).position;
    m_nNextHandle = std::max(m_nNextHandle, handle.Value());
    PassUsedHandles(place);
    return Acad::eOk;
}

void AcDbDatabase::SetOwner(AcDbObjectId id, AcDbObjectId idOwner) {
    id.Stub()->m_pObject->m_idOwner = idOwner;
}

void AcDbDatabase::ReplaceObjects(const std::function<std::unique_ptr<AcDbObject>(AcDbObject&)>& replace) {
    for (const AcDbDatabase* const pDrawing : OpenDrawings()) {
        for (const auto& [handle, pStub] : pDrawing->m_mapStubs) {
            const bool bWasOpen = pStub->IsOpen();
            ++pStub->m_nReaders; // it may be looked at
            std::unique_ptr<AcDbObject> pOther = replace(*pStub->m_pObject);
            --pStub->m_nReaders;
            if (!pOther) continue;
            HOST_ASSERT(!bWasOpen, "an object that is replaced is not open");
            pOther->m_id = pStub->m_pObject->m_id;
            pOther->m_idOwner = pStub->m_pObject->m_idOwner;
            pStub->m_pObject = std::move(pOther);
        }
    }
}

void AcDbDatabase::NoteChanged(CDbStub& stub) {
    m_bModified = true;
    const auto* const pEntity = AcDbEntity::cast(stub.m_pObject.get());
    if (!pEntity) return;
    // What an entity owns is part of its picture.
    if (PeekObject<AcDbEntity>(pEntity->ownerId())) NoteChanged(*pEntity->ownerId().Stub());
    if (stub.m_bNoted) return;
    stub.m_bNoted = true;
    m_arChanged.emplace_back(&stub);
}

std::vector<AcDbObjectId> AcDbDatabase::TakeChangedEntities() {
    std::vector<AcDbObjectId> changed;
    changed.swap(m_arChanged);
    for (const AcDbObjectId& id : changed)
        id.Stub()->m_bNoted = false;
    std::erase_if(changed, [](const AcDbObjectId& id) { return id.isErased(); });
    std::sort(changed.begin(), changed.end(),
              [](const AcDbObjectId& a, const AcDbObjectId& b) { return a.handle() < b.handle(); });
    return changed;
}

std::string SymbolName(AcDbObjectId idRecord) {
    const auto* const pRecord = PeekObject<AcDbSymbolTableRecord>(idRecord);
    return pRecord ? GbkFromWide(pRecord->Name()) : std::string();
}
