#include "platform/windows/find_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "platform/acad/wide_names.h"
#include "platform/windows/code_page.h"
#include "platform/windows/path.h"
#include "platform/windows/wildcards.h"

namespace {

/// The files of one search that are still to come.
struct CSearch {
    std::string m_strFolder; // UTF-8, ends with a slash, or empty
    std::deque<std::string> m_listNames;
};

struct CSearches {
    std::mutex m_mutex;
    std::map<HANDLE, std::unique_ptr<CSearch>> m_mapOpen;
};

CSearches& Searches() {
    static CSearches s_searches;
    return s_searches;
}

std::deque<std::string> MatchingNames(const std::string& folder, std::string_view pattern) {
    const std::wstring capitals = UpperName(WideFromGbk(pattern));
    std::deque<std::string> names;
    for (const char* dots : {".", ".."})
        if (FitsWildcards(capitals, WideFromGbk(dots))) names.emplace_back(dots);
    for (const std::string& name : FileNames(folder.empty() ? "." : folder))
        if (FitsWildcards(capitals, UpperName(WideFromGbk(name)))) names.push_back(name);
    return names;
}

bool IsNoFileName(std::wstring_view path) {
    return path.find_first_of(L"|<>\":") != std::wstring_view::npos;
}

std::unique_ptr<CSearch> StartSearch(std::string_view pattern) {
    if (pattern.empty() || IsNoFileName(WideFromGbk(pattern))) return nullptr;
    const std::size_t slash = LastSlash(pattern);
    const std::size_t start = slash == std::string_view::npos ? 0 : slash + 1;
    const std::string_view name = pattern.substr(start);
    auto search = std::make_unique<CSearch>();
    if (start && !ResolvePath("", pattern.substr(0, start), &search->m_strFolder)) return nullptr;
    if (start && search->m_strFolder.back() != '/') search->m_strFolder += '/';
    if (name.find_first_of("*?") != std::string_view::npos) {
        search->m_listNames = MatchingNames(search->m_strFolder, name);
        return search;
    }
    std::string found; // one file: in its own spelling
    std::string spelling;
    if (name.empty() || !ResolvePath("", pattern, &found)) return nullptr;
    const std::size_t last = found.rfind('/');
    if (!Utf8ToGbk(last == std::string::npos ? found : found.substr(last + 1), &spelling)) return nullptr;
    search->m_listNames.push_back(spelling);
    return search;
}

/// Takes the next file that is still there and whose name fits.
bool TakeNext(CSearch* search, WIN32_FIND_DATAA* data) {
    while (!search->m_listNames.empty()) {
        const std::string name = search->m_listNames.front();
        search->m_listNames.pop_front();
        std::string utf8;
        struct stat status = {};
        if (name.size() >= sizeof data->cFileName || !GbkToUtf8(name, &utf8)) continue;
        const std::string path = search->m_strFolder + utf8;
        if (stat(path.c_str(), &status) != 0) continue;
        const auto size = static_cast<std::uint64_t>(status.st_size);
        data->dwFileAttributes = S_ISDIR(status.st_mode) ? FILE_ATTRIBUTE_DIRECTORY : 0;
        if (access(path.c_str(), W_OK) != 0) data->dwFileAttributes |= FILE_ATTRIBUTE_READONLY;
        if (!data->dwFileAttributes) data->dwFileAttributes = FILE_ATTRIBUTE_NORMAL;
        data->nFileSizeHigh = static_cast<DWORD>(size >> 32);
        data->nFileSizeLow = static_cast<DWORD>(size);
        GbkCopy(data->cFileName, sizeof data->cFileName, name);
        return true;
    }
    return false;
}

char g_cNoSearch = 0; // its address is no search's

} // namespace

const HANDLE INVALID_HANDLE_VALUE = &g_cNoSearch;

HANDLE FindFirstFileA(const char* pattern, WIN32_FIND_DATAA* data) {
    std::unique_ptr<CSearch> search = StartSearch(pattern ? pattern : "");
    if (!search || !TakeNext(search.get(), data)) return INVALID_HANDLE_VALUE;
    CSearches& searches = Searches();
    const std::lock_guard<std::mutex> lock(searches.m_mutex);
    const HANDLE handle = search.get();
    searches.m_mapOpen[handle] = std::move(search);
    return handle;
}

BOOL FindNextFileA(HANDLE search, WIN32_FIND_DATAA* data) {
    CSearches& searches = Searches();
    const std::lock_guard<std::mutex> lock(searches.m_mutex);
    const auto found = searches.m_mapOpen.find(search);
    return found != searches.m_mapOpen.end() && TakeNext(found->second.get(), data);
}

BOOL FindClose(HANDLE search) {
    CSearches& searches = Searches();
    const std::lock_guard<std::mutex> lock(searches.m_mutex);
    return searches.m_mapOpen.erase(search) > 0;
}
