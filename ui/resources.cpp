#include "ui/resources.h"

namespace {

CDialogTemplate GenPageTemplate() {
    return {IDD_GEN_PAGE,
            "",
            "选择取样",
            260,
            190,
            {{IDC_STATIC, CControlKind::Label, "钻孔编号", {10, 8, 90, 10}, CONTROL_PLAIN},
             {IDC_ZK_LIST, CControlKind::List, "", {10, 20, 90, 130}, CONTROL_PLAIN},
             {IDC_STATIC, CControlKind::Label, "取样编号", {110, 8, 140, 10}, CONTROL_PLAIN},
             {IDC_QY_LIST, CControlKind::MultiList, "", {110, 20, 140, 130}, CONTROL_PLAIN},
             {IDC_CLEAR_MARKS, CControlKind::Button, "删除*号(&D)", {10, 160, 60, 14}, CONTROL_PLAIN},
             {IDC_ALL, CControlKind::Check, "生成所有图", {80, 162, 70, 10}, CONTROL_PLAIN},
             {IDC_EDIT_TEMPLATE, CControlKind::Button, "编 辑 模 板", {190, 160, 60, 14}, CONTROL_DISABLED}}};
}

} // namespace

HINSTANCE ModuleResources() {
    static const CModuleResources resources{{GenPageTemplate()}};
    return &resources;
}
