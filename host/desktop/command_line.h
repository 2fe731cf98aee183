#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QWidget>

#include <functional>

class QCompleter;
class QLabel;
class QStringListModel;

/// The command line below the drawing: what was said last, the prompt, and the line that is typed, with the
/// lines typed before it (up and down) and the commands there are (tab).
class CCommandLine final : public QWidget {
public:
    struct CSinks {
        std::function<void(const QString& strLine)> m_fnEntered; ///< Enter was pressed; may be empty
        std::function<void()> m_fnEscape;
    };

    explicit CCommandLine(CSinks sinks, QWidget* pParent = nullptr);

    void Append(const QString& strText); ///< as it stands
    void SetPrompt(const QString& strPrompt);
    /// The words proposed as completions; empty for none.
    void SetProposals(const QStringList& arWords);
    /// Takes a key that was pressed elsewhere.
    void TakeKey(QKeyEvent* pEvent);
    /// Shows all that was said in a window of its own, or hides it.
    void ToggleTextWindow();
    /// All that was said, without the end of the last line.
    QString Text() const { return m_pTextWindow->toPlainText(); }

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    bool TakeEditKey(const QKeyEvent& event);
    void Enter();
    void Recall(int nStep);
    bool Complete();
    void PlaceProposals();

    CSinks m_sinks;
    QPlainTextEdit* m_pLastLines;
    QPlainTextEdit* m_pTextWindow;
    QLabel* m_pPrompt;
    QLineEdit* m_pEdit;
    QStringListModel* m_pProposals;
    QCompleter* m_pCompleter;
    QStringList m_arTyped;
    bool m_bLineEnded = false; // the last line shown is whole
    qsizetype m_nRecalled = 0; // the line shown of those typed; their number for a new one
};
