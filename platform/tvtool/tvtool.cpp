#include "platform/tvtool/tvtool.h"

#include <sys/stat.h>

#include <optional>
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

/// The installation as its tervo.ini stands now.
class CInstallation {
public:
    /// An empty value counts as the default.
    std::string Setting(const char* key, const char* defaultText) const {
        const std::optional<std::string> value = m_ini.Value(SECTION, key);
        return value && !value->empty() ? *value : defaultText;
    }

    /// A path below the root, or absolute, in the spelling that the file system has.
    std::string BelowRoot(const std::string& path) const {
        std::string utf8;
        std::string result;
        if (m_root.empty() || path.empty()) return result;
        ResolvePath(m_root, path, &utf8);
        Utf8ToGbk(utf8, &result);
        return result;
    }

    std::string PathOf(const char* key, const char* defaultText) const {
        return BelowRoot(Setting(key, defaultText));
    }

private:
    std::string m_root = Root();
    CProfile m_ini{m_root.empty() ? m_root : m_root + "/tervo.ini"};
};

std::string ConnectTo(const std::string& provider, const std::string& path) {
    const bool quoted = path.find(';') != std::string::npos;
    return "Provider=" + provider + ";Data Source=" + (quoted ? '"' + path + '"' : path);
}

std::string ProjectConnect(const CInstallation& installation) {
    const CProfile ini(installation.PathOf("ProjectIni", "Project.ini"));
    if (static_cast<int>(ini.Number("Project", "GCSY", -1)) < 0) return {};
    std::string connect = ini.Value("Project", "Connect").value_or("");
    if (connect.empty()) connect = installation.Setting("ProjectConnect", "");
    if (!connect.empty()) return connect;
    const std::string path = installation.BelowRoot(ini.Value("Project", "Database").value_or(""));
    return path.empty() ? path : ConnectTo(installation.Setting("Provider", DEFAULT_PROVIDER), path);
}

} // namespace

int TVToolGetProjectConnect(char* connect) {
    return Give(ProjectConnect(CInstallation()), connect, CONNECT_SIZE);
}

int TVToolGetCommonDbPath(char* path) {
    return Give(CInstallation().PathOf("CommonDb", "Data/common.db"), path, PATH_SIZE);
}

int TVToolGetConfigDbPath(char* path) {
    return Give(CInstallation().PathOf("ConfigDb", "Data/config.db"), path, PATH_SIZE);
}

int TVToolPathToConnect(const char* path, char* connect) {
    const std::string given = path ? path : "";
    return Give(given.empty() ? given : ConnectTo(DEFAULT_PROVIDER, given), connect, CONNECT_SIZE);
}

int TVToolGetDbInfo(CTVToolDbInfo* info) {
    const CInstallation installation;
    std::string provider = CConnectionText(ProjectConnect(installation)).Value("Provider");
    if (provider.empty()) provider = installation.Setting("Provider", DEFAULT_PROVIDER);
    return Give(provider, info->m_szProvider, sizeof info->m_szProvider);
}

int TVToolGetRootPath(char* path) {
    struct stat status = {};
    const bool exists = stat(InstallationRoot().c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    return Give(exists ? Root() : std::string(), path, PATH_SIZE);
}

int TVToolGetProjectIni(char* path) {
    return Give(CInstallation().PathOf("ProjectIni", "Project.ini"), path, PATH_SIZE);
}

int TVToolGetSettingsIni(char* path) {
    return Give(CInstallation().PathOf("SettingsIni", "Settings.ini"), path, PATH_SIZE);
}

int TVToolGetMarksIni(char* path) {
    return Give(CInstallation().PathOf("MarksIni", "Marks.ini"), path, PATH_SIZE);
}
