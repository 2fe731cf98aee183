#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QWidget>

/// Says in the status bar what is under way, once it has taken a moment.
class CBusyNotice final : public QWidget {
public:
    CBusyNotice();
    /// Work begins; an empty text: none is under way.
    void Show(const QString& strWhat);

private:
    QLabel* m_pWhat = new QLabel;
    QProgressBar* m_pBar = new QProgressBar;
    QTimer m_delay;
};
