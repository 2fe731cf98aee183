#pragma once

#include "platform/mfc/list_box.h"
#include "ui/n_property_page.h"
#include "ui/qy_property.h"

/// The page "选择取样": boreholes, and the samples of the one chosen.
class CGenPage : public CNPropertyPage {
public:
    CGenPage();

    /// Reads the project's boreholes and the samples of the first one, before the page is shown. 0, reported,
    /// when the readings cannot be opened or the project has none.
    int LoadBoreholes();
    /// Fills the sample list for the borehole selected; while m_bAll is on, for m_strZKBH.
    void LoadSamples();
    /// Takes the samples of every borehole into m_arAll and m_arByZK.
    void CollectAll();

    BOOL OnInitDialog() override;

    CListBox m_listZK;
    CListBox m_listQY;
    CString m_strReserved; ///< empty, not used here
    CString m_strZKBH;     ///< current borehole, without mark
    int m_nGCSY = 0;
    int m_bSamplesValid = 1; ///< 0 once a test method could not be read
    CStringArray m_saZK;     ///< boreholes for filling the list
    CStringArray m_saQY;     ///< samples of the first borehole
    CStringArray m_saSYFF;   ///< test method of each sample of the current borehole
    CStringArray m_saReserved;
    CStringArray m_saCurQY;   ///< samples of the current borehole
    CString m_strFrameFile;   ///< file name of the frame template; empty when there is none
    CString m_strFramePath;   ///< its folder, with a slash at the end
    CStringArray m_saZKPlain; ///< all boreholes without marks
    CArray<arZKBH> m_arAll;   ///< one element with all samples
    int m_bAll = 0;
    CArray<arZKBH> m_arByZK; ///< one element per borehole

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    std::span<const CMessageEntry> GetMessageMap() const override;

private:
    int ReadSamples();
    void ReadTestMethod(const CString& strZKBH, const CString& strQYBH);
    void CollectBorehole(arZKBH* all);
    void OnClearMarks();
    void OnAllChanged();
    void OnEditTemplate();
};
