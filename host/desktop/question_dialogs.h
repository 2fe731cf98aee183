#pragma once

#include "host/console/command_answers.h"

class QWidget;

/// Asks for a file or whether to save changes by a dialog. None for other questions, g_szEscape when the user
/// gives it up. UTF-8.
std::optional<std::string> AskQuestionByDialog(const CQuestion& question, QWidget* pParent);

/// Asks for a file to save by one of these endings (each with its dot, parted by blanks); empty when the user
/// gives it up.
std::string AskFileToSave(const std::string& strCaption, const std::string& strEndings, QWidget* pParent);
