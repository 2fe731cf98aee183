#pragma once
// The chunks that a proxy's picture is made of in a file: size, type and data, little-endian.

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"
#include "platform/acad/geometry.h"

/// The types of chunks that are read or written.
enum class CProxyChunkType : std::uint32_t {
    Extents = 1,
    Circle = 2,
    CircleOf3Points = 3,
    Arc = 4,
    ArcOf3Points = 5,
    Polyline = 6,
    Polygon = 7,
    Text = 10,
    StyledText = 11,
    Color = 14,
    Linetype = 18,
    Fill = 20,
    TrueColor = 22,
    PushMatrix = 29,
    PushMatrix2 = 30,
    PopMatrix = 31,
    PolylineWithNormal = 32,
    WideText = 36,
    StyledWideText = 38,
};

inline constexpr std::uint32_t g_nProxyChunkHead = 8; ///< of a chunk as of the whole: two numbers of 4 bytes

// Line types that are none of the drawing's.
inline constexpr std::uint32_t g_nProxyByLayer = 0x7FFF, g_nProxyByBlock = 0x7FFE;

/// Writes the data of a chunk.
class CProxyChunkWriter {
public:
    void Long(std::uint32_t n) { m_bits.RL(n); }
    void Real(double d);
    void Point(const AcGePoint3d& pt);
    void Vector(const AcGeVector3d& vec) { Point(AcGePoint3d(vec.x, vec.y, vec.z)); }
    void Points(const std::vector<AcGePoint3d>& arPoints); ///< with their count
    void Text(std::string_view bytes);                     ///< up to a zero

    /// False once a number was not finite, which no picture can hold.
    bool IsFinite() const { return m_bFinite; }
    CBytes Take() { return m_bits.Take(); }

private:
    CBitWriter m_bits;
    bool m_bFinite = true;
};

/// Reads the data of a chunk, which must outlive it. What is not there, and a number that is not finite,
/// makes it fail for good.
class CProxyChunkReader {
public:
    explicit CProxyChunkReader(CByteView data)
        : m_data(data)
        , m_bits(data) {}

    bool Failed() const { return m_bits.Failed(); }
    std::uint32_t Long();
    double Real();
    AcGePoint3d Point();
    AcGeVector3d Vector() { return Point().asVector(); }
    std::vector<AcGePoint3d> Points();
    std::string Text();
    std::wstring WideText();

private:
    void SkipFill(); ///< behind a text

    CByteView m_data;
    CBitReader m_bits;
};
