#include "ui/dialog_templates.h"

#include <gtest/gtest.h>

#include <set>

#include "host/console/dialog_presenter.h"
#include "host/console/message_boxes.h"
#include "platform/windows/code_page.h"
#include "tests/host/console/line_answers.h"
#include "tests/ui/template_dialogs.h"
#include "ui/resources.h"

namespace {

// Dialogs on the module's templates, played by the lines of a script.
class DialogTemplates : public testing::Test {
protected:
    DialogTemplates() {
        SetDialogPresenter(&m_presenter);
        SetMessageBoxHost(ConsoleMessageBoxes(m_answers));
    }
    ~DialogTemplates() override {
        SetMessageBoxHost({});
        SetDialogPresenter(nullptr);
    }

    // The lines are GBK, like all texts of a test.
    int Run(CModalWindow& window, const std::vector<std::string>& lines) {
        for (const std::string& line : lines)
            m_answers.m_lines.push_back(ToUtf8(line));
        const int nResult = window.DoModal();
        EXPECT_EQ(m_answers.m_strFailure, "");
        return nResult;
    }
    int RunPage(CPropertyPage& page, const std::vector<std::string>& lines) {
        CPropertySheet sheet("页");
        sheet.AddPage(&page);
        return Run(sheet, lines);
    }
    void ExpectPrinted(const std::string& text) const { EXPECT_EQ(m_answers.m_strPrinted, ToUtf8(text)); }

    CLineAnswers m_answers{{}};
    CConsoleDialogPresenter m_presenter{m_answers};
    CTemporaryResourceOverride m_resources{ModuleResources()};
};

} // namespace

TEST_F(DialogTemplates, SelectionPageHasItsControls) {
    std::string shown;
    for (const CControlTemplate& control : ModuleResources()->FindDialog(11)->m_arControls) {
        EXPECT_EQ(control.m_nFlags & (CONTROL_DISABLED | CONTROL_HIDDEN), 0) << control.m_nId;
        const bool bLabel = control.m_kind == CControlKind::Label;
        shown += (bLabel ? "label" : std::to_string(control.m_nId)) + " " + control.m_strCaption + "\n";
    }
    EXPECT_EQ(shown, "label 钻孔编号\n1010 \nlabel 取样编号\n1011 \nlabel 有*号表示已出图\n"
                     "1062 删除*号(&D)\n1063 生成所有图\n1556 编 辑 模 板\n");
}

TEST_F(DialogTemplates, LieInsideTheirDialogWithoutOverlapsUnderNumbersOfTheirOwn) {
    for (const CDialogTemplate& dialog : ModuleResources()->m_arDialogs) {
        SCOPED_TRACE(dialog.m_nId);
        std::set<UINT> numbers;
        const auto& controls = dialog.m_arControls;
        for (auto control = controls.begin(); control != controls.end(); ++control) {
            SCOPED_TRACE(std::to_string(control->m_nId) + " " + control->m_strCaption);
            const CControlPlace& at = control->m_place;
            EXPECT_EQ(control->m_kind == CControlKind::Label, control->m_nId == IDC_STATIC);
            EXPECT_TRUE(control->m_nId == IDC_STATIC || numbers.insert(control->m_nId).second);
            EXPECT_TRUE(at.x >= 0 && at.y >= 0 && at.cx > 0 && at.cy > 0);
            EXPECT_TRUE(at.x + at.cx <= dialog.m_cx && at.y + at.cy <= dialog.m_cy);
            for (auto other = controls.begin(); other != control; ++other) {
                const CControlPlace& by = other->m_place;
                EXPECT_TRUE(at.x >= by.x + by.cx || by.x >= at.x + at.cx || at.y >= by.y + by.cy ||
                            by.y >= at.y + at.cy)
                    << other->m_nId << " " << other->m_strCaption;
            }
        }
    }
}

TEST_F(DialogTemplates, PagesAreOfOneSize) {
    const CDialogTemplate first = GenPageTemplate();
    for (const CDialogTemplate& page : {OptPageTemplate(), ZSPageTemplate()}) {
        EXPECT_EQ(page.m_cx, first.m_cx);
        EXPECT_EQ(page.m_cy, first.m_cy);
    }
}

