#include "platform/acad/linetype_file.h"

#include "platform/acad/db_database.h"
#include "platform/acad/host_application.h"
#include "platform/acad/wide_names.h"
#include "platform/windows/code_page.h"

#include <charconv>
#include <cmath>
#include <fstream>
#include <iterator>

namespace {

std::wstring DecodeText(std::string_view bytes) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    const bool bMarked = bytes.substr(0, mark.size()) == mark;
    if (bMarked) bytes.remove_prefix(mark.size());
    if (!bMarked && !LooksLikeUtf8(bytes)) return WideFromGbk(bytes);
    std::wstring text;
    for (std::size_t position = 0; position < bytes.size();) {
        char32_t character = 0xFFFD;
        if (!NextUtf8(bytes, &position, &character)) {
            character = 0xFFFD;
            ++position;
        }
        text += static_cast<wchar_t>(character);
    }
    return text;
}

std::wstring_view Trimmed(std::wstring_view text) {
    const std::size_t first = text.find_first_not_of(L" \t\r");
    if (first == std::wstring_view::npos) return {};
    return text.substr(first, text.find_last_not_of(L" \t\r") - first + 1);
}

/// Takes the text up to the separator off the front.
std::wstring_view TakeUpTo(std::wstring_view& text, wchar_t separator) {
    const std::size_t end = text.find(separator);
    const std::wstring_view part = text.substr(0, end);
    text.remove_prefix(end == std::wstring_view::npos ? text.size() : end + 1);
    return part;
}

std::optional<double> Length(std::wstring_view field) {
    if (!field.empty() && field.front() == L'+') field.remove_prefix(1);
    std::string digits;
    for (const wchar_t character : field)
        digits += character < 0x80 ? static_cast<char>(character) : '?';
    double length = 0.0;
    const auto [pEnd, error] = std::from_chars(digits.data(), digits.data() + digits.size(), length);
    if (error != std::errc() || pEnd != digits.data() + digits.size() || !std::isfinite(length)) return {};
    return length;
}

std::wstring WithoutShapes(std::wstring_view line) {
    std::wstring plain;
    int depth = 0;
    for (const wchar_t character : line) {
        if (character == L'[') ++depth;
        if (depth == 0) plain += character;
        if (character == L']' && depth > 0) --depth;
    }
    return plain;
}

/// The lengths of a line `A,length,...`; empty when it is none.
std::vector<double> Dashes(std::wstring_view line) {
    const std::wstring plain = WithoutShapes(line);
    std::wstring_view rest = plain;
    if (!SameName(Trimmed(TakeUpTo(rest, L',')), L"A")) return {};
    std::vector<double> dashes;
    double total = 0.0;
    while (!rest.empty()) {
        const std::wstring_view field = Trimmed(TakeUpTo(rest, L','));
        if (field.empty()) continue; // where a shape stood
        const std::optional<double> length = Length(field);
        if (!length) return {};
        dashes.push_back(*length);
        total += std::fabs(*length);
    }
    return total > 0.0 && std::isfinite(total) ? dashes : std::vector<double>();
}

/// The next line that is neither empty nor a comment; nothing at the end.
std::optional<std::wstring_view> NextLine(std::wstring_view& rest) {
    while (!rest.empty()) {
        const std::wstring_view line = Trimmed(TakeUpTo(rest, L'\n'));
        if (!line.empty() && line.front() != L';') return line;
    }
    return {};
}

} // namespace

std::optional<CLinetypeDefinition> FindLinetype(std::string_view bytes, std::wstring_view name) {
    const std::wstring text = DecodeText(bytes);
    std::wstring_view rest = text;
    while (const std::optional<std::wstring_view> line = NextLine(rest)) {
        if (line->front() != L'*') continue;
        std::wstring_view heading = line->substr(1);
        const std::wstring_view found = Trimmed(TakeUpTo(heading, L','));
        if (!SameName(found, name)) continue;
        const std::optional<std::wstring_view> pattern = NextLine(rest);
        std::vector<double> dashes = pattern ? Dashes(*pattern) : std::vector<double>();
        if (dashes.empty()) return {};
        return CLinetypeDefinition{std::wstring(found), std::wstring(Trimmed(heading)), std::move(dashes)};
    }
    return {};
}

Acad::ErrorStatus AcDbDatabase::loadLineTypeFile(const ACHAR* linetype, const ACHAR* fileName) {
    if (!linetype || !*linetype || !fileName || !*fileName) return Acad::eInvalidInput;
    CDbOpen<AcDbLinetypeTable> table(m_idLinetypeTable, AcDb::kForWrite);
    if (!table) return table.Status();
    if (table->has(linetype)) return Acad::eDuplicateKey;
    const std::string strName = GbkFromWide(fileName);
    const std::string strPath = EditorHost() ? EditorHost()->FindFile(strName) : strName;
    std::ifstream file(ToUtf8(strPath), std::ios::binary);
    if (strPath.empty() || !file) return Acad::eFileNotFound;
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    std::optional<CLinetypeDefinition> definition = FindLinetype(bytes, linetype);
    if (!definition) return Acad::eUndefinedLineType;
    auto pRecord = std::make_unique<AcDbLinetypeTableRecord>();
    pRecord->setName(definition->m_strName.c_str());
    pRecord->SetPattern(definition->m_strDescription.c_str(), std::move(definition->m_arDashes));
    const Acad::ErrorStatus status = table->add(pRecord.get());
    if (status != Acad::eOk) return status;
    return pRecord.release()->close();
}
