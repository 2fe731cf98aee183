#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// The file name of the module that is loaded when no other is named. It is sought beside the program's real
/// file, else in ../lib/tervo from there, never in the working folder.
inline constexpr const char* g_szDefaultModule = "tervo-bren.so";

/// The modules this program has loaded. Texts are UTF-8.
class CModules {
public:
    /// Loads the default module. False with a reason when it is not found or the linker refuses it.
    bool LoadDefault(std::string* pReason);
    /// The same for a module by its path, or by its name in the places of the default one.
    bool Load(const std::string& strName, std::string* pReason);
    bool Unload(const std::string& strName, std::string* pReason);
    /// Unloads what allows it, last loaded first; at the end of the program, when no drawing is left.
    void UnloadAll();

private:
    bool LoadFile(const std::filesystem::path& path, std::string* pReason);

    std::vector<std::string> m_arLoaded; // full paths, in order of loading
};
