#include "host/desktop/window_actions.h"

#include "host/desktop/command_icons.h"
#include "platform/acad/command_stack.h"

#include <QtGui/QAction>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolBar>

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr const char* g_pFile = "&File";
constexpr const char* g_pEdit = "&Edit";
constexpr const char* g_pView = "&View";
constexpr const char* g_pDraw = "&Draw";
constexpr const char* g_pTools = "&Tools";
constexpr const char* g_pModules = "&Module";
constexpr const char* g_pWindow = "&Window";

/// An entry: a command line, or a deed of the window. A caption of "-" is a line between entries, one of
/// "recent" the menu of recent files.
struct CEntry {
    const char* m_pMenu;
    const char* m_pCaption;
    const char* m_pCommand = nullptr;
    std::optional<CWindowDeed> m_deed = {};
    const char* m_pKeys = "";
    const char* m_pIcon = nullptr; ///< on the toolbar too, with this icon
};

constexpr const char* g_pRecent = "recent";
constexpr const char* g_pLine = "-";

constexpr std::array g_arEntries = {
    CEntry{g_pFile, "&New", "NEW", {}, "Ctrl+N", "New"},
    CEntry{g_pFile, "Quick ne&w", "QNEW"},
    CEntry{g_pFile, "&Open...", "OPEN", {}, "Ctrl+O", "Open"},
    CEntry{g_pFile, g_pRecent},
    CEntry{g_pFile, g_pLine},
    CEntry{g_pFile, "&Save", "QSAVE", {}, "Ctrl+S", "Save"},
    CEntry{g_pFile, "Save &as...", "SAVEAS", {}, "Ctrl+Shift+S"},
    CEntry{g_pFile, "Save c&harts into the project", "SAVECHARTS"},
    CEntry{g_pFile, g_pLine},
    CEntry{g_pFile, "E&xport...", nullptr, CWindowDeed::Export, "Ctrl+E"},
    CEntry{g_pFile, "P&lot to a file...", "PLOT"},
    CEntry{g_pFile, "Print pre&view...", nullptr, CWindowDeed::PrintPreview, "Ctrl+Shift+P"},
    CEntry{g_pFile, "&Print...", nullptr, CWindowDeed::Print, "Ctrl+P", "Print"},
    CEntry{g_pFile, g_pLine},
    CEntry{g_pFile, "&Close", "CLOSE", {}, "Ctrl+W"},
    CEntry{g_pFile, "&Quit", "QUIT", {}, "Ctrl+Q"},

    CEntry{g_pEdit, "&Undo", "UNDO 1", {}, "Ctrl+Z", "Undo"},
    CEntry{g_pEdit, "&Redo", "REDO 1", {}, "Ctrl+Y", "Redo"},
    CEntry{g_pEdit, g_pLine},
    CEntry{g_pEdit, "Select &all", nullptr, CWindowDeed::SelectAll, "Ctrl+A"},
    CEntry{g_pEdit, "&Erase", "ERASE", {}, "Del", "Erase"},
    CEntry{g_pEdit, "&Move", "MOVE", {}, "", "Move"},
    CEntry{g_pEdit, "&Copy", "COPY", {}, "", "Copy"},
    CEntry{g_pEdit, "R&otate", "ROTATE"},
    CEntry{g_pEdit, "&Scale", "SCALE"},
    CEntry{g_pEdit, "M&irror", "MIRROR"},
    CEntry{g_pEdit, "E&xplode", "EXPLODE"},
    CEntry{g_pEdit, "Move &grips", "GRIP"},

    CEntry{g_pView, "Zoom &extents", nullptr, CWindowDeed::ZoomExtents, "Ctrl+0", "Extents"},
    CEntry{g_pView, "Zoom &in", nullptr, CWindowDeed::ZoomIn, "Ctrl++"},
    CEntry{g_pView, "Zoom &out", nullptr, CWindowDeed::ZoomOut, "Ctrl+-"},
    CEntry{g_pView, "&Zoom by command", "ZOOM"},
    CEntry{g_pView, g_pLine},
    CEntry{g_pView, "Pan &left", nullptr, CWindowDeed::PanLeft, "Ctrl+Left"},
    CEntry{g_pView, "Pan &right", nullptr, CWindowDeed::PanRight, "Ctrl+Right"},
    CEntry{g_pView, "Pan &up", nullptr, CWindowDeed::PanUp, "Ctrl+Up"},
    CEntry{g_pView, "Pan &down", nullptr, CWindowDeed::PanDown, "Ctrl+Down"},
    CEntry{g_pView, g_pLine},
    CEntry{g_pView, "Re&generate", "REGEN", {}, "F5"},
    CEntry{g_pView, "&Text window", nullptr, CWindowDeed::TextWindow, "F2"},
    CEntry{g_pView, "Dark &background", nullptr, CWindowDeed::DarkBackground},

    CEntry{g_pDraw, "&Line", "LINE", {}, "", "Line"},
    CEntry{g_pDraw, "&Polyline", "PLINE", {}, "", "Polyline"},
    CEntry{g_pDraw, "&Arc", "ARC", {}, "", "Arc"},
    CEntry{g_pDraw, "&Text", "TEXT", {}, "", "Text"},
    CEntry{g_pDraw, "&Insert a block", "INSERT"},
    CEntry{g_pDraw, "Add an &entity...", "ADDENTITY"},

    CEntry{g_pTools, "&List an entity", "LIST"},
    CEntry{g_pTools, "&Measure a text", "MEASURE"},
    CEntry{g_pTools, "Set a &variable", "SETVAR"},
    CEntry{g_pTools, g_pLine},
    CEntry{g_pTools, "&Dump the drawing...", "DUMP"},
    CEntry{g_pTools, "Dump a d&rag...", "DRAG"},
    CEntry{g_pTools, g_pLine},
    CEntry{g_pTools, "L&oad a module...", "LOADMODULE"},
    CEntry{g_pTools, "&Unload a module...", "UNLOADMODULE"},
    CEntry{g_pTools, "&Commands of modules", "COMMANDS"},
    CEntry{g_pTools, "Commands of the &host", nullptr, CWindowDeed::CommandHelp, "F1"},

    CEntry{g_pModules, nullptr},

    CEntry{g_pWindow, "&Next drawing", nullptr, CWindowDeed::NextDrawing, "Ctrl+Tab"},
    CEntry{g_pWindow, "&Previous drawing", nullptr, CWindowDeed::PreviousDrawing, "Ctrl+Shift+Tab"},
    CEntry{g_pWindow, "&Activate by number", "ACTIVATE"},
    CEntry{g_pWindow, "&List the drawings", "DOCUMENTS"},
};

