#pragma once

#include "drawing/insert_block.h"
#include "platform/acad/geometry.h"

class CBRENDlg;

/// What the layout marks of a template said where it had them; kept from the template loaded last, though
/// nothing reads it.
struct CTemplateMarks {
    double m_dDist = 0.0;
    AcGePoint3d m_ptSP, m_ptSP1;
};
extern CTemplateMarks g_templateMarks;

/// 1 when the working drawing is not the template itself.
int CheckNotTemplate(const CString& strTemplate);

/// The frame template for one group of sheets: the block "BRMB", filled from the project's tables and the
/// dialog, and its references.
class CTemplatePass {
public:
    /// The dialog outlives the pass.
    CTemplatePass(AcDbDatabase* pDatabase, const CBRENDlg& dialog)
        : m_pDatabase(pDatabase)
        , m_dialog(dialog) {}

    /// Loads the template as the block, and fills it. 0, after a message, when it cannot be used.
    int Load();

    /// Adds the frame of a sheet (from 1), whose lower left corner is ptSheet. The first sheet's number comes
    /// to stand on all of them, one too high.
    void AddFrame(int nSheet, const AcGePoint3d& ptSheet);

    /// Where a sheet's method text stands, from the sheet's lower left corner. Without a mark for it, that is
    /// where the mark found last stood; the corner when none was.
    AcGeVector3d MethodOffset() const { return m_ptFound.asVector(); }

private:
    CString TemplatePath() const;
    void ReadFields();
    int LoadBlock(const CString& strTemplate);
    /// Puts a text in place of a mark; m_ptFound is its place then.
    int Replace(const char* pMark, const CString& strText);
    void ReadLayoutMarks();
    void ReplaceAnnotations();

    AcDbDatabase* m_pDatabase;
    const CBRENDlg& m_dialog;
    CInsertBlock m_block;
    CStringArray m_saKeys, m_saValues; ///< of the title block
    AcGePoint3d m_ptFound;
};
