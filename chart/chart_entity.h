#pragma once
// The chart: one sample's whole triaxial result sheet as a drawing entity. Once generated it lives in the
// drawing without the database and draws itself from its own fields.

#include "analysis/test_method.h"
#include "platform/acad/db_entity.h"
#include "platform/mfc/collections.h"
#include "platform/mfc/string.h"

struct CAxes;
class CMorCircles;
class CPictureSink;

using CDoubleList = AcArray<double>;
using CDoubleLists = CArray<CDoubleList, CDoubleList>;

/// 1 when an end of an envelope line was moved since the last store; one flag for all charts.
extern Adesk::Int32 g_bChartDataChanged;

class CBRENChart : public AcDbEntity {
public:
    CBRENChart() = default;
    ~CBRENChart() override = default;

    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    static CBRENChart* cast(const AcRxObject* pObject);
    /// Makes the class known, once; with its field table hung on the descriptor.
    static void rxInit();
    /// Takes the class out of the registry.
    static void rxExit();

    /// The record in a drawing file: one flat sequence after the entity's own, without version or length.
    /// What the filer says of it is its status; the result is eOk once the entity's own record is there.
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    /// In place of what the chart held, but for the four lists of circle values, which grow by what is read.
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;
    Acad::ErrorStatus setColorIndex(Adesk::UInt16 color, Adesk::Boolean doSubents = Adesk::kTrue) override;
    /// The picture for a file is drawn in bare lines, without widths and bulges.
    void saveAs(AcGiWorldDraw* pMode, AcDb::SaveType saveType) override;
    /// Follows a frame that was moved by its grip, by the frame's last offset. The first notification after a
    /// change of the chart's colour is dropped, whatever it tells.
    void modified(const AcDbObject* pObject) override;

    /// Reads the sample's readings (m_nGCSY, m_strZKBH, m_strQYBH, m_strSYFF), reduces them, searches the
    /// envelopes and chooses the scales. 1 on success; 0 on any failure, which it has reported, and then the
    /// chart is half filled and to be dropped. For a new chart only: a second call would append to the lists
    /// again.
    int ComputeChartData();
    /// Places the panels of a computed chart, fits its envelope lines, seeds the value sets and stores them.
    void ArrangePanels();

    /// End points of the line τ = c + σ·tan φ in the Mohr panel, from the τ axis as far as the greatest σ1 or
    /// to 0.2 of a cell below the top of the grid. dPhi in radians, dC in kPa.
    void FitEnvelopeLine(AcGePoint3d& ptStart, AcGePoint3d& ptEnd, double dPhi, double dC) const;
    /// Reads the graphical c (kPa) and φ (degrees) off the envelope lines as they stand.
    void ReadEnvelopeValues();

    /// Whether the chart's project still stands under its number, so that its values may be stored: 1. Else 0
    /// after messages, and what the lines were dragged to counts as stored.
    int CheckProjectForStore();
    /// Writes the adopted values and today's date into the sample's row of z_c_SanZhou; the columns of the
    /// other methods become NULL. 1 on success, else 0 after a message.
    int StoreAdoptedValues();

    CTestMethod Method() const { return TestMethodOf(m_strSYFF); }
    bool HasEffectiveSet() const { return Method() == CTestMethod::CU; }

