#pragma once
// How the module's dialogs are laid out.

#include "platform/mfc/dialog_template.h"

/// The pages "选择取样", "选项" and "标注"; the buttons that close them are the sheet's.
CDialogTemplate GenPageTemplate();
CDialogTemplate OptPageTemplate();
CDialogTemplate ZSPageTemplate();
/// "选择采用值入库"
CDialogTemplate SaveTemplate();
/// "查看三轴剪切试验成果图"
CDialogTemplate OpenTemplate();
