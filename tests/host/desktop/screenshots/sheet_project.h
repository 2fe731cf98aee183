#pragma once
// The demo project at the window, and the sheet of its consolidated undrained test.

#include "tests/host/desktop/desktop_user.h"
#include "tests/support/demo.h"

/// The demo project, running in an installation of its own.
class CSheetProject {
public:
    CSheetProject();
    /// A session with the chart module.
    [[nodiscard]] CDesktopStart Start() const;

private:
    CProgram m_program;
};

/// What the user does in the dialog or box that is open.
void InDialog(const CDesktopUser& user, const std::function<void()>& fn);

/// Draws the sheet at the origin and shows all of it.
void DrawSheet(const CDesktopUser& user);

/// Where the circles' envelope is picked, from the sheet's lower left corner.
constexpr QPointF g_ptEnvelope(45.5, 57.8);
/// The far end of the envelope line that is selected.
QPointF EnvelopeEnd(const CDesktopUser& user);