    // Fields in declared order; all points and lengths in drawing units (mm on the sheet).
    AcGePoint3d m_ptBase;          ///< top left corner of the sheet area
    AcGePoint3d m_ptCurveOrigin;   ///< lower left corner of the stress-strain grid
    AcGePoint3d m_ptMohrOrigin;    ///< lower left corner of the Mohr grid
    AcGePoint3d m_ptTableOrigin;   ///< top left corner of the stress table
    AcGePoint3d m_ptSummaryOrigin; ///< anchor of the summary table
    Adesk::Int32 m_nCurveRows = 8;
    Adesk::Int32 m_nCurveCols = 8;
    double m_dCurveStepY = 10.0; ///< deviator stress per cell, kPa
    double m_dCurveStepX = 1.0;  ///< strain per cell, percent
    Adesk::Int32 m_nCurveCellW = 10;
    Adesk::Int32 m_nCurveCellH = 10;
    Adesk::Int32 m_nMohrRows = 0;
    Adesk::Int32 m_nMohrCols = 10;
    double m_dMohrStepY = 0.0;  ///< τ per cell, kPa; equal to the σ value, so that circles stay round
    double m_dMohrStepX = 25.0; ///< σ per cell, kPa
    Adesk::Int32 m_nMohrCellW = 10;
    Adesk::Int32 m_nMohrCellH = 10;
    double m_dArrowHalfWidth = 0.5;
    double m_dTextHeight = 2.5; ///< six of it are kept free at the top of the sheet
    CDoubleList m_arTotal;  ///< six a failure row: σ3, σ1, σ1+σ3, σ1−σ3, (σ1+σ3)/2, (σ1−σ3)/2
    CStringArray m_saCells; ///< texts of the summary table
    CDoubleList m_arEffective; ///< four a failure row, CU only: σ'3, σ'1, σ'1+σ'3, (σ'1+σ'3)/2
    CStringArray m_saCellsEff; ///< passes through the record; nothing fills or reads it
    CDoubleList m_arSigma3;    ///< σ3 of each failure row, kPa
    CDoubleList m_arDeviator;  ///< σ1−σ3 of each failure row, kPa
    CDoubleList m_arSigma3Eff; ///< σ'3, CU only
    CDoubleList m_arDeviatorEff;
    Adesk::Int32 m_nGCSY = 0;
    CString m_strGCBH; ///< project number when generated; guards the store
    CString m_strZKBH;
    CString m_strQYBH;
    CString m_strSYFF;
    CString m_strSoilName;
    CString m_strWater;
    CString m_strLiquidity;
    CString m_strPlasticity;
    CDoubleLists m_arStrainSeries; ///< one list per cell-pressure group; a fraction, not percent
    CDoubleLists m_arStressSeries; ///< deviator stress, kPa, parallel
    // φ in degrees (radians between ComputeChartData and ArrangePanels), c in kPa.
    double m_dCalcPhi = 0.0, m_dCalcC = 0.0;   ///< from the tangent search, fixed when placed
    double m_dGraphPhi = 0.0, m_dGraphC = 0.0; ///< what the envelope line shows
    double m_dAdoptPhi = 0.0, m_dAdoptC = 0.0; ///< what the database holds or will hold
    double m_dCalcPhiEff = 0.0, m_dCalcCEff = 0.0;
    double m_dGraphPhiEff = 0.0, m_dGraphCEff = 0.0;
    double m_dAdoptPhiEff = 0.0, m_dAdoptCEff = 0.0;
    AcGePoint3d m_ptEnvStart, m_ptEnvEnd;
    AcGePoint3d m_ptEnvStartEff, m_ptEnvEndEff;
    Adesk::Int16 m_nPolylineMode = 0;   ///< 1 only while the picture for a file is drawn
    double m_dMaxSigma1 = 0.0;          ///< greatest σ1 of all readings, kPa
    Adesk::Int32 m_bSingleSpecimen = 1; ///< all readings are stages of one specimen
    Adesk::Int32 m_bNoEnvelope = 0;     ///< fewer than two circles; not filed
    Adesk::Int32 m_bColorChanging = 0;  ///< the next notification of the frame is to be ignored; not filed
    AcDbObjectId m_idTextStyle;         ///< text style of measured and exploded texts
    Adesk::UInt16 m_nColor = 0;         ///< colour index of what the chart draws

protected:
    /// A drag shows the envelope lines only. Otherwise the graphical values are read off the lines first, and
    /// the summary table's texts are made anew, without a notification.
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override;
    /// Shows the values as they stand.
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    /// Moves only, told by what becomes of the x axis: eNotApplicable when it changes, and then nothing does.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    /// A grip of the Mohr panel takes the envelope lines along; a moved end of one is noted in
    /// g_bChartDataChanged. Other indices are passed over.
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;

private:
    // The picture's elements in their two forms of output.
    void DrawChartAxes(AcGiWorldDraw* pMode, const CAxes& axes) const;
    void ExplodeChartAxes(AcDbVoidPtrArray& entitySet, const CAxes& axes) const;
    void DrawStrainCurves(AcGiWorldDraw* pMode) const;
    void ExplodeStrainCurves(AcDbVoidPtrArray& entitySet) const;
    void DrawMohrCircles(AcGiWorldDraw* pMode) const;
    void ExplodeMohrCircles(AcDbVoidPtrArray& entitySet) const;
    void DrawEnvelope(AcGiWorldDraw* pMode) const;
    void ExplodeEnvelope(AcDbVoidPtrArray& entitySet) const;
    void DrawResultTable(AcGiWorldDraw* pMode);
    void ExplodeResultTable(AcDbVoidPtrArray& entitySet) const;

    // Each described once for both.
    /// bWithOrigin: a curve that begins well off the origin is led there first.
    void DescribeStrainCurves(CPictureSink& sink, bool bWithOrigin) const;
    void DescribeStages(CPictureSink& sink, int nSeries, bool bWithOrigin) const;
    void DescribeMohrCircles(CPictureSink& sink) const;
    void DescribeEnvelope(CPictureSink& sink) const;
    CAxes CurveAxes() const;
    CAxes MohrAxes() const;
    AcGePoint3dArray CurvePoints(int nSeries, bool bWithOrigin) const;
    void FillSummaryCells();
};
