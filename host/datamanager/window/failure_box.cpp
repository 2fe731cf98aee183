#include "host/datamanager/window/failure_box.h"

#include <QtWidgets/QMessageBox>

void ShowFailure(QWidget* pParent, const QString& strWhy) {
    auto* pBox = new QMessageBox(QMessageBox::Warning, u"tvdata"_qs, strWhy, QMessageBox::Ok, pParent);
    pBox->setTextFormat(Qt::PlainText);
    pBox->setAttribute(Qt::WA_DeleteOnClose);
    pBox->open();
}
