#include "host/console/session.h"

#include "host/console/drawing_session.h"
#include "host/files/drawing_failure.h"
#include "platform/ado/report.h"
#include "platform/windows/code_page.h"

namespace {

constexpr const char* g_pNoModule = "none";

} // namespace

CSession::CRegisteredFonts::CRegisteredFonts(CFonts::CWarning warn)
    : m_fonts(std::move(warn)) {
    SetTextMetrics(&m_fonts);
}

CSession::COpen::COpen(CCommandAnswers& answers, CModules& modules, CFonts& fonts,
                       const std::string& strRootGbk)
    : m_input(answers)
    , m_host{answers, m_input, m_drawings, modules, fonts}
    , m_editor(m_host, strRootGbk)
    , m_documents(m_host) {}

CSession::CSession(CCommandAnswers& answers, const std::string& strRootGbk)
    : m_fonts([&answers](const std::string& strText) { answers.Print(ToUtf8(strText)); })
    , m_open(std::make_unique<COpen>(answers, m_modules, m_fonts.m_fonts, strRootGbk)) {
    // The database layer's lines, such as a store given up.
    SetReportSink([&answers](const std::string& strLine) { answers.Print(ToUtf8(strLine)); });
}

CSession::~CSession() {
    EndSession(Host());
    m_open.reset();
    m_modules.UnloadAll();
    SetReportSink({});
}

std::optional<std::string> CSession::LoadModule(const std::string& strModule) {
    if (strModule == g_pNoModule) return std::nullopt;
    std::string strReason;
    const bool bDefault = strModule.empty();
    if (bDefault ? m_modules.LoadDefault(&strReason) : m_modules.Load(strModule, &strReason))
        return std::nullopt;
    Host().m_bModuleFailed = true;
    return "module " + (bDefault ? g_szDefaultModule : strModule) + " did not load: " + strReason;
}

std::optional<std::string> CSession::OpenDrawing(const std::string& strDrawing) {
    if (strDrawing.empty()) return std::nullopt;
    std::string strReason;
    try {
        OpenFirstDrawing(Host(), FindDrawingFile(strDrawing));
        return std::nullopt;
    } catch (const CDrawingFailure& failure) {
        strReason = failure.what();
    } catch (const CRunFailure& failure) { // a name that the code page lacks
        strReason = failure.what();
    }
    return strDrawing + " cannot be opened: " + strReason;
}
