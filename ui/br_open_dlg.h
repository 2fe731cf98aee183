#pragma once

#include "platform/mfc/collections.h"
#include "platform/mfc/dialog.h"
#include "platform/mfc/list_box.h"

/// "查看三轴剪切试验成果图": the boreholes of the running project, and the stored chart drawings of the one
/// chosen.
class CBROpenDlg : public CDialog {
public:
    explicit CBROpenDlg(void* pOwner = nullptr);

    BOOL OnInitDialog() override;
    /// Says so and stays open when no drawing is listed. Where none is selected the result is empty.
    void OnOK() override;

    CListBox m_listZK;
    CListBox m_listCharts;
    CString m_strOpenZK;        ///< current borehole
    CString m_strOpenGCBH;      ///< project number
    CString m_strOpenResult;    ///< the titles chosen, "|" between them
    CStringArray m_saOpenFiles; ///< a title for each line of the chart list
    int m_nGCSY = 0;
    int m_bPreset = 0; ///< 1: the caller gives borehole and titles

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    std::span<const CMessageEntry> GetMessageMap() const override;

private:
    void ShowPreset();
    int ListBoreholes();
    void ListChartsOfBorehole();
    /// Adds the drawings of the current borehole whose titles fit the pattern; gives the number of all that
    /// fit.
    int ListCharts(const char* pattern);
    void OnZKChange();
    void OnSampleDblClk();
    void OnSampleChange();
};
