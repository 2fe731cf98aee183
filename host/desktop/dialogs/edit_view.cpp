#include "host/desktop/dialogs/edit_view.h"

#include <QtGui/QPalette>
#include <QtGui/QValidator>
#include <QtWidgets/QLineEdit>

#include "host/desktop/dialogs/gbk_text.h"
#include "platform/mfc/user_actions.h"

namespace {

class CCodePageValidator : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& strText, int& /*nPosition*/) const override {
        return IsInCodePage(strText) ? Acceptable : Invalid;
    }
};

// What stands in a greyed field is there to be read.
QPalette ReadablePalette(QPalette palette) {
    QColor color = palette.color(QPalette::Active, QPalette::Text);
    color.setAlphaF(0.65F);
    palette.setColor(QPalette::Disabled, QPalette::Text, color);
    return palette;
}

} // namespace

CEditView::CEditView(CControl& control, QWidget* pParent, CUserAct act)
    : CControlView(control, new QLineEdit(pParent), std::move(act))
    , m_pEdit(static_cast<QLineEdit*>(Widget())) {
    m_pEdit->setPalette(ReadablePalette(m_pEdit->palette()));
    m_pEdit->setValidator(new CCodePageValidator(m_pEdit));
    QObject::connect(m_pEdit, &QLineEdit::textEdited, Context(),
                     [this](const QString& strText) { Act([&] { UserSetText(Handle(), ToGbk(strText)); }); });
}

// What stands there already is left alone, and with it the cursor.
void CEditView::ShowValue() {
    const QString strText = FromGbk(Model().m_strText.View());
    if (m_pEdit->text() != strText) m_pEdit->setText(strText);
    m_pEdit->setReadOnly(Model().m_bReadOnly);
}
