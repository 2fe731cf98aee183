#include "host/desktop/dialogs/label_view.h"

#include <QtWidgets/QLabel>

#include "tests/host/desktop/dialogs/placed_dialog_test.h"

namespace {

using LabelView = CPlacedDialogTest;

} // namespace

TEST_F(LabelView, ShowsTheLinesOfItsCaptionWithoutTheirCarriageReturns) {
    Work([] {
        EXPECT_EQ(dynamic_cast<QLabel&>(CUserHand::Widget(TestDialog::LABEL)).text(),
                  QStringLiteral("two\nlines"));
    });
}

TEST_F(LabelView, TakesNoCaptionForMarkup) {
    for (CControlTemplate& control : m_dialog.m_template.m_arControls)
        if (control.m_nId == TestDialog::LABEL) control.m_strCaption = "<b>两</b>";
    Work([] {
        const auto& label = dynamic_cast<QLabel&>(CUserHand::Widget(TestDialog::LABEL));
        EXPECT_EQ(label.text(), QStringLiteral("<b>两</b>"));
        EXPECT_EQ(label.textFormat(), Qt::PlainText);
    });
}
