#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// The file name of the module that is loaded when no other is named.
inline constexpr const char* g_szDefaultModule = "tervo-bren.so";

/// Where a module of that name lies: as given (from the working folder), else beside the program's real file,
/// else in ../lib/tervo from there. Empty when there is none.
std::filesystem::path FindModule(const std::string& strName);

/// The modules this program has loaded. Texts are UTF-8.
class CModules {
public:
    /// False with a reason when the module is not found or the linker refuses it.
    bool Load(const std::string& strName, std::string* pReason);
    bool Unload(const std::string& strName, std::string* pReason);
    /// Unloads what allows it, last loaded first; at the end of the program, when no drawing is left.
    void UnloadAll();

private:
    std::vector<std::string> m_arLoaded; // full paths, in order of loading
};
