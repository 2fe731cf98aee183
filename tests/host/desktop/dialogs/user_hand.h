#pragma once
// Dialogs on a screen that nobody sees, and the keys and the mouse of their user.

#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QMessageBox>

#include <functional>
#include <string>

#include "platform/mfc/modal_window.h"

/// Starts Qt with windows but without a display, once.
void StartWidgets();

/// Keys go to the widget that has the focus, as they would at a desk.
class CUserHand {
public:
    /// The window before the user.
    static QWidget& Window();
    /// The widget of a control, which the user can see.
    static QWidget& Widget(UINT nId);
    /// The number of the control that has the focus; 0 when none has.
    static UINT Focused();

    static void Key(int nKey, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Letters of a keyboard.
    static void Type(const char* text);
    /// What an input method makes of them, in GBK.
    static void Commit(const char* text);
    /// Tab until the control has the focus; fails the test when it never gets it.
    static void TabTo(UINT nId);

    static void Click(UINT nId);
    static void ClickEntry(UINT nId, int nRow, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void DoubleClickEntry(UINT nId, int nRow);
};

/// Shows the dialog on the screen and lets the user work in it; the dialog's result. One left open is
/// cancelled.
int WorkIn(CModalWindow& dialog, const std::function<void()>& user);

/// Lets the user answer the next message box, while the action runs that brings it up.
void WithBox(const std::function<void()>& action, const std::function<void(QMessageBox& box)>& user);

/// What differs between the widgets on the screen and the controls of the model; empty when nothing does.
std::string DifferencesOnScreen(const CModalWindow& dialog);
