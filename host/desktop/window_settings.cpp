#include "host/desktop/window_settings.h"

bool CWindowSettings::NoteFile(const QString& strPath) {
    constexpr qsizetype nMost = 9; // one digit each in the menu
    QStringList arPaths = RecentFiles();
    if (!arPaths.isEmpty() && arPaths.front() == strPath) return false;
    arPaths.removeAll(strPath);
    arPaths.prepend(strPath);
    m_settings.setValue(u"recentFiles"_qs, arPaths.first(std::min(nMost, arPaths.size())));
    return true;
}

void CWindowSettings::SetPlaces(const QByteArray& geometry, const QByteArray& bars) {
    m_settings.setValue(u"geometry"_qs, geometry);
    m_settings.setValue(u"bars"_qs, bars);
}
