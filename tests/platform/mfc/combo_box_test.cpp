#include "platform/mfc/combo_box.h"

#include <gtest/gtest.h>

namespace {

class CTestCombo : public CComboBox {
public:
    CTestCombo(std::initializer_list<const char*> texts) {
        auto control = std::make_shared<CControl>();
        control->m_kind = CControlKind::Combo;
        Attach(control);
        for (const char* text : texts)
            AddString(text);
    }
};

} // namespace

TEST(ComboBox, KeepsTextsInTheOrderInWhichTheyWerePut) {
    CTestCombo combo{"A4", "A0"};
    EXPECT_EQ(combo.AddString("A3"), 2);
    EXPECT_EQ(combo.InsertString(0, "A1"), 0);
    EXPECT_EQ(combo.GetCount(), 4);
    std::string texts;
    for (int i = 0; i < combo.GetCount(); ++i) {
        CString text;
        combo.GetLBText(i, text);
        texts += text;
    }
    EXPECT_EQ(texts, "A1A4A0A3");
}

TEST(ComboBox, LeavesTheTextAloneForABadIndex) {
    const CTestCombo combo{"A4"};
    CString text = "former";
    combo.GetLBText(1, text);
    combo.GetLBText(CB_ERR, text);
    EXPECT_STREQ(text, "former");
}

TEST(ComboBox, HasAtMostOneSelectedEntry) {
    CTestCombo combo{"A3", "A4"};
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(combo.SetCurSel(0), 0);
    EXPECT_EQ(combo.SetCurSel(1), 1);
    EXPECT_EQ(combo.SetCurSel(2), CB_ERR);
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(combo.SetCurSel(-1), CB_ERR);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
}

TEST(ComboBox, LosesEntriesAndSelectionByAReset) {
    CTestCombo combo{"A3", "A4"};
    combo.SetCurSel(1);
    combo.ResetContent();
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
}

TEST(ComboBox, AnswersNothingWithoutAWindow) {
    CComboBox combo;
    EXPECT_EQ(combo.AddString("a"), CB_ERR);
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(combo.SetCurSel(0), CB_ERR);
    combo.ResetContent();
}
