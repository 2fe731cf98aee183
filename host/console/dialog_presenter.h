#pragma once

#include "host/console/answers.h"
#include "platform/mfc/modal_window.h"

/// Answers dialogs from the lines of a script. A line that cannot be done, or the end of the input, fails the
/// run and closes the dialog as by cancel, so the commands that wait for it end in their own way.
class CConsoleDialogPresenter : public CDialogPresenter {
public:
    explicit CConsoleDialogPresenter(CAnswers& answers)
        : m_answers(answers) {}

    void RunModal(CModalWindow& window) override;

private:
    /// False when the run has failed.
    bool TakeLine(CModalWindow& window);

    CAnswers& m_answers;
};
