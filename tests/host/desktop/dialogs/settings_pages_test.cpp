// The pages of sheet options and annotations on the screen, beside the same pages answered by a script.

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/mfc/property_sheet.h"
#include "tests/host/desktop/dialogs/module_dialogs.h"
#include "ui/opt_page.h"
#include "ui/page_settings.h"
#include "ui/zs_page.h"

namespace {

struct CSettingsSheet : CPropertySheet {
    CSettingsSheet()
        : CPropertySheet("设置") {
        AddPage(&m_options);
        AddPage(&m_annotation);
    }
    COptPage m_options;
    CZSPage m_annotation;
};

class SettingsPagesOnScreen : public CModuleDialogTest {
protected:
    SettingsPagesOnScreen() { Store(); }
    static void Store() {
        std::filesystem::remove(g_strSettingsIni.GetString());
        WritePageNumber(g_settingOneFile, 0);
        WritePageText(g_settingDate, "2024年3月9日");
    }
    static std::string Settings() {
        std::ostringstream text;
        text << std::ifstream(g_strSettingsIni.GetString()).rdbuf();
        return text.str();
    }
    void ExpectSame(const std::vector<std::string>& lines, const std::function<void()>& user) {
        CSettingsSheet scripted;
        const COutcome outcome = Script(scripted, lines);
        const std::string strSettings = Settings();
        Store();
        EXPECT_EQ(ByHand(m_sheet, user), outcome);
        EXPECT_EQ(Settings(), strSettings);
    }

    CSettingsSheet m_sheet;
};

} // namespace

TEST_F(SettingsPagesOnScreen, StoreTheOptionsGivenByTheKeyboardAlone) {
    ExpectSame({"uncheck 1026", "select 1028 A2", "check 1027", "set 1058 12"}, [] {
        EXPECT_EQ(CUserHand::Focused(), IDC_FRAME_BORDER);
        CUserHand::Key(Qt::Key_Space);
        CUserHand::Key(Qt::Key_S, Qt::AltModifier);
        EXPECT_EQ(CUserHand::Focused(), IDC_SHEET_SIZE);
        CUserHand::Key(Qt::Key_Up);
        CUserHand::Key(Qt::Key_Up);
        CUserHand::Key(Qt::Key_Tab);
        EXPECT_EQ(CUserHand::Focused(), IDC_ONE_DWG);
        EXPECT_FALSE(CUserHand::Widget(IDC_PER_ROW).isEnabled());
        CUserHand::Key(Qt::Key_Space);
        CUserHand::Key(Qt::Key_N, Qt::AltModifier);
        EXPECT_EQ(CUserHand::Focused(), IDC_PER_ROW);
        CUserHand::Type("12");
    });
    EXPECT_STREQ(m_sheet.m_options.m_strSheetSize, "A2");
    EXPECT_EQ(m_sheet.m_options.m_nPerRow, 12);
}

TEST_F(SettingsPagesOnScreen, StoreTheAnnotationGivenByTheKeyboardAlone) {
    ExpectSame({"page 标注", "uncheck 1021", "set 1016 勘察院", "set 1017 A", "set 1019 2025-12-31"}, [&] {
        CUserHand::Key(Qt::Key_Tab, Qt::ControlModifier); // to the next page
        EXPECT_EQ(m_sheet.GetActivePage(), &m_sheet.m_annotation);
        CUserHand::TabTo(IDC_SHOW_UNIT);
        CUserHand::Key(Qt::Key_Space);
        CUserHand::Key(Qt::Key_Tab);
        CUserHand::Commit("勘察院");
        CUserHand::TabTo(IDC_TESTER);
        CUserHand::Type("A");
        CUserHand::TabTo(IDC_DATE);
        CUserHand::Type("20251231");
    });
    EXPECT_STREQ(m_sheet.m_annotation.m_strUnit, "勘察院");
    EXPECT_STREQ(m_sheet.m_annotation.m_strDate, "2025年12月31日");
}

TEST_F(SettingsPagesOnScreen, ANumberOutOfRangeKeepsThePageAndGetsTheFocus) {
    WorkIn(m_sheet, [&] {
        CUserHand::Click(IDC_ONE_DWG);
        CUserHand::TabTo(IDC_PER_ROW);
        CUserHand::Type("0");
        CUserHand::Key(Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(Boxes(), "[请输入 1 到 100000 之间的整数。]");
        EXPECT_EQ(m_sheet.GetActivePage(), &m_sheet.m_options);
        EXPECT_EQ(CUserHand::Focused(), IDC_PER_ROW);
        CUserHand::Type("4");
        CUserHand::Key(Qt::Key_Return);
        EXPECT_FALSE(m_sheet.ContinueModal());
    });
    EXPECT_EQ(m_sheet.m_options.m_nPerRow, 4);
}

TEST_F(SettingsPagesOnScreen, StoreNothingAtEscape) {
    const std::string strBefore = Settings();
    EXPECT_EQ(WorkIn(m_sheet,
                     [] {
                         CUserHand::Key(Qt::Key_Space);
                         CUserHand::Key(Qt::Key_Escape);
                     }),
              ID_CANCEL);
    EXPECT_EQ(Settings(), strBefore);
}
