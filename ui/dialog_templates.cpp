#include "ui/dialog_templates.h"

#include "platform/mfc/window.h"
#include "ui/resources.h"

namespace {

constexpr int PAGE_WIDTH = 260, PAGE_HEIGHT = 190; // one size for all that share a sheet

CControlTemplate Label(const char* caption, CControlPlace place) {
    return {IDC_STATIC, CControlKind::Label, caption, place, CONTROL_PLAIN};
}

CControlTemplate OkButton(int x, int y) {
    return {ID_OK, CControlKind::Button, "确定", {x, y, 50, 14}, CONTROL_DEFAULT | CONTROL_GROUP};
}

CControlTemplate CancelButton(int x, int y) {
    return {ID_CANCEL, CControlKind::Button, "取消", {x, y, 50, 14}, CONTROL_PLAIN};
}

// The edit fields of one column of strength values, from top to bottom.
struct CStrengthFields {
    UINT m_nC, m_nPhi, m_nCE, m_nPhiE;
};

void AddStrengthColumn(CDialogTemplate* dialog, int x, const char* caption, const CStrengthFields& fields) {
    struct CRow {
        const char* m_name;
        UINT m_nId;
        const char* m_unit;
    };
    const CRow rows[] = {{"C", fields.m_nC, "kPa"},
                         {"φ", fields.m_nPhi, "°"},
                         {"C'", fields.m_nCE, "kPa"},
                         {"φ'", fields.m_nPhiE, "°"}};
    auto& controls = dialog->m_arControls;
    controls.push_back(Label(caption, {x, 32, 84, 10}));
    int y = 46;
    for (const CRow& row : rows) {
        controls.push_back(Label(row.m_name, {x, y + 2, 12, 10}));
        controls.push_back({row.m_nId, CControlKind::Edit, "", {x + 14, y, 50, 12}, CONTROL_PLAIN});
        controls.push_back(Label(row.m_unit, {x + 68, y + 2, 16, 10}));
        y += 18;
    }
}

} // namespace

CDialogTemplate GenPageTemplate() {
    return {IDD_GEN_PAGE,
            "",
            "选择取样",
            PAGE_WIDTH,
            PAGE_HEIGHT,
            {Label("钻孔编号", {10, 8, 90, 10}),
             {IDC_ZK_LIST, CControlKind::List, "", {10, 20, 90, 120}, CONTROL_PLAIN},
             Label("取样编号", {110, 8, 140, 10}),
             {IDC_QY_LIST, CControlKind::MultiList, "", {110, 20, 140, 120}, CONTROL_PLAIN},
             Label("有*号表示已出图", {110, 144, 140, 10}),
             {IDC_CLEAR_MARKS, CControlKind::Button, "删除*号(&D)", {10, 160, 60, 14}, CONTROL_PLAIN},
             {IDC_ALL, CControlKind::Check, "生成所有图", {80, 162, 70, 10}, CONTROL_PLAIN},
             {IDC_EDIT_TEMPLATE, CControlKind::Button, "编 辑 模 板", {190, 160, 60, 14}, CONTROL_PLAIN}}};
}

CDialogTemplate OptPageTemplate() {
    return {IDD_OPT_PAGE,
            "",
            "选项",
            PAGE_WIDTH,
            PAGE_HEIGHT,
            {{IDC_FRAME_BORDER, CControlKind::Check, "加外框线", {10, 12, 110, 10}, CONTROL_PLAIN},
             Label("图幅(&S)", {10, 32, 60, 10}),
             {IDC_SHEET_SIZE, CControlKind::Combo, "", {74, 30, 50, 12}, CONTROL_PLAIN},
             {IDC_ONE_DWG, CControlKind::Check, "生成一个dwg文件", {10, 52, 110, 10}, CONTROL_PLAIN},
             Label("每行图框数(&N)", {10, 72, 60, 10}),
             {IDC_PER_ROW, CControlKind::Edit, "", {74, 70, 50, 12}, CONTROL_PLAIN}}};
}

CDialogTemplate ZSPageTemplate() {
    return {IDD_ZS_PAGE,
            "",
            "标注",
            PAGE_WIDTH,
            PAGE_HEIGHT,
            {{IDC_SHOW_UNIT, CControlKind::Check, "完成单位名称", {10, 12, 74, 10}, CONTROL_PLAIN},
             {IDC_UNIT, CControlKind::Edit, "", {88, 10, 160, 12}, CONTROL_PLAIN},
             {IDC_SHOW_TESTER, CControlKind::Check, "试验者", {10, 32, 74, 10}, CONTROL_PLAIN},
             {IDC_TESTER, CControlKind::Edit, "", {88, 30, 80, 12}, CONTROL_PLAIN},
             {IDC_SHOW_CHECKER, CControlKind::Check, "检查者", {10, 52, 74, 10}, CONTROL_PLAIN},
             {IDC_CHECKER, CControlKind::Edit, "", {88, 50, 80, 12}, CONTROL_PLAIN},
             {IDC_SHOW_DATE, CControlKind::Check, "日  期", {10, 72, 74, 10}, CONTROL_PLAIN},
             {IDC_DATE, CControlKind::Date, "", {88, 70, 80, 12}, CONTROL_PLAIN}}};
}

CDialogTemplate SaveTemplate() {
    CDialogTemplate dialog{IDD_SAVE,
                           "",
                           "选择采用值入库",
                           304,
                           162,
                           {Label("试验方法", {10, 12, 40, 10}),
                            {IDC_METHOD, CControlKind::Edit, "", {54, 10, 140, 12}, CONTROL_PLAIN}}};
    AddStrengthColumn(&dialog, 10, "计算值", {IDC_CALC_C, IDC_CALC_PHI, IDC_CALC_CE, IDC_CALC_PHIE});
    AddStrengthColumn(&dialog, 110, "图解值", {IDC_GRAPH_C, IDC_GRAPH_PHI, IDC_GRAPH_CE, IDC_GRAPH_PHIE});
    AddStrengthColumn(&dialog, 210, "采用值", {IDC_ADOPT_C, IDC_ADOPT_PHI, IDC_ADOPT_CE, IDC_ADOPT_PHIE});
    const std::initializer_list<CControlTemplate> choice = {
        {IDC_FROM_CALC, CControlKind::Radio, "同计算值", {10, 122, 84, 10}, CONTROL_GROUP},
        {IDC_FROM_GRAPH, CControlKind::Radio, "同图解值", {110, 122, 84, 10}, CONTROL_PLAIN},
        {IDC_BY_HAND, CControlKind::Radio, "手动修正", {210, 122, 84, 10}, CONTROL_PLAIN},
        OkButton(190, 142),
        CancelButton(244, 142)};
    dialog.m_arControls.insert(dialog.m_arControls.end(), choice);
    return dialog;
}

CDialogTemplate OpenTemplate() {
    return {IDD_OPEN,
            "",
            "查看三轴剪切试验成果图",
            260,
            184,
            {Label("钻孔编号(&Z)", {10, 8, 90, 10}),
             {IDC_OPEN_ZK_LIST, CControlKind::List, "", {10, 20, 90, 130}, CONTROL_PLAIN},
             Label("成果图(&T)", {110, 8, 140, 10}),
             {IDC_OPEN_CHART_LIST, CControlKind::MultiList, "", {110, 20, 140, 130}, CONTROL_PLAIN},
             OkButton(146, 162),
             CancelButton(200, 162)}};
}
