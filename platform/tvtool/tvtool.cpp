#include "platform/tvtool/tvtool.h"

#include <sys/stat.h>

#include <array>
#include <string>
#include <string_view>

#include "platform/ado/connection_text.h"
#include "platform/windows/code_page.h"
#include "platform/windows/installation_root.h"
#include "platform/windows/path.h"
#include "platform/windows/profile.h"

namespace {

constexpr std::size_t CONNECT_SIZE = 1024;
constexpr std::size_t PATH_SIZE = MAX_PATH;
constexpr const char* SECTION = "TVTool";
constexpr const char* DEFAULT_PROVIDER = "SQLite";

int Give(std::string_view text, char* buffer, std::size_t size) {
    const bool fits = !text.empty() && text.size() < size;
    GbkCopy(buffer, size, fits ? text : std::string_view());
    return fits ? 1 : 0;
}

/// The root in the code page; empty when it can't be written in it.
std::string Root() {
    std::string root;
    Utf8ToGbk(InstallationRoot(), &root);
    return root;
}

std::string Value(const std::string& file, const char* section, const char* key, const char* defaultText) {
    std::array<char, CONNECT_SIZE + 1> buffer = {}; // one more, so that what is too long is noticed
    GetPrivateProfileStringA(section, key, defaultText, buffer.data(), static_cast<DWORD>(buffer.size()),
                             file.c_str());
    return buffer.data();
}

/// Of tervo.ini; an empty value counts as the default.
std::string Setting(const char* key, const char* defaultText) {
    const std::string root = Root();
    const std::string value =
        root.empty() ? std::string() : Value(root + "/tervo.ini", SECTION, key, defaultText);
    return value.empty() ? defaultText : value;
}

/// A path below the root, or absolute, in the spelling that the file system has.
std::string BelowRoot(const std::string& path) {
    const std::string root = Root();
    std::string utf8;
    std::string result;
    if (root.empty() || path.empty()) return result;
    ResolvePath(root, path, &utf8);
    Utf8ToGbk(utf8, &result);
    return result;
}

std::string PathOf(const char* key, const char* defaultText) {
    return BelowRoot(Setting(key, defaultText));
}

std::string ConnectTo(const std::string& provider, const std::string& path) {
    const bool quoted = path.find(';') != std::string::npos;
    return "Provider=" + provider + ";Data Source=" + (quoted ? '"' + path + '"' : path);
}

std::string ProjectConnect() {
    const std::string ini = PathOf("ProjectIni", "Project.ini");
    if (static_cast<int>(GetPrivateProfileIntA("Project", "GCSY", -1, ini.c_str())) < 0) return {};
    std::string connect = Value(ini, "Project", "Connect", "");
    if (connect.empty()) connect = Setting("ProjectConnect", "");
    if (!connect.empty()) return connect;
    const std::string path = BelowRoot(Value(ini, "Project", "Database", ""));
    return path.empty() ? std::string() : ConnectTo(Setting("Provider", DEFAULT_PROVIDER), path);
}

} // namespace

int TVToolGetProjectConnect(char* connect) {
    return Give(ProjectConnect(), connect, CONNECT_SIZE);
}

int TVToolGetCommonDbPath(char* path) {
    return Give(PathOf("CommonDb", "Data/common.db"), path, PATH_SIZE);
}

int TVToolGetConfigDbPath(char* path) {
    return Give(PathOf("ConfigDb", "Data/config.db"), path, PATH_SIZE);
}

int TVToolPathToConnect(const char* path, char* connect) {
    const std::string given = path ? path : "";
    return Give(given.empty() ? given : ConnectTo(DEFAULT_PROVIDER, given), connect, CONNECT_SIZE);
}

int TVToolGetDbInfo(CTVToolDbInfo* info) {
    std::string provider = CConnectionText(ProjectConnect()).Value("Provider");
    if (provider.empty()) provider = Setting("Provider", DEFAULT_PROVIDER);
    return Give(provider, info->m_szProvider, sizeof info->m_szProvider);
}

int TVToolGetRootPath(char* path) {
    struct stat status = {};
    const bool exists = stat(InstallationRoot().c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    return Give(exists ? Root() : std::string(), path, PATH_SIZE);
}

int TVToolGetProjectIni(char* path) {
    return Give(PathOf("ProjectIni", "Project.ini"), path, PATH_SIZE);
}

int TVToolGetSettingsIni(char* path) {
    return Give(PathOf("SettingsIni", "Settings.ini"), path, PATH_SIZE);
}

int TVToolGetMarksIni(char* path) {
    return Give(PathOf("MarksIni", "Marks.ini"), path, PATH_SIZE);
}
