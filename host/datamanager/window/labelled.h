#pragma once

#include <QtWidgets/QWidget>

/// The widget with a label above it, whose mnemonic goes to it.
QWidget* Labelled(const QString& strLabel, QWidget* pWidget);
