#include "platform/mfc/data_exchange.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/mfc/dialog.h"
#include "platform/windows/code_page.h"
#include "platform/windows/message_box.h"
#include "tests/platform/mfc/dialog_script.h"

namespace {

constexpr UINT LIST = 10, SEVERAL = 11, COMBO = 12, EDIT = 13, OTHER_EDIT = 14, CHECK = 15, DATE = 16;
constexpr UINT RADIO_A = 21, LABEL = 22, RADIO_B = 23, RADIO_C = 24, OTHER_RADIO = 25;

const CDialogTemplate& Template() {
    static const CDialogTemplate dialog{9,
                                        "",
                                        "",
                                        10,
                                        10,
                                        {{LIST, CControlKind::List, "", {}, 0},
                                         {SEVERAL, CControlKind::MultiList, "", {}, 0},
                                         {COMBO, CControlKind::Combo, "", {}, 0},
                                         {EDIT, CControlKind::Edit, "", {}, 0},
                                         {OTHER_EDIT, CControlKind::Edit, "", {}, 0},
                                         {CHECK, CControlKind::Check, "", {}, 0},
                                         {DATE, CControlKind::Date, "", {}, 0},
                                         {RADIO_A, CControlKind::Radio, "", {}, CONTROL_GROUP},
                                         {LABEL, CControlKind::Label, "", {}, 0},
                                         {RADIO_B, CControlKind::Radio, "", {}, 0},
                                         {RADIO_C, CControlKind::Radio, "", {}, 0},
                                         {OTHER_RADIO, CControlKind::Radio, "", {}, CONTROL_GROUP}}};
    return dialog;
}

class CExchangeDialog : public CDialog {
public:
    CExchangeDialog() { InitModalIndirect(&Template()); }
    BOOL OnInitDialog() override {
        for (const UINT nId : {LIST, SEVERAL, COMBO})
            for (const char* text : {"zk10", "ZK1", "图幅"})
                State(nId).m_arEntries.push_back({text});
        return TRUE;
    }
    CControl& State(UINT nId) const { return *GetDlgItem(nId)->GetControl(); }

    std::function<void(CDataExchange*)> m_exchange;

protected:
    void DoDataExchange(CDataExchange* pDX) override { m_exchange(pDX); }
};

// A dialog that is open while a test exchanges its values, and the message boxes that this shows.
class DataExchange : public testing::Test {
protected:
    DataExchange() {
        CMessageBoxHost host;
        host.m_show = [this](HWND, const std::wstring& strText, const std::wstring& strCaption, UINT) {
            m_strBoxes += "[" + GbkFromWide(strCaption) + "] " + GbkFromWide(strText);
            return IDOK;
        };
        SetMessageBoxHost(host);
    }
    ~DataExchange() override { SetMessageBoxHost({}); }

    void Open(std::function<void(CDataExchange*)> exchange, std::function<void()> body) {
        m_dialog.m_exchange = std::move(exchange);
        const CDialogScript script([&](CModalWindow&) { body(); });
        m_dialog.DoModal();
    }
    // Whether an edit field with this text is taken; else which control is at fault.
    UINT Refuses(const char* text) {
        m_dialog.State(EDIT).m_strText = text;
        m_dialog.GetControl()->m_nFocus = 0;
        m_strBoxes.clear();
        return m_dialog.UpdateData(TRUE) ? 0 : m_dialog.GetControl()->m_nFocus;
    }
    std::string Selected(UINT nId) const {
        std::string texts;
        for (const CListEntry& entry : m_dialog.State(nId).m_arEntries)
            if (entry.m_bSelected) texts += entry.m_strText;
        return texts;
    }

    CExchangeDialog m_dialog;
    std::string m_strBoxes;
};

} // namespace

TEST_F(DataExchange, FailsForAControlThatIsNotThereAndLeavesTheRest) {
    int nCheck = 5;
    CString text = "former";
    Open(
        [&](CDataExchange* pDX) {
            DDX_Check(pDX, 999, nCheck);
            DDX_Text(pDX, EDIT, text);
        },
        [&] {
            EXPECT_EQ(Refuses("new"), 999U);
            EXPECT_EQ(nCheck, 5);
            EXPECT_STREQ(text, "former");
            EXPECT_EQ(m_strBoxes, "");
            m_dialog.OnCommand(ID_OK, BN_CLICKED);
            EXPECT_NE(m_dialog.ContinueModal(), FALSE); // refused values keep it open
        });
}

