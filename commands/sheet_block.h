#pragma once

#include "platform/acad/db_database.h"

/// The block "BRMB", in which every sheet's frame stands, for one group of sheets. Frame templates are not
/// read yet: the block is empty, and the method text's place in it is its base point.
class CSheetBlock {
public:
    explicit CSheetBlock(AcDbDatabase* pDatabase)
        : m_pDatabase(pDatabase) {}

    /// Makes the block, unless the drawing has it. 0 when it could not be made.
    int Prepare();
    /// Inserts a reference for a sheet, with its lower left corner at ptSheet.
    void AddReference(const AcGePoint3d& ptSheet);
    /// Where a sheet's method text stands, from the sheet's lower left corner.
    AcGeVector3d MethodOffset() const { return {0.0, 0.0, 0.0}; }

private:
    AcDbDatabase* m_pDatabase;
    AcDbObjectId m_idBlock;
};
