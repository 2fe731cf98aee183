#pragma once

#include "host/console/answers.h"
#include "platform/windows/message_box.h"

/// Shows a message box on the terminal as one line and takes its answer, if it asks, from the next line of
/// the script: `ok`, `cancel`, `yes`, `no`. The texts are UTF-8; the lowest four bits of nStyle tell the
/// buttons. The number of the button pressed: 1 OK, 2 cancel, 6 yes, 7 no. When no answer, or none that the
/// box has, comes the run fails, and the box is cancelled, or answered by no when it has no cancel.
int AnswerMessageBox(CAnswers& answers, const std::string& strCaption, const std::string& strText,
                     UINT nStyle);

/// The host's part of message boxes in a scripted run; answers outlives its registration.
CMessageBoxHost ConsoleMessageBoxes(CAnswers& answers);