constexpr std::array g_arOnSelections = {"ERASE", "MOVE", "COPY", "ROTATE", "SCALE", "MIRROR", "EXPLODE"};

QString Text(const char* szAscii) {
    return QString::fromLatin1(szAscii);
}

} // namespace

bool TakesSelection(std::string_view strCommand) {
    return std::find(g_arOnSelections.begin(), g_arOnSelections.end(), strCommand) != g_arOnSelections.end();
}

CWindowActions::CWindowActions(QMainWindow& window, CSinks sinks)
    : m_window(window)
    , m_sinks(std::move(sinks))
    , m_pToolBar(window.addToolBar(u"Commands"_qs))
    , m_pModuleBar(window.addToolBar(u"Module"_qs)) {
    m_pToolBar->setObjectName(u"commands"_qs); // by these names their places are kept
    m_pModuleBar->setObjectName(u"module"_qs);
    AddTable();
}

QMenu& CWindowActions::Menu(const char* szTitle) {
    QMenu*& pMenu = m_mapMenus[szTitle];
    if (!pMenu) pMenu = m_window.menuBar()->addMenu(Text(szTitle));
    return *pMenu;
}

void CWindowActions::AddTable() {
    for (const CEntry& entry : g_arEntries) {
        QMenu& menu = Menu(entry.m_pMenu);
        if (!entry.m_pCaption) continue; // filled when a module is loaded
        if (entry.m_pCaption == g_pLine) {
            menu.addSeparator();
            continue;
        }
        if (entry.m_pCaption == g_pRecent) {
            m_pRecent = menu.addMenu(u"&Recent files"_qs);
            continue;
        }
        QAction* const pAction = menu.addAction(Text(entry.m_pCaption));
        pAction->setShortcut(QKeySequence(Text(entry.m_pKeys)));
        if (entry.m_deed) m_mapDeeds[*entry.m_deed] = pAction;
        if (entry.m_pIcon) AddButton(*pAction, entry.m_pIcon);
        QObject::connect(pAction, &QAction::triggered, &m_window, [this, &entry] {
            if (entry.m_deed)
                m_sinks.m_fnDo(*entry.m_deed);
            else
                m_sinks.m_fnStart(Text(entry.m_pCommand));
        });
        if (entry.m_pCommand) pAction->setData(Text(entry.m_pCommand));
    }
}

void CWindowActions::AddButton(QAction& action, const char* szIcon) {
    action.setIcon(CommandIcon(szIcon));
    const QString strKeys = action.shortcut().toString(QKeySequence::NativeText);
    action.setToolTip(action.text().remove(u'&') + (strKeys.isEmpty() ? strKeys : u" ("_qs + strKeys + u')'));
    m_pToolBar->addAction(&action);
}

void CWindowActions::SetRecentFiles(const QStringList& arPaths) {
    m_pRecent->clear();
    m_pRecent->setEnabled(!arPaths.isEmpty());
    int nNumber = 0;
    for (const QString& strPath : arPaths) {
        QString strCaption = strPath;
        strCaption.replace(u'&', u"&&"_qs);
        QAction* const pAction = m_pRecent->addAction(u"&%1  %2"_qs.arg(++nNumber).arg(strCaption));
        QObject::connect(pAction, &QAction::triggered, &m_window,
                         [this, strPath] { m_sinks.m_fnOpen(strPath); });
    }
}

void CWindowActions::TakeModuleCommands() {
    QStringList arNames;
    for (const CRegisteredCommand& command : acedRegCmds->Commands())
        arNames << QString::fromStdWString(command.m_strGroup) + u'\n' +
                       QString::fromStdWString(command.m_strGlobalName);
    if (arNames.isEmpty()) m_pModuleBar->hide(); // an empty bar would be a handle of nothing
    if (arNames == m_arModuleCommands) return;
    m_arModuleCommands = arNames;
    qDeleteAll(Menu(g_pModules).actions()); // they leave menu and bar
    for (const QString& strBoth : arNames)
        AddModuleCommand(strBoth.section(u'\n', 1), strBoth.section(u'\n', 0, 0));
    Menu(g_pModules).setEnabled(!arNames.isEmpty());
    m_pModuleBar->setVisible(!arNames.isEmpty());
}

void CWindowActions::AddModuleCommand(const QString& strName, const QString& strGroup) {
    QAction* const pAction = Menu(g_pModules).addAction(strName);
    pAction->setToolTip(strGroup + u" "_qs + strName);
    pAction->setData(strName);
    m_pModuleBar->addAction(pAction);
    QObject::connect(pAction, &QAction::triggered, &m_window,
                     [this, strName] { m_sinks.m_fnStart(strName); });
}
