#pragma once

#include "drawing/insert_block.h"
#include "platform/acad/db_block_reference.h"
#include "tests/support/drawing.h"
#include "tests/support/suite_fixture.h"
#include "tests/support/template_file.h"

/// A template that a test fills, and the block that comes of it in the working drawing.
class CInsertBlockTest : public CSuiteTest {
protected:
    std::string TemplatePath() const { return m_root.Path("template.dwg"); }
    /// Writes the template and brings it in as the block "FRAME".
    void Load() {
        m_template.Write(TemplatePath());
        ASSERT_EQ(m_block.InsertBlockDef(TemplatePath().c_str(), "FRAME", &m_drawing.Database()), 1);
    }
    /// The entities of a block.
    std::vector<AcDbObjectId> Entities(AcDbObjectId idBlock) const {
        return CDbOpen<AcDbBlockTableRecord>(idBlock)->EntityIds();
    }
    /// The definition's texts, in order.
    CTexts Texts() const {
        CTexts texts;
        for (const AcDbObjectId id : Entities(m_block.m_idBlockDef))
            if (const CDbOpen<AcDbText> text(id); text) texts.push_back(GbkFromWide(text->textString()));
        return texts;
    }
    AcGePoint3d Position(int nText) const {
        return CDbOpen<AcDbText>(Entities(m_block.m_idBlockDef).at(static_cast<std::size_t>(nText)))
            ->position();
    }
    static CStringArray List(std::initializer_list<const char*> texts) {
        CStringArray list;
        for (const char* pText : texts)
            list.Add(pText);
        return list;
    }

    CTestDrawing m_drawing;
    CTemplateFile m_template;
    CInsertBlock m_block;
};
