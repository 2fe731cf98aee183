// The layouts of the module's dialogs on the screen, from small type to large.

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyleOption>

#include "platform/mfc/property_sheet.h"
#include "tests/host/desktop/dialogs/module_dialogs.h"
#include "ui/br_open_dlg.h"
#include "ui/bren_dlg.h"
#include "ui/dlg_save.h"
#include "ui/opt_page.h"
#include "ui/zs_page.h"

namespace {

// What a button leaves for its caption beside its mark, or inside its frame.
QRect CaptionPlace(const QAbstractButton& button) {
    QStyle::SubElement element = QStyle::SE_PushButtonContents;
    if (qobject_cast<const QCheckBox*>(&button)) element = QStyle::SE_CheckBoxContents;
    if (qobject_cast<const QRadioButton*>(&button)) element = QStyle::SE_RadioButtonContents;
    QStyleOptionButton option;
    option.initFrom(&button);
    return button.style()->subElementRect(element, &option, &button);
}

bool IsCut(const QWidget& widget, const QRect& place, const QString& strCaption, int nFlags) {
    const QSize text = widget.fontMetrics().size(nFlags, strCaption);
    return text.width() > place.width() || text.height() > place.height();
}

bool IsCaptionCut(const QWidget& widget) {
    if (const auto* pButton = qobject_cast<const QAbstractButton*>(&widget))
        return IsCut(widget, CaptionPlace(*pButton), pButton->text(), Qt::TextShowMnemonic);
    const auto* const pLabel = qobject_cast<const QLabel*>(&widget);
    return pLabel &&
           IsCut(widget, pLabel->contentsRect(), pLabel->text(), pLabel->buddy() ? Qt::TextShowMnemonic : 0);
}

struct CPlacedWidget {
    std::string m_strName;
    const QWidget* m_pWidget;
    QRect m_place; ///< in the window
};

std::vector<CPlacedWidget> VisibleControls() {
    const QWidget& window = CUserHand::Window();
    std::vector<CPlacedWidget> controls;
    for (const QWidget* pWidget : window.findChildren<QWidget*>()) {
        if (!pWidget->isVisible()) continue;
        const std::string strNumber = pWidget->objectName().toStdString();
        bool bControl = false;
        pWidget->objectName().toUInt(&bControl);
        if (bControl)
            controls.push_back(
                {strNumber, pWidget, {pWidget->mapTo(&window, QPoint(0, 0)), pWidget->size()}});
    }
    return controls;
}

/// What is wrong with the layout before the user, a line each; empty when nothing is.
std::string LayoutFaults() {
    const std::vector<CPlacedWidget> controls = VisibleControls();
    EXPECT_FALSE(controls.empty());
    std::string faults;
    for (auto it = controls.begin(); it != controls.end(); ++it) {
        if (IsCaptionCut(*it->m_pWidget)) faults += it->m_strName + " is cut\n";
        if (!CUserHand::Window().rect().contains(it->m_place)) faults += it->m_strName + " stands outside\n";
        for (auto itOther = it + 1; itOther != controls.end(); ++itOther)
            if (it->m_place.intersects(itOther->m_place))
                faults += it->m_strName + " overlaps " + itOther->m_strName + "\n";
    }
    return faults;
}

class ModuleLayouts : public CModuleDialogTest, public testing::WithParamInterface<int> {
protected:
    ModuleLayouts() {
        StartWidgets();
        m_former = QApplication::font();
        QFont font = m_former;
        font.setPointSize(GetParam());
        QApplication::setFont(font);
    }
    ~ModuleLayouts() override { QApplication::setFont(m_former); }

    static void ExpectNoFaults(CModalWindow& dialog) {
        WorkIn(dialog, [] { EXPECT_EQ(LayoutFaults(), ""); });
    }
    static void ExpectNoFaultsOn(CPropertyPage& page) {
        CPropertySheet sheet("页");
        sheet.AddPage(&page);
        ExpectNoFaults(sheet);
    }

    QFont m_former;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Points, ModuleLayouts, testing::Range(7, 21), testing::PrintToStringParamName());

TEST_P(ModuleLayouts, ShowTheSelectionSheetWhole) {
    AddSample("1", "1-1");
    CBRENDlg sheet("生成三轴剪切试验成果图");
    sheet.m_nGCSY = GCSY;
    ExpectNoFaults(sheet);
}

TEST_P(ModuleLayouts, ShowTheAdoptedValuesWhole) {
    CDLGSAVE dialog;
    dialog.m_strMethod = "固结不排水剪";
    ExpectNoFaults(dialog);
}

TEST_P(ModuleLayouts, ShowTheStoredDrawingsWhole) {
    CBROpenDlg dialog;
    ExpectNoFaults(dialog);
}

TEST_P(ModuleLayouts, ShowTheSheetOptionsWhole) {
    COptPage options;
    ExpectNoFaultsOn(options);
}

TEST_P(ModuleLayouts, ShowTheAnnotationWhole) {
    CZSPage annotation;
    ExpectNoFaultsOn(annotation);
}
