// An ini file of whatever bytes: a key that is set is read back, and the other sections are as before.

#include "platform/windows/ini_text.h"
#include "platform/windows/path.h"

#include <cstdint>
#include <cstdlib>
#include <tuple>

namespace {

using CValues = std::vector<std::tuple<std::string, std::string, std::optional<std::string>>>;

/// Each key with its value, of the first section of each name.
CValues ValuesOf(const CIniText& ini) {
    CValues values;
    for (const std::string& strSection : ini.Sections())
        for (const std::string& strKey : ini.Keys(strSection))
            values.emplace_back(strSection, strKey, ini.Value(strSection, strKey));
    return values;
}

void SetAndReadBack(CIniText ini, const std::string& strValue) {
    CValues before = ValuesOf(ini);
    if (!ini.Set("Project", "GCMC", strValue)) std::abort();
    const CIniText written(ini.Bytes());
    if (written.Value("project", "gcmc") != strValue) std::abort();
    if (ValuesOf(written) != ValuesOf(ini)) std::abort();
    ini.RemoveSection("Project");
    const auto isOfProject = [](const auto& value) { return SameFileName(std::get<0>(value), "Project"); };
    std::erase_if(before, isOfProject);
    CValues rest = ValuesOf(CIniText(ini.Bytes()));
    std::erase_if(rest, isOfProject);
    if (rest != before) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    const CIniText ini({reinterpret_cast<const char*>(pData), nSize});
    SetAndReadBack(ini, "a value");
    SetAndReadBack(ini, "值");
    return 0;
}
