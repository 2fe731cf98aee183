#pragma once
// The frame: a sheet's rectangle with its heading, its project lines and its signature line as a drawing
// entity. A chart that watches it follows its moves.

#include "platform/acad/db_entity.h"
#include "platform/mfc/string.h"

class CBRENFrame : public AcDbEntity {
public:
    CBRENFrame() = default;
    ~CBRENFrame() override = default;

    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    static CBRENFrame* cast(const AcRxObject* pObject);
    /// Makes the class known, once; with its field table hung on the descriptor.
    static void rxInit();
    /// Takes the class out of the registry.
    static void rxExit();

    Acad::ErrorStatus setColorIndex(Adesk::UInt16 color, Adesk::Boolean doSubents = Adesk::kTrue) override;
    /// The picture for a file is drawn in bare lines, without widths.
    void saveAs(AcGiWorldDraw* pMode, AcDb::SaveType saveType) override;
    /// The record in a drawing file: one flat sequence after the entity's own, without version. The result is
    /// eOk once the entity's own record is there; what the filer says of the rest is its status.
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;

    // Fields in declared order; lengths in drawing units (mm on the sheet).
    AcGePoint3d m_ptBase;             ///< top left corner of the sheet's rectangle, and the frame's grip
    AcGeVector3d m_vecGripOffset;     ///< of the last grip move, for the chart that follows; not filed
    double m_dTextHeight = 2.5;       ///< passes through the record; the drawing has sizes of its own
    double m_dBorderWidth = 0.5;      ///< of the rectangle's line
    Adesk::Int16 m_nPolylineMode = 0; ///< 1 only while the picture for a file is drawn
    Adesk::Int32 m_nGCSY = 0;
    CString m_strZKBH;
    CString m_strQYBH;
    CString m_strGCMC;
    CString m_strSYFF;
    CString m_strQYSD; ///< depth of the sample in m, without the unit
    CString m_strGCBH;
    AcDbObjectId m_idTextStyle;
    AcDbObjectId m_idBannerStyle;
    Adesk::Int32 m_bRQ = 0;       ///< the date is shown
    Adesk::Int32 m_bJCZ = 0;      ///< the checker's name is shown
    Adesk::Int32 m_bSYZ = 0;      ///< the tester's name is shown
    Adesk::Int32 m_bWCDW = 0;     ///< the unit's name is shown
    Adesk::Int32 m_bReserved = 0; ///< passes through the record
    CString m_sJCZ;
    CString m_sReserved; ///< passes through the record
    CString m_sWCDW;     ///< the unit that did the work
    CString m_sSYZ;
    Adesk::Int16 m_nYear = 0, m_nMonth = 0, m_nDay = 0;
    Adesk::Int16 m_nGCBZ = 0; ///< project standard code; with 2 little of the frame is drawn

protected:
    /// While it is dragged nothing is drawn.
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override;
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    /// Moves only, told by what becomes of the x axis: eNotApplicable when it changes, and then nothing does.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;

private:
    void DrawFrameLines(AcGiWorldDraw* pMode) const;
    void DrawFrameTexts(AcGiWorldDraw* pMode) const;
    void ExplodeFrameLines(AcDbVoidPtrArray& entitySet) const;
    void ExplodeFrameTexts(AcDbVoidPtrArray& entitySet) const;
};
