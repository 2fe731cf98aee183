#include "host/console/modules.h"

#include "platform/acad/dynamic_linker.h"

namespace fs = std::filesystem;

namespace {

fs::path ProgramFolder() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error).parent_path();
}

fs::path RealPath(const fs::path& path) {
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    return error ? fs::path() : real;
}

// A module of the suite: beside the program, else among its libraries. Empty when there is none.
fs::path FindBesideProgram(const fs::path& name) {
    const fs::path folder = ProgramFolder();
    for (const fs::path& candidate : {folder / name, folder / "../lib/tervo" / name}) {
        std::error_code error;
        if (fs::is_regular_file(candidate, error)) return RealPath(candidate);
    }
    return {};
}

fs::path FindModule(const std::string& strName) {
    std::error_code error;
    return fs::is_regular_file(strName, error) ? RealPath(strName) : FindBesideProgram(strName);
}

} // namespace

bool CModules::LoadDefault(std::string* pReason) {
    return LoadFile(FindBesideProgram(g_szDefaultModule), pReason);
}

bool CModules::Load(const std::string& strName, std::string* pReason) {
    return LoadFile(FindModule(strName), pReason);
}

bool CModules::LoadFile(const fs::path& path, std::string* pReason) {
    if (path.empty()) {
        *pReason = "there is no such file";
        return false;
    }
    if (!acrxDynamicLinker()->loadModule(path.string(), pReason)) return false;
    m_arLoaded.push_back(path.string());
    return true;
}

bool CModules::Unload(const std::string& strName, std::string* pReason) {
    const fs::path found = FindModule(strName);
    const std::string path = found.empty() ? strName : found.string();
    if (!acrxDynamicLinker()->unloadModule(path, pReason)) return false;
    std::erase(m_arLoaded, path);
    return true;
}

void CModules::UnloadAll() {
    std::string reason; // a locked module stays to the end of the process
    for (auto path = m_arLoaded.rbegin(); path != m_arLoaded.rend(); ++path)
        acrxDynamicLinker()->unloadModule(*path, &reason);
    m_arLoaded.clear();
}
