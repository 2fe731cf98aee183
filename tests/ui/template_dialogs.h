#pragma once
// Dialogs on the module's templates that exchange values with the controls and do no more.

#include "platform/mfc/combo_box.h"
#include "platform/mfc/data_exchange.h"
#include "platform/mfc/list_box.h"
#include "platform/mfc/property_sheet.h"
#include "ui/resources.h"

class CSaveDialog : public CDialog {
public:
    CSaveDialog()
        : CDialog(IDD_SAVE) {}

    double m_dCalcC = 2.0 / 3.0, m_dAdoptC = 10.5, m_dAdoptPhi = 20.0;
    int m_nSource = 2;
    CString m_strMethod = "固结不排水剪";

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        DDX_Text(pDX, IDC_ADOPT_C, m_dAdoptC);
        DDX_Text(pDX, IDC_ADOPT_PHI, m_dAdoptPhi);
        DDX_Text(pDX, IDC_CALC_C, m_dCalcC);
        DDX_Text(pDX, IDC_METHOD, m_strMethod);
        DDX_Radio(pDX, IDC_FROM_CALC, m_nSource);
    }
    std::span<const CMessageEntry> GetMessageMap() const override {
        static const CMessageEntry map[] = {{IDC_FROM_CALC, BN_CLICKED, &CSaveDialog::OnFromCalc}};
        return map;
    }

private:
    void OnFromCalc() {
        m_nSource = 0;
        m_dAdoptC = m_dCalcC;
        GetDlgItem(IDC_ADOPT_C)->EnableWindow(FALSE);
        UpdateData(FALSE);
    }
};

class COptionsPage : public CPropertyPage {
public:
    COptionsPage()
        : CPropertyPage(IDD_OPT_PAGE) {
        m_psp.dwFlags = 0;
    }
    BOOL OnInitDialog() override {
        CPropertyPage::OnInitDialog();
        for (const char* size : {"A0", "A1", "A2", "A3", "A4"})
            m_combo.AddString(size);
        return UpdateData(FALSE);
    }

    CComboBox m_combo;
    CString m_strSize = "A4", m_strClosedUp;
    int m_bBorder = 1, m_bOneDwg = 0, m_nPerRow = 2;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        DDX_Control(pDX, IDC_SHEET_SIZE, m_combo);
        DDX_Check(pDX, IDC_FRAME_BORDER, m_bBorder);
        DDX_CBString(pDX, IDC_SHEET_SIZE, m_strSize);
        DDX_Check(pDX, IDC_ONE_DWG, m_bOneDwg);
        DDX_Text(pDX, IDC_PER_ROW, m_nPerRow);
        DDV_MinMaxInt(pDX, m_nPerRow, 1, 100000);
    }
    std::span<const CMessageEntry> GetMessageMap() const override {
        static const CMessageEntry map[] = {{IDC_SHEET_SIZE, CBN_CLOSEUP, &COptionsPage::OnClosedUp}};
        return map;
    }

private:
    void OnClosedUp() { m_combo.GetLBText(m_combo.GetCurSel(), m_strClosedUp); }
};

class CAnnotationPage : public CPropertyPage {
public:
    CAnnotationPage()
        : CPropertyPage(IDD_ZS_PAGE) {
        m_psp.dwFlags = 0;
    }

    CString m_strUnit = "一院", m_strTester, m_strChecker;
    int m_bDate = 1;
    CTime m_tDate{2024, 3, 9, 0, 0, 0};

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        DDX_Text(pDX, IDC_UNIT, m_strUnit);
        DDX_Text(pDX, IDC_TESTER, m_strTester);
        DDX_Text(pDX, IDC_CHECKER, m_strChecker);
        DDX_Check(pDX, IDC_SHOW_DATE, m_bDate);
        DDX_DateTimeCtrl(pDX, IDC_DATE, m_tDate);
    }
};

class COpenDialog : public CDialog {
public:
    COpenDialog()
        : CDialog(IDD_OPEN) {}
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        for (const char* text : {"ZK1", "ZK10"})
            m_listZK.AddString(text);
        for (const char* text : {"试样ZK1-3和5", "试样ZK1-6"})
            m_listCharts.AddString(text);
        return UpdateData(FALSE);
    }

    CListBox m_listZK, m_listCharts;
    CString m_strZK = "ZK1";

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        DDX_Control(pDX, IDC_OPEN_ZK_LIST, m_listZK);
        DDX_Control(pDX, IDC_OPEN_CHART_LIST, m_listCharts);
        DDX_LBString(pDX, IDC_OPEN_ZK_LIST, m_strZK);
    }
    std::span<const CMessageEntry> GetMessageMap() const override {
        static const CMessageEntry map[] = {{IDC_OPEN_CHART_LIST, LBN_DBLCLK, &COpenDialog::OnOK}};
        return map;
    }
};
