#include "tests/robustness/small_disk.h"

#include <sys/mount.h>

namespace {
constexpr const char* g_pFiller = "filler";
constexpr std::size_t g_nPiece = 4096;
} // namespace

CSmallDisk::CSmallDisk(std::size_t nMegabytes)
    : m_bMounted(nMegabytes > 0 && mount("tmpfs", m_folder.Path().c_str(), "tmpfs", MS_NODEV | MS_NOSUID,
                                         ("size=" + std::to_string(nMegabytes) + "m").c_str()) == 0) {}

CSmallDisk::~CSmallDisk() {
    if (m_bMounted) umount2(m_folder.Path().c_str(), MNT_DETACH);
}

void CSmallDisk::Fill(std::size_t nFree) const {
    const std::string strPiece(g_nPiece, 'x');
    std::ofstream filler(Path(g_pFiller), std::ios::binary | std::ios::app);
    while (filler << strPiece << std::flush)
        continue;
    filler.close();
    const std::size_t nFilled = std::filesystem::file_size(Path(g_pFiller));
    std::filesystem::resize_file(Path(g_pFiller), nFilled > nFree ? nFilled - nFree : 0);
}

void CSmallDisk::Empty() const {
    std::filesystem::remove(Path(g_pFiller));
}
