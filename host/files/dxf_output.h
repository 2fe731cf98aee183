#pragma once

#include "host/files/dxf_losses.h"
#include "host/files/dxf_writer.h"
#include "platform/acad/db_database.h"

/// How many classes every file lists, those of usual objects.
inline constexpr int g_nDxfUsualClasses = 3;

/// A class of entities as a file lists it.
struct CDxfClass {
    std::wstring m_strDxfName, m_strClassName, m_strAppName;
    int m_nProxyFlags = 0;    ///< what may be done with its entities where it is not known
    bool m_bWasProxy = false; ///< it is not known at present
};

/// A drawing on its way into a file: what is written, what of it cannot be, and the handles of what stands in
/// the file alone; they lie beyond those of the drawing.
class CDxfOutput : public CDxfWriter {
public:
    explicit CDxfOutput(const AcDbDatabase& database)
        : m_database(database)
        , m_nNextHandle(database.handseed().Value()) {}

    const AcDbDatabase& Database() const { return m_database; }
    AcDbHandle NewHandle() { return AcDbHandle(m_nNextHandle++); }
    void Lose(const std::string& strKind) { ++m_mapLost[strKind]; }
    const CDxfLosses& Losses() const { return m_mapLost; }
    /// The number of a class, which comes among those of the file if it is not there yet.
    int ClassNumber(const CDxfClass& entry);
    const std::vector<CDxfClass>& Classes() const { return m_arClasses; }

    /// Begins a record with its handle and its owner's.
    void Record(std::string_view type, AcDbHandle handle, AcDbHandle owner);
    void Subclass(std::string_view name) { Word(100, name); }
    void BeginSection(std::string_view name);
    void EndSection() { Word(0, "ENDSEC"); }

private:
    const AcDbDatabase& m_database;
    Adesk::UInt64 m_nNextHandle;
    CDxfLosses m_mapLost;
    std::vector<CDxfClass> m_arClasses; ///< behind those that every file lists
};

/// The name of a table's record; empty for a null id.
std::wstring DxfName(AcDbObjectId idRecord);

/// Whether a block of that name is a sheet of paper to draw on.
bool IsDxfPaperSpace(const std::wstring& strName);
