#pragma once

#include <QtWidgets/QApplication>

/// What a new dialog or box stands before: the dialog or box that has the user now, else the main window.
inline QWidget* WindowInFront(QWidget* pMainWindow) {
    QWidget* const pModal = QApplication::activeModalWidget();
    return pModal ? pModal : pMainWindow;
}
