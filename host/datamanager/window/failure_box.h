#pragma once

#include <QtWidgets/QWidget>

/// Tells a failure in a box over the window; returns at once.
void ShowFailure(QWidget* pParent, const QString& strWhy);
