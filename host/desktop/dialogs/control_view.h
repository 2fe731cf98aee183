#pragma once

#include <QtWidgets/QWidget>

#include <functional>

#include "platform/mfc/window.h"

/// Does what a user's hand did, and shows what became of it.
using CUserAct = std::function<void(const std::function<void()>& action)>;

/// A control of a dialog on the screen. The model holds what it shows; the user's hand goes through the
/// model, whose handlers run as for a script.
class CControlView {
public:
    /// The widget, which gets the control's number for its name, belongs to its parent; both outlive the
    /// view.
    CControlView(CControl& control, QWidget* pWidget, CUserAct act);
    virtual ~CControlView() = default;
    CControlView(const CControlView&) = delete;
    CControlView& operator=(const CControlView&) = delete;

    /// Shows what the model holds now.
    void Show();
    QWidget* Widget() const { return m_pWidget; }
    const CControl& Model() const { return m_control; }

protected:
    /// The part of Show that the kind of control has to itself; the widget's signals are blocked.
    virtual void ShowValue() = 0;

    void Act(const std::function<void()>& action) { m_act(action); }
    /// What the widget's signals are connected with: they end with the view.
    QObject* Context() { return &m_context; }
    /// What actions are done to.
    CWnd& Handle() const { return *m_control.m_pHandle; }

private:
    CControl& m_control;
    QWidget* m_pWidget;
    CUserAct m_act;
    QObject m_context;
};
