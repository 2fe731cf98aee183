#pragma once

#include <QtCore/QSettings>
#include <QtCore/QStringList>

/// What the window remembers from one run to the next, in the user's configuration folder.
class CWindowSettings {
public:
    CWindowSettings()
        : m_settings(QSettings::IniFormat, QSettings::UserScope, u"tervo"_qs, u"tvcad"_qs) {}

    /// The files opened and saved last, latest first.
    QStringList RecentFiles() const { return m_settings.value(u"recentFiles"_qs).toStringList(); }
    /// Puts a file first. True when it was not.
    bool NoteFile(const QString& strPath);

    bool IsDark() const { return m_settings.value(u"dark"_qs, true).toBool(); }
    void SetDark(bool bDark) { m_settings.setValue(u"dark"_qs, bDark); }

    QByteArray Geometry() const { return m_settings.value(u"geometry"_qs).toByteArray(); }
    QByteArray Bars() const { return m_settings.value(u"bars"_qs).toByteArray(); }
    void SetPlaces(const QByteArray& geometry, const QByteArray& bars);

private:
    QSettings m_settings;
};
