#pragma once

#include "platform/mfc/property_sheet.h"
#include "ui/gen_page.h"
#include "ui/zs_page.h"

/// The sheet in which the engineer picks the samples to draw. After DoModal gave 1 its fields hold what the
/// generation needs.
class CBRENDlg : public CPropertySheet {
public:
    explicit CBRENDlg(const char* caption, void* pOwner = nullptr);

    BOOL OnInitDialog() override;
    /// Takes the OK for itself: gathers what is selected, or says what is missing and stays open.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    /// Whether all samples of the project are drawn; they stand in m_pageGen.m_arAll then.
    bool AllSamples() const { return m_pageGen.m_bAll != 0; }

    CGenPage m_pageGen;
    int m_nGCSY = 0; ///< set before DoModal
    CString m_strGCBH;
    CString m_strGCMC;
    CString m_strZKBH;        ///< borehole of a selection; empty when all are drawn
    CStringArray m_saSelSYFF; ///< test method of each selected sample
    CStringArray m_saSelQY;   ///< selected samples, without mark
    int m_nGCBZ = 0;          ///< set before DoModal
    CZSPage m_pageZS;         ///< not shown
    int m_bDate = 0;
    int m_bChecker = 0;
    int m_bTester = 0;
    int m_bUnit = 0;
    CString m_strChecker;
    CString m_strUnit;
    CString m_strTester;
    CString m_strDate;
    CTime m_tDate; ///< zero until confirmed
    int m_nReserved = 0;
    CStringArray m_saDepth; ///< of each sample, as are the next four
    CStringArray m_saLayer;
    CStringArray m_saWater;
    CStringArray m_saIL; ///< liquidity index
    CStringArray m_saIP; ///< plasticity index
    int m_bQuYangOk = 1;
    int m_bTuCengOk = 1;
    int m_bSamplesOk = 1;
    int m_bHasData = 1; ///< whether the boreholes could be listed

private:
    /// How the OK goes on: to the base, to the sheet's own closing, or not at all.
    enum class CNext { Base, Close, Stay };

    CNext ConfirmSelection();
    CNext ConfirmAll();
    CNext GatherSelection(const std::vector<int>& selected);
    CNext GatherAll();
    CNext StayWith(const char* message);

    CString SamplesWithoutMethod(const std::vector<int>& selected) const;
    int AddContext(const CString& strZKBH, const CString& strQYBH, const CString& strShown, QYPropty* sample);
    void ReadProjectAndAnnotation();
    void PrintTableResults() const;
    void MarkSelection();
    void WriteAllMarks() const;
};
