#pragma once

// The suite's utility operations, fed from tervo.ini of the installation and from the project ini. Texts are
// in the code page. Buffers are the caller's: a connection text takes 1024 characters, a path 260. Each
// returns 1 on success; else 0 and an empty text. A text that does not fit, or a path that the code page
// can't write, is a failure: a cut one would name something else.

/// The connection text of the running project's database: key Connect of section Project of the project ini,
/// else ProjectConnect of tervo.ini, else made of key Database of Project. 0 while GCSY is negative.
int TVToolGetProjectConnect(char* connect);

/// Path of the common database (people), and of the configuration database.
int TVToolGetCommonDbPath(char* path);
int TVToolGetConfigDbPath(char* path);

/// The connection text for a database file; a path with ';' stands in double quotes.
int TVToolPathToConnect(const char* path, char* connect);

/// What is known of the project database.
struct CTVToolDbInfo {
    char m_szProvider[1024]; ///< provider name
};

/// The provider that the project's connection text names, else key Provider of tervo.ini.
int TVToolGetDbInfo(CTVToolDbInfo* info);

/// The installation's folder without a slash at its end; 0 when it does not exist.
int TVToolGetRootPath(char* path);

/// Paths of the project, settings and marks ini, there or not.
int TVToolGetProjectIni(char* path);
int TVToolGetSettingsIni(char* path);
int TVToolGetMarksIni(char* path);
