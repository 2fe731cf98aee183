#pragma once
// What several tests of the drawing database need.

#include "platform/acad/db_database.h"
#include "platform/acad/text_metrics.h"

#include <string>
#include <vector>

/// Every byte of a text is half a unit wide at height 1, so a Chinese character is one unit; it notes the
/// font that it was last asked for.
class CFixedMetrics : public CTextMetrics {
public:
    CFixedMetrics() { SetTextMetrics(this); }
    ~CFixedMetrics() override { SetTextMetrics(nullptr); }
    CFixedMetrics(const CFixedMetrics&) = delete;
    CFixedMetrics& operator=(const CFixedMetrics&) = delete;
    double AdvanceWidth(const CTextFont& font, const std::string& strText) override {
        m_font = font;
        return 0.5 * static_cast<double>(strText.size());
    }
    CTextFont m_font;
};

/// A custom entity: draws a level line of its length and counts how many of its kind live.
class CSampleEntity : public AcDbEntity {
public:
    CSampleEntity() { ++s_nLiving; }
    ~CSampleEntity() override { --s_nLiving; }
    double m_dLength = 10.0;
    static int s_nLiving;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override {
        const AcGePoint3d points[] = {{0.0, 0.0, 0.0}, {m_dLength, 0.0, 0.0}};
        pMode->rawGeometry()->polyline(2, points);
        return Adesk::kTrue;
    }
};

inline int CSampleEntity::s_nLiving = 0;

/// Appends the entity to model space and closes it.
inline AcDbObjectId Append(AcDbDatabase& database, AcDbEntity* pEntity) {
    CDbOpen<AcDbBlockTableRecord> space(database.ModelSpaceId(), AcDb::kForWrite);
    AcDbObjectId id;
    space->appendAcDbEntity(id, pEntity);
    pEntity->close();
    return id;
}

/// Adds a record of the given name to a table and closes it.
template <class Table>
AcDbObjectId AddRecord(AcDbObjectId idTable, const ACHAR* name, AcDbSymbolTableRecord* pRecord) {
    pRecord->setName(name);
    CDbOpen<Table> table(idTable, AcDb::kForWrite);
    AcDbObjectId id;
    table->add(id, pRecord);
    pRecord->close();
    return id;
}
