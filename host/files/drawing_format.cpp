#include "host/files/drawing_format.h"

#include "host/files/dwg_drawing_reader.h"
#include "host/files/dwg_drawing_writer.h"
#include "host/files/dwg_unknown.h"
#include "host/files/dxf_ascii_reader.h"
#include "host/files/dxf_binary_reader.h"
#include "host/files/dxf_read.h"
#include "host/files/dxf_write.h"
#include "platform/windows/code_page.h"

#include <algorithm>
#include <filesystem>

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool BeginsLikeDwg(std::string_view bytes) {
    return bytes.size() > 2 && bytes.starts_with("AC") && IsDigit(bytes[2]);
}

/// A text file begins with a section or a comment: with the number of either, alone on its line.
bool BeginsLikeDxf(std::string_view bytes) {
    if (bytes.starts_with(g_szDxfBinarySentinel)) return true;
    if (bytes.starts_with(g_szDxfByteOrderMark)) bytes.remove_prefix(g_szDxfByteOrderMark.size());
    constexpr std::string_view strBlanks = " \t\r";
    std::string_view line = bytes.substr(0, bytes.find('\n'));
    line.remove_prefix(std::min(line.find_first_not_of(strBlanks), line.size()));
    line = line.substr(0, line.find_last_not_of(strBlanks) + 1);
    return line == "0" || line == "999";
}

/// The entities of the format's own types that are unknown here. Those of classes are proxies for a module
/// that may yet come.
CDrawingLosses KeptTypes(const AcDbDatabase& database) {
    CDrawingLosses kept;
    for (const CDwgUnknown& kind : UnknownInDwg(database)) {
        if (!kind.m_bEntities || kind.m_nType >= g_nDwgFirstClass) continue;
        const std::string strName = GbkFromWide(kind.m_strName);
        kept[strName + (strName.empty() ? "type " : ", type ") + std::to_string(kind.m_nType)] =
            static_cast<int>(kind.m_nCount);
    }
    return kept;
}

CReadDrawing ReadDwg(std::string_view bytes, const CReadGoesOn& fnGoesOn) {
    const auto* const pBytes = reinterpret_cast<const std::uint8_t*>(bytes.data());
    std::unique_ptr<AcDbDatabase> pDatabase = DrawingOfDwg(ReadDwgFile({pBytes, bytes.size()}), fnGoesOn);
    CDrawingLosses kept = KeptTypes(*pDatabase);
    return {std::move(pDatabase), CDrawingFormat::Dwg, {}, std::move(kept)};
}

CReadDrawing ReadDxfDrawing(std::string_view bytes, const CReadGoesOn& fnGoesOn) {
    auto pDatabase = std::make_unique<AcDbDatabase>();
    CDrawingLosses losses = ReadDxf(bytes, *pDatabase, fnGoesOn);
    return {std::move(pDatabase), CDrawingFormat::Dxf, std::move(losses)};
}

CReadDrawing ReadEither(std::string_view bytes, const CReadGoesOn& fnGoesOn) {
    if (BeginsLikeDwg(bytes)) return ReadDwg(bytes, fnGoesOn);
    if (BeginsLikeDxf(bytes)) return ReadDxfDrawing(bytes, fnGoesOn);
    throw CDrawingFailure(Acad::eFilerError, bytes.empty() ? "the file is empty"
                                                           : "the file is neither a DWG nor a DXF drawing");
}

CWrittenDrawing WriteDwg(const AcDbDatabase& database) {
    const CBytes bytes = WriteDwgFile(DwgFileOf(database));
    return {std::string(bytes.begin(), bytes.end()), {}};
}

CWrittenDrawing WriteDxfDrawing(const AcDbDatabase& database, CDxfCustom custom) {
    CDxfFile file = WriteDxf(database, custom);
    return {std::move(file.m_strBytes), std::move(file.m_losses)};
}

CWrittenDrawing WriteAs(CDrawingFormat format, const AcDbDatabase& database) {
    if (format == CDrawingFormat::Dwg) return WriteDwg(database);
    return WriteDxfDrawing(database, format == CDrawingFormat::ExplodedDxf ? CDxfCustom::Exploded
                                                                           : CDxfCustom::Proxies);
}

void CheckNoneOpen(const AcDbDatabase& database) {
    for (const AcDbObjectId& id : database.ObjectIds())
        if (!CDbOpen<AcDbObject>(id))
            throw CDrawingFailure(Acad::eWasOpenForWrite,
                                  "the object #" + id.handle().Hex() + " is being changed");
}

/// What a format's own routine throws, for the user.
template <class Work>
auto Told(const Work& work) {
    try {
        return work();
    } catch (const CDrawingFailure&) {
        throw;
    } catch (const std::exception& error) {
        throw CDrawingFailure(Acad::eFilerError, ToUtf8(error.what()));
    }
}

} // namespace

std::optional<CDrawingFormat> FormatOfEnding(const std::string& utf8Path) {
    std::string ending = std::filesystem::path(utf8Path).extension().string();
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (ending == ".dwg") return CDrawingFormat::Dwg;
    if (ending == ".dxf") return CDrawingFormat::Dxf;
    return std::nullopt;
}

std::string LossesText(const CDrawingLosses& losses) {
    std::string text;
    for (const auto& [strKind, nCount] : losses)
        text += (text.empty() ? "" : "; ") + ToUtf8(strKind) + " (" + std::to_string(nCount) + ")";
    return text;
}

CReadDrawing ReadDrawing(std::string_view bytes, const CReadGoesOn& fnGoesOn) {
    return Told([&] { return ReadEither(bytes, fnGoesOn); });
}

CWrittenDrawing WriteDrawing(const AcDbDatabase& database, CDrawingFormat format) {
    CheckNoneOpen(database);
    return Told([&] { return WriteAs(format, database); });
}