TEST_F(DialogTemplates, AdoptedValuesShowThreeColumnsWithTheirUnits) {
    CSaveDialog dialog;
    EXPECT_EQ(Run(dialog, {"show", "cancel"}), 2);
    ExpectPrinted("dialog 14 \"选择采用值入库\"\n"
                  "65535 label enabled \"试验方法\" \"\"\n"
                  "1049 edit enabled \"\" \"固结不排水剪\"\n"
                  "65535 label enabled \"计算值\" \"\"\n"
                  "65535 label enabled \"C\" \"\"\n"
                  "1043 edit enabled \"\" \"0.666666666666667\"\n"
                  "65535 label enabled \"kPa\" \"\"\n"
                  "65535 label enabled \"φ\" \"\"\n"
                  "1044 edit enabled \"\" \"\"\n"
                  "65535 label enabled \"°\" \"\"\n"
                  "65535 label enabled \"C'\" \"\"\n"
                  "1051 edit enabled \"\" \"\"\n"
                  "65535 label enabled \"kPa\" \"\"\n"
                  "65535 label enabled \"φ'\" \"\"\n"
                  "1052 edit enabled \"\" \"\"\n"
                  "65535 label enabled \"°\" \"\"\n"
                  "65535 label enabled \"图解值\" \"\"\n"
                  "65535 label enabled \"C\" \"\"\n"
                  "1041 edit enabled \"\" \"\"\n"
                  "65535 label enabled \"kPa\" \"\"\n"
                  "65535 label enabled \"φ\" \"\"\n"
                  "1042 edit enabled \"\" \"\"\n"
                  "65535 label enabled \"°\" \"\"\n"
                  "65535 label enabled \"C'\" \"\"\n"
                  "1047 edit enabled \"\" \"\"\n"
                  "65535 label enabled \"kPa\" \"\"\n"
                  "65535 label enabled \"φ'\" \"\"\n"
                  "1048 edit enabled \"\" \"\"\n"
                  "65535 label enabled \"°\" \"\"\n"
                  "65535 label enabled \"采用值\" \"\"\n"
                  "65535 label enabled \"C\" \"\"\n"
                  "1045 edit enabled \"\" \"10.5\"\n"
                  "65535 label enabled \"kPa\" \"\"\n"
                  "65535 label enabled \"φ\" \"\"\n"
                  "1046 edit enabled \"\" \"20\"\n"
                  "65535 label enabled \"°\" \"\"\n"
                  "65535 label enabled \"C'\" \"\"\n"
                  "1053 edit enabled \"\" \"\"\n"
                  "65535 label enabled \"kPa\" \"\"\n"
                  "65535 label enabled \"φ'\" \"\"\n"
                  "1054 edit enabled \"\" \"\"\n"
                  "65535 label enabled \"°\" \"\"\n"
                  "1059 radio enabled \"同计算值\" 0\n"
                  "1060 radio enabled \"同图解值\" 0\n"
                  "1061 radio enabled \"手动修正\" 1\n"
                  "1 button enabled \"确定\" \"\"\n"
                  "2 button enabled \"取消\" \"\"\n");
}

TEST_F(DialogTemplates, AdoptedValuesAreRefusedUntilTheyAreNumbers) {
    CSaveDialog dialog;
    EXPECT_EQ(
        Run(dialog, {"set 1045 12.35", "set 1046 steep", "ok", "set 1046 \"\"", "", "set 1046 -3e1", ""}), 1);
    ExpectPrinted("[Tervo] 请输入一个数。\n[Tervo] 请输入一个数。\n");
    EXPECT_EQ(dialog.m_dAdoptC, 12.35);
    EXPECT_EQ(dialog.m_dAdoptPhi, -30.0);
    EXPECT_EQ(dialog.m_nSource, 2);
}

TEST_F(DialogTemplates, SourceOfAdoptedValuesIsOneOfThree) {
    CSaveDialog dialog;
    EXPECT_EQ(Run(dialog, {"check 1060", "ok"}), 1);
    EXPECT_EQ(dialog.m_nSource, 1);
    EXPECT_EQ(Run(dialog, {"check 1059", "check 1059", "ok"}), 1);
    EXPECT_EQ(dialog.m_nSource, 0);
    EXPECT_EQ(dialog.m_dAdoptC, 0.666666666666667); // through the field's text
}

TEST_F(DialogTemplates, FieldDisabledByAHandlerTakesNoTextAnyMore) {
    CSaveDialog dialog;
    m_answers.m_lines = {"check 1059", "set 1045 1", "ok"};
    EXPECT_EQ(dialog.DoModal(), 2);
    EXPECT_EQ(m_answers.m_status, EXIT_NO_SUCH_ANSWER);
    EXPECT_EQ(m_answers.m_strFailure.substr(0, 35), "dialog 14: control 1045 is disabled");
}

