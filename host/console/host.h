#pragma once

#include "host/console/command_input.h"
#include "host/console/drawings.h"
#include "host/console/modules.h"

class CFonts;

/// What a command of the host works on: one run of the program.
struct CHost {
    CCommandAnswers& m_answers;
    CCommandInput& m_input;
    CDrawings& m_drawings;
    CModules& m_modules;
    CFonts& m_fonts;
    bool m_bQuit = false;         ///< QUIT ran: the run is over
    bool m_bModuleFailed = false; ///< a module did not load: the run ends with 4 if nothing else stops it

    /// The current document, for a command that needs one.
    AcApDocument& Document() const {
        if (!m_drawings.CurrentDocument()) RefuseAnswer("no drawing is open");
        return *m_drawings.CurrentDocument();
    }
    AcDbDatabase& Drawing() const { return *Document().database(); }
    void Print(const std::string& strLine) const { m_answers.Print(strLine); }
};
