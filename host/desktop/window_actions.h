#pragma once

#include <QtCore/QStringList>

#include <functional>
#include <map>
#include <string_view>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

/// What the window does by itself, without a command.
enum class CWindowDeed {
    Export,
    PrintPreview,
    Print,
    SelectAll,
    ZoomExtents,
    ZoomIn,
    ZoomOut,
    PanLeft,
    PanRight,
    PanUp,
    PanDown,
    TextWindow,
    DarkBackground,
    NextDrawing,
    PreviousDrawing,
    CommandHelp,
};

/// The menus and the toolbar: every command of the host, every command of the modules, and the window's own
/// deeds.
class CWindowActions {
public:
    struct CSinks {
        std::function<void(const QString& strCommandLine)> m_fnStart;
        std::function<void(CWindowDeed deed)> m_fnDo;
        std::function<void(const QString& strPath)> m_fnOpen; ///< a recent file
    };

    CWindowActions(QMainWindow& window, CSinks sinks);

    /// The files opened and saved last, latest first.
    void SetRecentFiles(const QStringList& arPaths);
    /// Takes over the commands that modules have registered now, if they are others than before.
    void TakeModuleCommands();
    QAction* Deed(CWindowDeed deed) const { return m_mapDeeds.at(deed); }

private:
    QMenu& Menu(const char* szTitle);
    void AddTable();
    void AddButton(QAction& action, const char* szIcon);
    void AddModuleCommand(const QString& strName, const QString& strGroup);

    QMainWindow& m_window;
    CSinks m_sinks;
    std::map<std::string_view, QMenu*> m_mapMenus;
    std::map<CWindowDeed, QAction*> m_mapDeeds;
    QMenu* m_pRecent = nullptr;
    QToolBar* m_pToolBar;
    QToolBar* m_pModuleBar;
    QStringList m_arModuleCommands;
};

/// Whether a command of the host begins by asking for entities, so that those selected may be its first word.
bool TakesSelection(std::string_view strCommand);
