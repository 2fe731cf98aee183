#include "host/desktop/dialogs/dialog_face.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include <algorithm>
#include <utility>

#include "host/desktop/dialogs/control_views.h"
#include "host/desktop/dialogs/gbk_text.h"
#include "platform/mfc/radio_group.h"

namespace {

// What a field of one line needs, its frame included.
int FieldHeight() {
    return std::max(QLineEdit().sizeHint().height(), QComboBox().sizeHint().height());
}

} // namespace

CDialogFace::CDialogFace(CModalWindow& window, QWidget* pFrame, CUserAct act)
    : m_window(window)
    , m_pSheet(dynamic_cast<CPropertySheet*>(&window))
    , m_act(std::move(act))
    , m_units(pFrame->fontMetrics(), FieldHeight()) {
    auto* pLayout = new QVBoxLayout(pFrame);
    pLayout->setSizeConstraint(QLayout::SetFixedSize);
    if (m_pSheet) {
        AddTabs(pLayout);
        AddButtonRow(pLayout);
    } else {
        pLayout->setContentsMargins(0, 0, 0, 0);
        AddOwnItems(pLayout);
    }
}

CDialogFace::~CDialogFace() = default;

void CDialogFace::AddTabs(QBoxLayout* pLayout) {
    m_pTabs = new QTabWidget;
    pLayout->addWidget(m_pTabs);
    for (int i = 0; i < m_pSheet->GetPageCount(); ++i) {
        CPropertyPage* const pPage = m_pSheet->GetPage(i);
        auto* const pGround = new QWidget;
        m_pTabs->addTab(pGround, FromGbk(m_pSheet->GetPageCaption(*pPage).View()));
        m_grounds[pPage] = pGround;
    }
    QObject::connect(m_pTabs, &QTabWidget::currentChanged, &m_context, [this](int nPage) {
        m_act([&] { m_pSheet->SetActivePage(m_pSheet->GetPage(nPage)); });
    });
}

void CDialogFace::AddOwnItems(QBoxLayout* pLayout) {
    m_pOwnItems = new QWidget;
    pLayout->addWidget(m_pOwnItems);
    m_grounds[&m_window] = m_pOwnItems;
}

void CDialogFace::AddButtonRow(QBoxLayout* pLayout) {
    AddOwnItems(pLayout);
    auto* pRow = new QHBoxLayout(m_pOwnItems);
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->addStretch();
}

void CDialogFace::Show() {
    if (m_pShown != PageBeforeUser()) {
        m_pShown = PageBeforeUser();
        AddViews();
        OrderTabs();
    }
    for (const auto& pView : m_arViews)
        pView->Show();
    if (!m_pTabs) return;
    const QSignalBlocker blocker(m_pTabs); // the page that the user chose may have been refused
    m_pTabs->setCurrentWidget(m_grounds.at(m_pShown));
}

void CDialogFace::AddViews() {
    m_grounds.at(m_pShown)->setMinimumSize(m_units.Place(m_pShown->GetControl()->m_place).size());
    for (CWnd* pItem : m_window.GetItems())
        if (!WidgetOf(*pItem)) AddView(*pItem);
    for (const CWnd* pItem : m_window.GetItems())
        if (pItem->GetControl()->m_kind == CControlKind::Radio) JoinRadioButtons(*pItem);
    GiveLabelsTheirFields();
}

void CDialogFace::AddView(CWnd& item) {
    CControl& control = *item.GetControl();
    m_arViews.push_back(MakeControlView(control, m_grounds.at(control.m_pParent), m_act));
    Place(*m_arViews.back());
}

void CDialogFace::Place(const CControlView& view) {
    const QRect place = m_units.Place(view.Model().m_place);
    if (m_pSheet && view.Widget()->parentWidget() == m_pOwnItems) {
        view.Widget()->setFixedSize(place.size());
        m_pOwnItems->layout()->addWidget(view.Widget());
    } else {
        view.Widget()->setGeometry(place);
    }
}

void CDialogFace::JoinRadioButtons(const CWnd& radio) {
    if (static_cast<QAbstractButton*>(WidgetOf(radio))->group()) return;
    const auto& pGroup = m_arGroups.emplace_back(std::make_unique<QButtonGroup>());
    for (const CWnd* pOther : RadioGroup(radio))
        pGroup->addButton(static_cast<QAbstractButton*>(WidgetOf(*pOther)));
}

// The mnemonic of a label is that of the control that follows it.
void CDialogFace::GiveLabelsTheirFields() {
    QLabel* pLabel = nullptr;
    for (const CWnd* pItem : m_window.GetItems()) {
        QWidget* const pWidget = WidgetOf(*pItem);
        if (pLabel && pWidget->focusPolicy() != Qt::NoFocus) pLabel->setBuddy(pWidget);
        const bool bMnemonic = pItem->GetControl()->m_strText.Find("&") >= 0;
        pLabel = bMnemonic ? qobject_cast<QLabel*>(pWidget) : nullptr;
    }
}

void CDialogFace::OrderTabs() {
    QWidget* pFormer = m_pTabs ? m_pTabs->tabBar() : nullptr;
    for (const CWnd* pItem : m_window.GetItems()) {
        QWidget* const pWidget = WidgetOf(*pItem);
        if (pWidget->focusPolicy() == Qt::NoFocus) continue;
        if (pFormer) QWidget::setTabOrder(pFormer, pWidget);
        pFormer = pWidget;
    }
}

void CDialogFace::FocusFirst() {
    for (const CWnd* pItem : m_window.GetItems()) {
        QWidget* const pWidget = WidgetOf(*pItem);
        if (!pItem->IsWindowEnabled() || !pItem->IsWindowVisible()) continue;
        if ((pWidget->focusPolicy() & Qt::TabFocus) == 0) continue;
        return pWidget->setFocus(Qt::TabFocusReason);
    }
}

void CDialogFace::FocusRefused() {
    for (CWnd* pWindow : {static_cast<CWnd*>(&m_window), PageBeforeUser()}) {
        const CWnd* const pItem = pWindow->GetDlgItem(std::exchange(pWindow->GetControl()->m_nFocus, 0U));
        if (!pItem) continue;
        WidgetOf(*pItem)->setFocus(Qt::TabFocusReason);
        if (auto* const pEdit = qobject_cast<QLineEdit*>(WidgetOf(*pItem))) pEdit->selectAll();
    }
}

CWnd* CDialogFace::PageBeforeUser() const {
    return m_pSheet ? m_pSheet->GetActivePage() : static_cast<CWnd*>(&m_window);
}

QWidget* CDialogFace::WidgetOf(const CWnd& item) const {
    for (const auto& pView : m_arViews)
        if (&pView->Model() == item.GetControl()) return pView->Widget();
    return nullptr;
}
