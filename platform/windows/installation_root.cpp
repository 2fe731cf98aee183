#include "platform/windows/installation_root.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace {

std::string& GivenRoot() {
    static std::string s_root;
    return s_root;
}

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string Home() {
    std::string home = Variable("HOME");
    if (!home.empty()) return home;
    std::array<char, 4096> buffer = {};
    passwd entry = {};
    passwd* found = nullptr;
    getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found);
    return found ? found->pw_dir : "/";
}

std::string RootOfEnvironment() {
    std::string root = Variable("TERVO_ROOT");
    if (!root.empty()) return root;
    const std::string data = Variable("XDG_DATA_HOME");
    return (data.empty() ? Home() + "/.local/share" : data) + "/tervo";
}

/// Does not resolve "..": behind a link only the file system can.
std::string Absolute(const std::string& path) {
    std::error_code error;
    std::string result = std::filesystem::absolute(path, error).string();
    if (error) result = path;
    while ((result.size() > 1 && result.ends_with('/')) || result.ends_with("/."))
        result.pop_back();
    return result;
}

} // namespace

void SetInstallationRoot(const std::string& utf8Root) {
    GivenRoot() = utf8Root.empty() ? utf8Root : Absolute(utf8Root);
}

std::string InstallationRoot() {
    return GivenRoot().empty() ? Absolute(RootOfEnvironment()) : GivenRoot();
}

std::string RealInstallationRoot() {
    const std::string root = InstallationRoot();
    std::array<char, PATH_MAX> real = {};
    return realpath(root.c_str(), real.data()) ? std::string(real.data()) : root;
}
