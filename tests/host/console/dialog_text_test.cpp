#include "host/console/dialog_text.h"

#include <gtest/gtest.h>

#include "platform/mfc/combo_box.h"
#include "platform/windows/code_page.h"
#include "tests/host/console/test_dialog.h"
#include "tests/platform/mfc/dialog_script.h"

namespace {

std::string Joined(const std::vector<std::string>& lines) {
    std::string joined;
    for (const std::string& line : lines)
        joined += line + "\n";
    return joined;
}

} // namespace

TEST(DialogText, WritesEveryKindOfControlInTabOrderWithItsValue) {
    CTestDialog dialog;
    std::string shown;
    const CDialogScript script([&](CModalWindow& window) {
        static_cast<CListBox*>(window.GetDlgItem(TestDialog::ONE))->ResetContent();
        static_cast<CListBox*>(window.GetDlgItem(TestDialog::SEVERAL))->SetSel(1);
        dialog.State(TestDialog::COMBO).m_arEntries.resize(2);
        static_cast<CComboBox*>(window.GetDlgItem(TestDialog::COMBO))->SetCurSel(1);
        dialog.State(TestDialog::CHECK).m_nCheck = 1;
        shown = Joined(DialogLines(window));
    });
    dialog.DoModal();
    EXPECT_EQ(shown, ToUtf8("dialog 30 \"取样\"\n"
                            "10 list enabled \"\" 0\n"
                            "11 multilist enabled \"\" 6\n"
                            "    \"1-1\"\n"
                            "  > \"*1-2\"\n"
                            "    \"all\"\n"
                            "    \"试样\"\n"
                            "    \"twin\"\n"
                            "    \"*twin\"\n"
                            "12 combo enabled \"\" 2\n"
                            "    \"1-1\"\n"
                            "  > \"*1-2\"\n"
                            "13 edit enabled \"\" \"a\"\"b\"\n"
                            "14 check enabled \"check\" 1\n"
                            "15 radio enabled \"a\" 0\n"
                            "16 radio enabled \"b\" 0\n"
                            "17 button enabled \"push\" \"\"\n"
                            "18 date enabled \"\" \"2024-12-31\"\n"
                            "19 label enabled \"two\\nlines\" \"\"\n"
                            "20 button disabled \"off\" \"\"\n"
                            "22 edit enabled \"\" \"\"\n"
                            "1 button enabled \"ok\" \"\"\n"
                            "2 button enabled \"cancel\" \"\"\n"));
}

TEST(DialogText, WritesASheetWithThePageShown) {
    const CDialogTemplate own = TestDialog::PageTemplate();
    CPropertyPage page(0U);
    page.m_psp.dwFlags = PSP_DLGINDIRECT;
    page.m_psp.pResource = &own;
    CPropertySheet sheet("sheet");
    sheet.AddPage(&page);
    std::vector<std::string> lines;
    const CDialogScript script([&](CModalWindow& window) { lines = DialogLines(window); });
    sheet.DoModal();
    ASSERT_GT(lines.size(), 4U);
    EXPECT_EQ(lines[0], "dialog 30 \"sheet\"");
    EXPECT_EQ(lines[1], ToUtf8("page \"取样\""));
    EXPECT_EQ(lines[2], "10 list enabled \"\" 0");
    EXPECT_EQ(lines.back(), ToUtf8("2 button enabled \"取消\" \"\""));
}

TEST(DialogText, NamesTheControlsThatTheUserSees) {
    CTestDialog dialog;
    const CDialogScript script(
        [](CModalWindow& window) { EXPECT_EQ(NamesOfItems(window), TestDialog::CONTROLS); });
    dialog.DoModal();
}

TEST(DialogText, QuotesATextOnOneLine) {
    EXPECT_EQ(QuotedText("a \"b\"\r\nc\nd"), "\"a \"\"b\"\"\\nc\\nd\"");
    EXPECT_EQ(QuotedText(""), "\"\"");
}
