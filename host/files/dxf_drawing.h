#pragma once

#include "host/files/dxf_losses.h"
#include "host/files/dxf_record.h"
#include "platform/acad/db_database.h"
#include "platform/acad/db_proxy.h"

#include <string>
#include <unordered_set>

/// A drawing while a file is read into it. Records of tables are found by name; what is named before it is
/// defined, or never is, stands there with the values of a new one.
class CDxfDrawing {
public:
    explicit CDxfDrawing(AcDbDatabase& database)
        : m_database(database) {}

    AcDbDatabase& Database() const { return m_database; }
    AcDbObjectId Block(const std::wstring& strName);
    AcDbObjectId Layer(const std::wstring& strName);
    AcDbObjectId LinetypeRecord(const std::wstring& strName);
    /// The line type that an entity is given by its name: null for ByLayer and no name.
    AcDbObjectId Linetype(const std::wstring& strName);
    AcDbObjectId TextStyle(const std::wstring& strName);
    AcDbObjectId App(const std::wstring& strName);

    /// Takes a class of the file; the first one has the number 500.
    void AddClass(CProxyOrigin entry) { m_arClasses.push_back(std::move(entry)); }
    const CProxyOrigin* Class(std::int64_t nNumber) const; ///< null for none

    /// Gives an object the handle of its record and its extended data; what applications have put into the
    /// record besides is counted as lost.
    void Identify(AcDbObjectId id, const CDxfRecord& record);

    void Lose(const std::string& strKind) { ++m_mapLost[strKind]; }
    void Lose(const CDxfRecord& record) { Lose(std::string(record.m_type)); }
    const CDxfLosses& Losses() const { return m_mapLost; }

private:
    void TakeHandle(AcDbObjectId id, AcDbHandle handle);
    void LoseGroups(const CDxfRecord& record);

    AcDbDatabase& m_database;
    std::unordered_set<Adesk::UInt64> m_setTaken; ///< handles that the file gave
    CDxfLosses m_mapLost;
    std::vector<CProxyOrigin> m_arClasses;
};
