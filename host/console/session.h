#pragma once

#include "host/console/command_editor.h"
#include "host/console/host_documents.h"
#include "host/files/registered_drawing_files.h"
#include "host/plot/fonts.h"

#include <memory>

/// What the commands of a run work in, from its first drawing to the end: fonts, modules, drawings and the
/// registered services of the platform. At its end the drawings close as they are and the modules go. Needs
/// Qt's graphics started; dialogs and message boxes are the program's to register.
class CSession {
public:
    /// strRootGbk is the installation's root; the answers outlive the session.
    CSession(CCommandAnswers& answers, const std::string& strRootGbk);
    ~CSession();
    CSession(const CSession&) = delete;
    CSession& operator=(const CSession&) = delete;

    CHost& Host() { return m_open->m_host; }

    /// Loads the module that the program was called with: empty for the default one, "none" for none. The
    /// reason, naming it, when it does not load.
    std::optional<std::string> LoadModule(const std::string& strModule);
    /// Opens the drawing that the program was called with, in place of the first one; none for an empty path.
    /// The reason, naming it, when it can't be opened.
    std::optional<std::string> OpenDrawing(const std::string& strDrawing);

private:
    /// The fonts that measure and paint are the text metrics while they live.
    class CRegisteredFonts {
    public:
        explicit CRegisteredFonts(CFonts::CWarning warn);
        ~CRegisteredFonts() { SetTextMetrics(nullptr); }
        CRegisteredFonts(const CRegisteredFonts&) = delete;
        CRegisteredFonts& operator=(const CRegisteredFonts&) = delete;
        CFonts m_fonts;
    };

    /// What goes before the modules do: the code of the drawings' entities is in them.
    struct COpen {
        COpen(CCommandAnswers& answers, CModules& modules, CFonts& fonts, const std::string& strRootGbk);
        CDrawings m_drawings;
        CCommandInput m_input;
        CHost m_host;
        CCommandEditor m_editor;
        CHostDocuments m_documents;
    };

    CRegisteredFonts m_fonts;
    CRegisteredDrawingFiles m_files;
    CModules m_modules;
    std::unique_ptr<COpen> m_open;
};
