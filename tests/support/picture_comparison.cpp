#include "tests/support/picture_comparison.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {
/// The ink of one colour, dot by dot and row by row: 0 paper, 1 full.
class CInk {
public:
    CInk(const QImage& image, int nShift)
        : m_nWidth(image.width())
        , m_nHeight(image.height()) {
        m_arInk.reserve(static_cast<std::size_t>(m_nWidth) * static_cast<std::size_t>(m_nHeight));
        for (int y = 0; y < m_nHeight; y++)
            for (int x = 0; x < m_nWidth; x++)
                m_arInk.push_back(1.0F - static_cast<float>(image.pixel(x, y) >> nShift & 0xFFU) / 255.0F);
    }
    /// Each dot becomes the mean over nDots dots in both directions, twice: near ink counts more than far.
    void Spread(int nDots) {
        for (int nPass = 0; nPass < 2; nPass++) {
            for (int y = 0; y < m_nHeight; y++)
                SpreadLine(At(0, y), 1, m_nWidth, nDots);
            for (int x = 0; x < m_nWidth; x++)
                SpreadLine(At(x, 0), m_nWidth, m_nHeight, nDots);
        }
    }
    float operator()(int x, int y) const { return m_arInk[At(x, y)]; }

private:
    std::size_t At(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_nWidth) + static_cast<std::size_t>(x);
    }
    void SpreadLine(std::size_t nFirst, int nStep, int nLength, int nDots) {
        std::vector<float> arSums{0.0F}; // of the dots up to each
        for (int i = 0; i < nLength; i++)
            arSums.push_back(arSums.back() + m_arInk[nFirst + static_cast<std::size_t>(i * nStep)]);
        for (int i = 0; i < nLength; i++) {
            const int nFrom = std::max(0, i - nDots / 2);
            const int nTo = std::min(nLength, nFrom + nDots);
            m_arInk[nFirst + static_cast<std::size_t>(i * nStep)] =
                (arSums[static_cast<std::size_t>(nTo)] - arSums[static_cast<std::size_t>(nFrom)]) /
                static_cast<float>(nDots);
        }
    }

    int m_nWidth, m_nHeight;
    std::vector<float> m_arInk;
};

bool SamePaper(const QImage& one, const QImage& other) {
    return !one.isNull() && one.size() == other.size() && one.dotsPerMeterX() == other.dotsPerMeterX();
}
} // namespace

CPictureDifference ComparePictures(const QImage& one, const QImage& other) {
    if (!SamePaper(one, other)) return {1.0};
    CPictureDifference difference;
    const double dDotsPerMm = one.dotsPerMeterX() / 1000.0;
    const int nReach = static_cast<int>(std::lround(dDotsPerMm));
    for (const int nShift : {0, 8, 16}) { // blue, green, red
        CInk ink(one, nShift), otherInk(other, nShift);
        ink.Spread(nReach);
        otherInk.Spread(nReach);
        for (int y = 0; y < one.height(); y++)
            for (int x = 0; x < one.width(); x++) {
                const double dInk = std::abs(ink(x, y) - otherInk(x, y));
                if (dInk > difference.m_dInk) difference = {dInk, x / dDotsPerMm, y / dDotsPerMm};
            }
    }
    return difference;
}