TEST_F(DataExchange, WritesADoubleWithUpToFifteenDigits) {
    double value = 0.0;
    const auto shown = [&](double number) {
        value = number;
        m_dialog.UpdateData(FALSE);
        return std::string(m_dialog.State(EDIT).m_strText);
    };
    Open([&](CDataExchange* pDX) { DDX_Text(pDX, EDIT, value); },
         [&] {
             EXPECT_EQ(shown(0.0), "0");
             EXPECT_EQ(shown(12.35), "12.35");
             EXPECT_EQ(shown(-12.34), "-12.34");
             EXPECT_EQ(shown(0.1 + 0.2), "0.3");
             EXPECT_EQ(shown(1.0 / 3.0), "0.333333333333333");
             EXPECT_EQ(shown(1e15), "1e+15");
             EXPECT_EQ(shown(std::numeric_limits<double>::quiet_NaN()), "nan");
         });
}

TEST_F(DataExchange, ReadsADouble) {
    double value = 0.0;
    const auto read = [&](const char* text) { return Refuses(text) ? -999.0 : value; };
    Open([&](CDataExchange* pDX) { DDX_Text(pDX, EDIT, value); },
         [&] {
             EXPECT_EQ(read("12.35"), 12.35);
             EXPECT_EQ(read("-.5"), -0.5);
             EXPECT_EQ(read("+7"), 7.0);
             EXPECT_EQ(read("1e-3"), 0.001);
             EXPECT_EQ(read(" \t80 "), 80.0);
             EXPECT_EQ(m_strBoxes, "");
         });
}

TEST_F(DataExchange, RefusesTextThatIsNoNumberAndKeepsTheVariable) {
    double value = 2.5;
    Open([&](CDataExchange* pDX) { DDX_Text(pDX, EDIT, value); },
         [&] {
             for (const char* text : {"", " ", "abc", "1.2.3", "12 kPa", "1,5", "nan", "inf", "-inf", "1e999",
                                      "0x10", "+-1", "１"}) {
                 EXPECT_EQ(Refuses(text), EDIT) << text;
                 EXPECT_EQ(m_strBoxes, "[Tervo] 请输入一个数。") << text;
             }
             EXPECT_EQ(value, 2.5);
         });
}

TEST_F(DataExchange, RefusesTextThatIsNoWholeNumberOfThirtyTwoBits) {
    int value = 2;
    Open([&](CDataExchange* pDX) { DDX_Text(pDX, EDIT, value); },
         [&] {
             m_dialog.UpdateData(FALSE);
             EXPECT_STREQ(m_dialog.State(EDIT).m_strText, "2");
             EXPECT_EQ(Refuses(" -2147483648 "), 0U);
             EXPECT_EQ(value, std::numeric_limits<int>::min());
             for (const char* text : {"", "2.0", "1e3", "2147483648", "two"}) {
                 EXPECT_EQ(Refuses(text), EDIT) << text;
                 EXPECT_EQ(m_strBoxes, "[Tervo] 请输入一个整数。") << text;
             }
             EXPECT_EQ(value, std::numeric_limits<int>::min());
         });
}

TEST_F(DataExchange, RefusesAWholeNumberOutOfRangeAfterOneBox) {
    int value = 0;
    Open(
        [&](CDataExchange* pDX) {
            DDX_Text(pDX, EDIT, value);
            DDV_MinMaxInt(pDX, value, 1, 100000);
        },
        [&] {
            EXPECT_EQ(m_dialog.UpdateData(FALSE), TRUE); // what is shown is not judged
            EXPECT_EQ(Refuses("1"), 0U);
            EXPECT_EQ(Refuses("100000"), 0U);
            EXPECT_EQ(Refuses("0"), EDIT);
            EXPECT_EQ(m_strBoxes, "[Tervo] 请输入 1 到 100000 之间的整数。");
            EXPECT_EQ(Refuses("100001"), EDIT);
            value = 0;
            EXPECT_EQ(Refuses("none"), EDIT);
            EXPECT_EQ(m_strBoxes, "[Tervo] 请输入一个整数。");
        });
}

TEST_F(DataExchange, TakesNothingBehindTheFieldAtFault) {
    double first = 1.0, second = 2.0;
    Open(
        [&](CDataExchange* pDX) {
            DDX_Text(pDX, EDIT, first);
            DDX_Text(pDX, OTHER_EDIT, second);
        },
        [&] {
            m_dialog.State(OTHER_EDIT).m_strText = "bad";
            EXPECT_EQ(Refuses("10"), OTHER_EDIT);
            EXPECT_EQ(first, 10.0);
            m_dialog.State(OTHER_EDIT).m_strText = "20";
            EXPECT_EQ(Refuses("bad"), EDIT);
            EXPECT_EQ(second, 2.0);
        });
}

