#pragma once
// Drawing files for tests of what is brought in from them.

#include "host/files/registered_drawing_files.h"
#include "platform/acad/db_attribute.h"
#include "platform/acad/db_database.h"
#include "platform/mfc/string.h"
#include "platform/windows/code_page.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// A drawing that becomes a file. Texts are GBK, 2.5 high.
class CTemplateFile {
public:
    /// One that is placed by an alignment point gets it 10 to the right of its left end.
    AcDbText* AddText(const char* pText, const AcGePoint3d& ptLeft,
                      AcDb::TextHorzMode mode = AcDb::kTextLeft) {
        return Place(new AcDbText(ptLeft, WideFromGbk(pText).c_str(), AcDbObjectId::kNull, 2.5), mode);
    }
    AcDbAttributeDefinition* AddAttribute(const char* pTag, const AcGePoint3d& ptLeft,
                                          AcDb::TextHorzMode mode = AcDb::kTextLeft, const char* pText = "") {
        const std::wstring strTag = WideFromGbk(pTag), strText = WideFromGbk(pText);
        auto* const pDefinition =
            new AcDbAttributeDefinition(ptLeft, strText.c_str(), strTag.c_str(), L"", AcDbObjectId::kNull);
        pDefinition->setHeight(2.5);
        return Place(pDefinition, mode);
    }
    /// Adds an entity, which is open for writing until the file is written.
    template <class T>
    T* Add(T* pEntity) {
        const CDbOpen<AcDbBlockTableRecord> space(m_drawing.ModelSpaceId(), AcDb::kForWrite);
        space->appendAcDbEntity(pEntity);
        m_arOpen.push_back(pEntity);
        return pEntity;
    }
    /// Closes the entities.
    void Close() {
        for (AcDbEntity* const pEntity : m_arOpen)
            pEntity->close();
        m_arOpen.clear();
    }
    /// Writes the file (UTF-8 path).
    void Write(const std::string& strPath) {
        Close();
        const std::wstring strWide = WideFromGbk(CString(strPath.c_str()).View());
        ASSERT_EQ(m_drawing.saveAs(strWide.c_str()), Acad::eOk) << strPath;
    }

    AcDbDatabase m_drawing;

private:
    template <class T>
    T* Place(T* pText, AcDb::TextHorzMode mode) {
        if (mode != AcDb::kTextLeft) {
            const AcGePoint3d pt = pText->position();
            pText->setHorizontalMode(mode);
            pText->setAlignmentPoint({pt.x + 10.0, pt.y, pt.z});
        }
        return Add(pText);
    }

    CRegisteredDrawingFiles m_files;
    std::vector<AcDbEntity*> m_arOpen;
};
