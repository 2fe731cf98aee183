#pragma once

#include <map>
#include <memory>

#include "host/desktop/dialogs/control_view.h"
#include "host/desktop/dialogs/dialog_units.h"
#include "platform/mfc/property_sheet.h"

class QBoxLayout;
class QButtonGroup;
class QTabWidget;

/// The widgets of a dialog, laid out by its template; of a sheet the pages as tabs, and the sheet's own
/// buttons in a row below.
class CDialogFace {
public:
    /// Fills pFrame, which like the window's controls outlives the face; act runs what the user does.
    CDialogFace(CModalWindow& window, QWidget* pFrame, CUserAct act);
    ~CDialogFace();
    CDialogFace(const CDialogFace&) = delete;
    CDialogFace& operator=(const CDialogFace&) = delete;

    /// Shows what the model holds now; a page's widgets are made when it first comes up.
    void Show();
    /// Gives the focus to the first control that takes it.
    void FocusFirst();
    /// Gives the focus to the field whose text was refused, if there is one.
    void FocusRefused();

private:
    void AddTabs(QBoxLayout* pLayout);
    void AddOwnItems(QBoxLayout* pLayout);
    void AddButtonRow(QBoxLayout* pLayout);

    void AddViews();
    void AddView(CWnd& item);
    void Place(const CControlView& view);
    void JoinRadioButtons(const CWnd& radio);
    void GiveLabelsTheirFields();
    void OrderTabs();

    CWnd* PageBeforeUser() const;
    QWidget* WidgetOf(const CWnd& item) const;

    CModalWindow& m_window;
    CPropertySheet* m_pSheet; ///< the window, when it is one
    CUserAct m_act;
    CDialogUnits m_units;
    QTabWidget* m_pTabs = nullptr;             ///< of a sheet
    QWidget* m_pOwnItems = nullptr;            ///< where the window's own controls stand
    std::map<const CWnd*, QWidget*> m_grounds; ///< where the controls of the window and of each page stand
    const CWnd* m_pShown = nullptr;            ///< the page, or the dialog, whose widgets were shown last
    std::vector<std::unique_ptr<CControlView>> m_arViews;
    std::vector<std::unique_ptr<QButtonGroup>> m_arGroups; ///< of the radio buttons
    QObject m_context;                                     ///< ends the tabs' signals with the face
};