TEST_F(DataExchange, RadioGivesThePlaceInTheGroupLeavingOutOtherControls) {
    int value = 2;
    Open([&](CDataExchange* pDX) { DDX_Radio(pDX, RADIO_A, value); },
         [&] {
             const auto marks = [&] {
                 std::string states;
                 for (const UINT nId : {RADIO_A, RADIO_B, RADIO_C, OTHER_RADIO})
                     states += std::to_string(m_dialog.State(nId).m_nCheck);
                 return states;
             };
             m_dialog.State(OTHER_RADIO).m_nCheck = 1;
             m_dialog.UpdateData(FALSE);
             EXPECT_EQ(marks(), "0011");
             value = 0;
             m_dialog.UpdateData(FALSE);
             EXPECT_EQ(marks(), "1001");
             m_dialog.State(RADIO_A).m_nCheck = 0;
             m_dialog.State(RADIO_B).m_nCheck = 1;
             EXPECT_EQ(m_dialog.UpdateData(TRUE), TRUE);
             EXPECT_EQ(value, 1);
             m_dialog.State(RADIO_B).m_nCheck = 0;
             m_dialog.UpdateData(TRUE);
             EXPECT_EQ(value, -1);
             m_dialog.UpdateData(FALSE);
             EXPECT_EQ(marks(), "0001");
         });
}

TEST_F(DataExchange, StringsOfListAndComboSelectTheEntryThatBeginsWithTheText) {
    for (const UINT nId : {LIST, COMBO}) {
        CString text;
        const auto selects = [&](const char* wanted) {
            text = wanted;
            m_dialog.UpdateData(FALSE);
            return Selected(nId);
        };
        Open(
            [&](CDataExchange* pDX) {
                if (nId == LIST) return DDX_LBString(pDX, nId, text);
                DDX_CBString(pDX, nId, text);
            },
            [&] {
                EXPECT_EQ(selects(""), "");
                EXPECT_EQ(selects("zk1"), "zk10");
                EXPECT_EQ(selects("图"), "图幅");
                EXPECT_EQ(selects("ZK10"), "zk10");
                EXPECT_EQ(selects("ZK2"), "zk10"); // none: as it was
                EXPECT_EQ(selects(""), "zk10");
            });
    }
}

TEST_F(DataExchange, StringsOfListAndComboGiveTheSelectedEntry) {
    CString list = "former", combo = "former";
    Open(
        [&](CDataExchange* pDX) {
            DDX_LBString(pDX, LIST, list);
            DDX_CBString(pDX, COMBO, combo);
        },
        [&] {
            m_dialog.State(LIST).m_arEntries[1].m_bSelected = true;
            m_dialog.UpdateData(TRUE);
            EXPECT_STREQ(list, "ZK1");
            EXPECT_STREQ(combo, "");
            m_dialog.State(COMBO).m_arEntries[2].m_bSelected = true;
            m_dialog.UpdateData(TRUE);
            EXPECT_STREQ(combo, "图幅");
        });
}

TEST_F(DataExchange, DateFieldGivesTheBeginningOfItsDay) {
    CTime value(2024, 3, 9, 17, 30, 0);
    Open([&](CDataExchange* pDX) { DDX_DateTimeCtrl(pDX, DATE, value); },
         [&] {
             m_dialog.UpdateData(FALSE);
             EXPECT_EQ(m_dialog.State(DATE).m_date, value.GetDate());
             EXPECT_EQ(m_dialog.UpdateData(TRUE), TRUE);
             EXPECT_EQ(value, CTime(2024, 3, 9, 0, 0, 0));
         });
}

TEST_F(DataExchange, FailsForAControlOfAnotherKind) {
    CString text;
    CTime time;
    Open([&](CDataExchange* pDX) { DDX_CBString(pDX, EDIT, text); },
         [&] { EXPECT_EQ(m_dialog.UpdateData(FALSE), FALSE); });
    Open([&](CDataExchange* pDX) { DDX_DateTimeCtrl(pDX, COMBO, time); },
         [&] { EXPECT_EQ(m_dialog.UpdateData(TRUE), FALSE); });
}
