#include "platform/mfc/data_exchange.h"

#include <cmath>

#include "platform/ado/number_text.h"
#include "platform/mfc/date_time_ctrl.h"
#include "platform/mfc/entry_window.h"
#include "platform/mfc/radio_group.h"
#include "platform/windows/message_box.h"

namespace {

// The control as one of its class; a control of another class fails the exchange.
template <class T>
T* Prepare(CDataExchange* pDX, UINT nIDC) {
    CWnd* pItem = pDX->PrepareCtrl(nIDC);
    auto* pControl = dynamic_cast<T*>(pItem);
    if (pItem && !pControl) pDX->Fail();
    return pControl;
}

void Refuse(CDataExchange* pDX, const CString& reason) {
    MessageBoxA(nullptr, reason, "Tervo", MB_OK | MB_ICONEXCLAMATION);
    pDX->Fail();
}

CString TextOf(int value) {
    CString text;
    text.Format("%d", value);
    return text;
}

CString TextOf(double value) {
    CString text;
    text.Format("%.15g", value);
    return text;
}

template <class Number>
void ExchangeNumber(CDataExchange* pDX, UINT nIDC, Number& value, const char* refusal) {
    CWnd* pItem = pDX->PrepareCtrl(nIDC);
    if (!pItem) return;
    if (!pDX->m_bSaveAndValidate) return pItem->SetWindowText(TextOf(value));
    CString text;
    pItem->GetWindowText(text);
    const auto number = NumberFromText<Number>(text.Trim(" \t").View());
    if (!number || !std::isfinite(static_cast<double>(*number))) return Refuse(pDX, refusal);
    value = *number;
}

void SelectEntry(CEntryWnd& control, const CString& beginning) {
    if (beginning.IsEmpty()) return;
    for (int i = 0; i < control.GetCount(); ++i) {
        CString text;
        control.GetEntryText(i, text);
        if (text.Left(beginning.GetLength()).CompareNoCase(beginning) != 0) continue;
        control.SetCurSel(i);
        return;
    }
}

void ExchangeEntry(CDataExchange* pDX, UINT nIDC, CString& value) {
    auto* pControl = Prepare<CEntryWnd>(pDX, nIDC);
    if (!pControl) return;
    if (!pDX->m_bSaveAndValidate) return SelectEntry(*pControl, value);
    value.Empty();
    pControl->GetEntryText(pControl->GetCurSel(), value);
}

} // namespace

CWnd* CDataExchange::PrepareCtrl(UINT nIDC) {
    if (m_bFailed) return nullptr;
    m_nLastControl = nIDC;
    CWnd* pItem = m_pDlgWnd->GetDlgItem(nIDC);
    if (!pItem) Fail();
    return pItem;
}

void DDX_Control(CDataExchange* pDX, UINT nIDC, CWnd& rControl) {
    const CWnd* pItem = pDX->PrepareCtrl(nIDC);
    if (pItem && pItem->GetControl() != rControl.GetControl()) rControl.SubclassDlgItem(nIDC, pDX->m_pDlgWnd);
}

void DDX_Check(CDataExchange* pDX, UINT nIDC, int& value) {
    const CWnd* pItem = pDX->PrepareCtrl(nIDC);
    if (!pItem) return;
    int& nCheck = pItem->GetControl()->m_nCheck;
    if (pDX->m_bSaveAndValidate) {
        value = nCheck;
    } else {
        nCheck = value != 0;
    }
}

void DDX_Radio(CDataExchange* pDX, UINT nIDC, int& value) {
    const CWnd* pItem = pDX->PrepareCtrl(nIDC);
    if (!pItem) return;
    const std::vector<CWnd*> group = RadioGroup(*pItem);
    if (pDX->m_bSaveAndValidate) value = -1;
    for (int i = 0; i < static_cast<int>(group.size()); ++i) {
        int& nCheck = group[i]->GetControl()->m_nCheck;
        if (!pDX->m_bSaveAndValidate) {
            nCheck = i == value;
        } else if (nCheck != 0) {
            value = i;
        }
    }
}

void DDX_Text(CDataExchange* pDX, UINT nIDC, CString& value) {
    CWnd* pItem = pDX->PrepareCtrl(nIDC);
    if (!pItem) return;
    if (pDX->m_bSaveAndValidate) {
        pItem->GetWindowText(value);
    } else {
        pItem->SetWindowText(value);
    }
}

void DDX_Text(CDataExchange* pDX, UINT nIDC, int& value) {
    ExchangeNumber(pDX, nIDC, value, "请输入一个整数。");
}

void DDX_Text(CDataExchange* pDX, UINT nIDC, double& value) {
    ExchangeNumber(pDX, nIDC, value, "请输入一个数。");
}

void DDV_MinMaxInt(CDataExchange* pDX, int value, int nMinVal, int nMaxVal) {
    if (!pDX->m_bSaveAndValidate || pDX->HasFailed() || (value >= nMinVal && value <= nMaxVal)) return;
    CString reason;
    reason.Format("请输入 %d 到 %d 之间的整数。", nMinVal, nMaxVal);
    Refuse(pDX, reason);
}

void DDX_LBString(CDataExchange* pDX, UINT nIDC, CString& value) {
    ExchangeEntry(pDX, nIDC, value);
}

void DDX_CBString(CDataExchange* pDX, UINT nIDC, CString& value) {
    ExchangeEntry(pDX, nIDC, value);
}

void DDX_DateTimeCtrl(CDataExchange* pDX, UINT nIDC, CTime& value) {
    auto* pControl = Prepare<CDateTimeCtrl>(pDX, nIDC);
    if (!pControl) return;
    if (pDX->m_bSaveAndValidate) {
        pControl->GetTime(value);
    } else {
        pControl->SetTime(&value);
    }
}
