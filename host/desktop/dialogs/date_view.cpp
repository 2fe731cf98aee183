#include "host/desktop/dialogs/date_view.h"

#include <QtWidgets/QDateEdit>

#include "platform/mfc/time.h"
#include "platform/mfc/user_actions.h"

namespace {

QDate ToQt(std::chrono::year_month_day date) {
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

std::chrono::year_month_day FromQt(QDate date) {
    return {std::chrono::year(date.year()), std::chrono::month(static_cast<unsigned>(date.month())),
            std::chrono::day(static_cast<unsigned>(date.day()))};
}

} // namespace

CDateView::CDateView(CControl& control, QWidget* pParent, CUserAct act)
    : CControlView(control, new QDateEdit(pParent), std::move(act))
    , m_pDate(static_cast<QDateEdit*>(Widget())) {
    m_pDate->setCalendarPopup(true);
    m_pDate->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    m_pDate->setMinimumDate(QDate(CTime::FIRST_YEAR, 1, 1));
    QObject::connect(m_pDate, &QDateEdit::dateChanged, Context(),
                     [this](QDate date) { Act([&] { UserSetDate(Handle(), FromQt(date)); }); });
}

void CDateView::ShowValue() {
    if (m_pDate->date() != ToQt(Model().m_date)) m_pDate->setDate(ToQt(Model().m_date));
}