TEST_F(DialogTemplates, OptionsShowSheetSizesAndFramesPerRow) {
    COptionsPage page;
    EXPECT_EQ(RunPage(page, {"show", "cancel"}), 2);
    ExpectPrinted("dialog 12 \"页\"\n"
                  "page \"选项\"\n"
                  "1026 check enabled \"加外框线\" 1\n"
                  "65535 label enabled \"图幅(&S)\" \"\"\n"
                  "1028 combo enabled \"\" 5\n"
                  "    \"A0\"\n"
                  "    \"A1\"\n"
                  "    \"A2\"\n"
                  "    \"A3\"\n"
                  "  > \"A4\"\n"
                  "1027 check enabled \"生成一个dwg文件\" 0\n"
                  "65535 label enabled \"每行图框数(&N)\" \"\"\n"
                  "1058 edit enabled \"\" \"2\"\n"
                  "1 button enabled \"确定\" \"\"\n"
                  "2 button enabled \"取消\" \"\"\n");
}

TEST_F(DialogTemplates, OptionsTakeASizeAndANumberInRange) {
    COptionsPage page;
    EXPECT_EQ(RunPage(page, {"select 1028 A3", "uncheck 1026", "check 1027", "set 1058 0", "ok",
                             "set 1058 100001", "ok", "set 1058 2.5", "ok", "set 1058 100000", "ok"}),
              1);
    ExpectPrinted("[Tervo] 请输入 1 到 100000 之间的整数。\n"
                  "[Tervo] 请输入 1 到 100000 之间的整数。\n"
                  "[Tervo] 请输入一个整数。\n");
    EXPECT_STREQ(page.m_strClosedUp, "A3");
    EXPECT_STREQ(page.m_strSize, "A3");
    EXPECT_EQ(page.m_bBorder, 0);
    EXPECT_EQ(page.m_bOneDwg, 1);
    EXPECT_EQ(page.m_nPerRow, 100000);
}

TEST_F(DialogTemplates, AnnotationShowsASwitchBeforeEachField) {
    CAnnotationPage page;
    EXPECT_EQ(RunPage(page, {"show", ""}), 1);
    ExpectPrinted("dialog 13 \"页\"\n"
                  "page \"标注\"\n"
                  "1021 check enabled \"完成单位名称\" 0\n"
                  "1016 edit enabled \"\" \"一院\"\n"
                  "1022 check enabled \"试验者\" 0\n"
                  "1017 edit enabled \"\" \"\"\n"
                  "1023 check enabled \"检查者\" 0\n"
                  "1018 edit enabled \"\" \"\"\n"
                  "1024 check enabled \"日  期\" 1\n"
                  "1019 date enabled \"\" \"2024-03-09\"\n"
                  "1 button enabled \"确定\" \"\"\n"
                  "2 button enabled \"取消\" \"\"\n");
    EXPECT_EQ(page.m_tDate, CTime(2024, 3, 9, 0, 0, 0));
}

TEST_F(DialogTemplates, AnnotationTakesTextsAndADate) {
    CAnnotationPage page;
    EXPECT_EQ(RunPage(page, {"set 1019 2025-12-31", "set 1018 \"李 四\"", "uncheck 1024", "click 1"}), 1);
    EXPECT_EQ(page.m_tDate, CTime(2025, 12, 31, 0, 0, 0));
    EXPECT_STREQ(page.m_strChecker, "李 四");
    EXPECT_EQ(page.m_bDate, 0);
}

TEST_F(DialogTemplates, OneSheetTurnsThePagesOver) {
    COptionsPage options;
    CAnnotationPage annotation;
    CPropertySheet sheet("设置");
    sheet.AddPage(&options);
    sheet.AddPage(&annotation);
    EXPECT_EQ(Run(sheet, {"set 1058 0", "page 标注", "set 1058 3", "page 标注", "set 1017 王五", "page 选项",
                          "set 1058 4", "ok"}),
              1);
    ExpectPrinted("[Tervo] 请输入 1 到 100000 之间的整数。\n"); // and the page stays
    EXPECT_EQ(options.m_nPerRow, 4);
    EXPECT_STREQ(annotation.m_strTester, "王五");
}

TEST_F(DialogTemplates, OpenDialogShowsBoreholesAndCharts) {
    COpenDialog dialog;
    EXPECT_EQ(Run(dialog, {"show", "select 1055 ZK10", "dblclick 1056 试样ZK1-6"}), 1);
    ExpectPrinted("dialog 1005 \"查看三轴剪切试验成果图\"\n"
                  "65535 label enabled \"钻孔编号(&Z)\" \"\"\n"
                  "1055 list enabled \"\" 2\n"
                  "  > \"ZK1\"\n"
                  "    \"ZK10\"\n"
                  "65535 label enabled \"成果图(&T)\" \"\"\n"
                  "1056 multilist enabled \"\" 2\n"
                  "    \"试样ZK1-3和5\"\n"
                  "    \"试样ZK1-6\"\n"
                  "1 button enabled \"确定\" \"\"\n"
                  "2 button enabled \"取消\" \"\"\n");
    EXPECT_STREQ(dialog.m_strZK, "ZK10");
}
