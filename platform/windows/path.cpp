#include "platform/windows/path.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "platform/acad/wide_names.h"
#include "platform/windows/code_page.h"

namespace {

bool IsSlash(std::string_view character) {
    return character == "/" || character == "\\";
}

std::vector<std::string> Components(std::string_view path) {
    std::vector<std::string> components;
    std::string component;
    for (std::size_t i = 0; i < path.size();) {
        const int length = GbkCharLength(path.data() + i, path.data() + path.size());
        const std::string_view character = path.substr(i, static_cast<std::size_t>(length));
        i += character.size();
        if (!IsSlash(character)) {
            component += character;
        } else if (!component.empty()) {
            components.push_back(std::exchange(component, {}));
        }
    }
    if (!component.empty()) components.push_back(component);
    return components;
}

bool Exists(const std::string& utf8Path) {
    struct stat status = {};
    return stat(utf8Path.c_str(), &status) == 0;
}

/// The components as one path, UTF-8; false when a name is not of the code page.
bool Joined(const std::vector<std::string>& components, std::string* utf8Path) {
    for (const std::string& component : components) {
        std::string name;
        if (!GbkToUtf8(component, &name)) return false;
        if (!utf8Path->empty() && utf8Path->back() != '/') *utf8Path += '/';
        *utf8Path += name;
    }
    return true;
}

/// Appends one name to the path in the spelling that the folder has; false when it isn't there.
bool StepInto(const std::string& name, const std::string& utf8Name, std::string* utf8Path) {
    const std::string start = utf8Path->empty() || utf8Path->back() == '/' ? *utf8Path : *utf8Path + '/';
    *utf8Path = start + utf8Name;
    if (Exists(*utf8Path)) return true;
    for (const std::string& candidate : FileNames(start.empty() ? "." : start)) {
        std::string spelling;
        if (!SameFileName(candidate, name) || !GbkToUtf8(candidate, &spelling) || !Exists(start + spelling))
            continue;
        *utf8Path = start + spelling;
        return true;
    }
    return false;
}

} // namespace

bool ResolvePath(std::string_view base, std::string_view path, std::string* utf8) {
    const bool absolute = IsAbsolutePath(path);
    std::vector<std::string> components = absolute ? std::vector<std::string>() : Components(base);
    for (std::string& component : Components(path))
        components.push_back(std::move(component));
    const std::string start = absolute || IsAbsolutePath(base) ? "/" : "";
    std::string given = start;
    utf8->clear();
    if (!Joined(components, &given)) return false;
    // Most paths are spelled as the file system has them; only the others are walked name by name.
    if (!given.empty() && Exists(given)) {
        *utf8 = std::move(given);
        return true;
    }
    std::string result = start;
    bool exists = true;
    for (const std::string& component : components) {
        const std::string name = ToUtf8(component);
        if (exists) {
            exists = StepInto(component, name, &result);
        } else if (component == "..") { // out of a folder that is not there
            const std::size_t slash = result.rfind('/');
            result.resize(slash == std::string::npos ? 0 : slash ? slash : 1);
            exists = result.empty() || Exists(result);
        } else if (component != ".") {
            result += '/' + name;
        }
    }
    *utf8 = std::move(result);
    return exists && !utf8->empty();
}

bool IsAbsolutePath(std::string_view path) {
    return !path.empty() && IsSlash(path.substr(0, 1));
}

std::size_t LastSlash(std::string_view path) {
    std::size_t found = std::string_view::npos;
    for (std::size_t i = 0; i < path.size();) {
        const int length = GbkCharLength(path.data() + i, path.data() + path.size());
        if (IsSlash(path.substr(i, static_cast<std::size_t>(length)))) found = i;
        i += static_cast<std::size_t>(length);
    }
    return found;
}

bool CanStandInFileName(std::string_view utf8) {
    constexpr char cDelete = 0x7F;
    return !utf8.empty() && std::ranges::none_of(utf8, [](char c) {
        return static_cast<unsigned char>(c) < ' ' || c == cDelete ||
               std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
    });
}

bool SameFileName(std::string_view left, std::string_view right) {
    if (left == right) return true;
    if (IsAscii(left) != IsAscii(right)) return false;
    return SameName(WideFromGbk(left), WideFromGbk(right));
}

std::vector<std::string> FileNames(const std::string& utf8Folder) {
    std::vector<std::pair<std::wstring, std::string>> names; // a name behind its capitals
    const auto closeFolder = [](DIR* folder) { closedir(folder); };
    const std::unique_ptr<DIR, decltype(closeFolder)> folder(opendir(utf8Folder.c_str()), closeFolder);
    while (const dirent* entry = folder ? readdir(folder.get()) : nullptr) {
        const std::string_view utf8 = entry->d_name;
        std::string name;
        if (utf8 == "." || utf8 == ".." || !Utf8ToGbk(utf8, &name)) continue;
        names.emplace_back(UpperName(WideFromGbk(name)), name);
    }
    std::sort(names.begin(), names.end());
    std::vector<std::string> result;
    result.reserve(names.size());
    for (auto& [capitals, name] : names)
        result.push_back(std::move(name));
    return result;
}
