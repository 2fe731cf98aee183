#pragma once

#include <QtGui/QIcon>
#include <QtWidgets/QApplication>

/// Ties the program's windows to its desktop entry, NAME.desktop, whose name and icon a task bar shows for
/// them; the icon is the one of that name among the installed ones, if it is.
inline void UseDesktopEntry(const QString& strName) {
    QApplication::setDesktopFileName(strName);
    QApplication::setWindowIcon(QIcon::fromTheme(strName));
}
