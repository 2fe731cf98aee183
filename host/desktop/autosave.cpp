#include "host/desktop/autosave.h"

#include "host/files/drawing_failure.h"
#include "platform/windows/file_bytes.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <map>

namespace fs = std::filesystem;

namespace {

constexpr const char* g_pLockEnding = ".lock";
constexpr const char* g_pNewLockEnding = ".new";
constexpr const char* g_pNameEnding = ".name";
constexpr const char* g_pDrawingEnding = ".dwg";
constexpr char g_cNamed = '=', g_cUntitled = '?'; // before the name

fs::path WithEnding(const fs::path& file, const char* szEnding) {
    fs::path other = file;
    return other.replace_extension(szEnding);
}

/// The run's name, with which its files' names begin.
std::string RunOf(const fs::path& file) {
    const std::string strStem = file.stem().string();
    return strStem.substr(0, strStem.find('-'));
}

/// A lock on a file; -1 when another process holds it, or the file can't be opened.
int Lock(const fs::path& file, int nFlags) {
    const int nFile = open(file.c_str(), O_RDWR | O_CLOEXEC | nFlags, 0600);
    if (nFile >= 0 && flock(nFile, LOCK_EX | LOCK_NB) == 0) return nFile;
    if (nFile >= 0) close(nFile);
    return -1;
}

/// Makes a run's lock; -1 when it can't be made. It gets its name locked, so that no other run takes it for
/// a dead one's.
int MakeLock(const fs::path& file) {
    const fs::path made = WithEnding(file, g_pNewLockEnding);
    const int nLock = Lock(made, O_CREAT);
    std::error_code error;
    if (nLock >= 0) fs::rename(made, file, error);
    return nLock;
}

/// Whether the run that made a file is still at work.
bool IsAlive(const fs::path& file) {
    const fs::path lock = file.parent_path() / (RunOf(file) + g_pLockEnding);
    std::error_code error;
    if (!fs::exists(lock, error)) return false;
    const int nLock = Lock(lock, 0);
    if (nLock < 0) return true;
    close(nLock);
    return false;
}

void Remove(const fs::path& drawing) {
    std::error_code error; // what is gone already is as good
    for (const char* const szEnding : {g_pDrawingEnding, g_pNameEnding})
        fs::remove(WithEnding(drawing, szEnding), error);
}

/// The process number, with more behind it while a dead run of that number has copies here.
std::string NewRun(const fs::path& folder) {
    std::error_code error;
    std::set<std::string> setTaken;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error))
        setTaken.insert(RunOf(entry.path()));
    const std::string strNumber = std::to_string(getpid());
    std::string strRun = strNumber;
    for (int i = 2; setTaken.contains(strRun); ++i)
        strRun = strNumber + "_" + std::to_string(i);
    return strRun;
}

/// A run that was killed leaves its lock, even where it had nothing to keep.
void RemoveDeadLocks(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> arDead;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error))
        if (entry.path().extension() == g_pLockEnding && !IsAlive(entry.path()))
            arDead.push_back(entry.path());
    for (const fs::path& lock : arDead)
        fs::remove(lock, error);
}

} // namespace

CAutosave::CAutosave(fs::path folder)
    : m_folder(std::move(folder)) {
    std::error_code error;
    fs::create_directories(m_folder, error);
    RemoveDeadLocks(m_folder);
    m_strRun = NewRun(m_folder);
    m_nLock = MakeLock(m_folder / (m_strRun + g_pLockEnding));
}

CAutosave::~CAutosave() {
    if (m_nLock < 0) return;
    for (const int nNumber : m_setKept)
        Remove(Copy(nNumber));
    std::error_code error;
    fs::remove(m_folder / (m_strRun + g_pLockEnding), error);
    close(m_nLock);
}

fs::path CAutosave::UserFolder() {
    const char* const szState = std::getenv("XDG_STATE_HOME");
    if (szState && *szState) return fs::path(szState) / "tervo/autosave";
    const char* const szHome = std::getenv("HOME");
    return fs::path(szHome ? szHome : "") / ".local/state/tervo/autosave";
}

fs::path CAutosave::Copy(int nNumber) const {
    return m_folder / (m_strRun + "-" + std::to_string(nNumber) + g_pDrawingEnding);
}

std::optional<std::string> CAutosave::Save(const CDrawings& drawings) {
    if (m_nLock < 0)
        return "no copies of changed drawings are kept: " + m_folder.string() + " cannot be used";
    std::map<int, const AcApDocument*> mapChanged;
    for (const AcApDocument* const pDocument : drawings.ChangedDocuments())
        mapChanged[drawings.NumberOf(*pDocument)] = pDocument;
    std::erase_if(m_setKept, [&](int nNumber) { // saved or closed since
        const bool bGone = !mapChanged.contains(nNumber);
        if (bGone) Remove(Copy(nNumber));
        return bGone;
    });
    std::optional<std::string> reason;
    for (const auto& [nNumber, pDocument] : mapChanged) {
        m_setKept.insert(nNumber);
        try {
            Keep(*pDocument, Copy(nNumber));
        } catch (const CDrawingFailure& failure) {
            reason = "no copy of " + CDrawings::NameOf(*pDocument) + " could be kept: " + failure.what();
        }
    }
    return reason;
}

void CAutosave::Keep(const AcApDocument& document, const fs::path& copy) const {
    const CWrittenDrawing written = WriteDrawing(*document.database(), CDrawingFormat::Dwg);
    const char cKind = document.isNamedDrawing() ? g_cNamed : g_cUntitled;
    if (!WriteFileWhole(copy.string(), written.m_strBytes) ||
        !WriteFileWhole(WithEnding(copy, g_pNameEnding).string(), cKind + CDrawings::NameOf(document)))
        throw CDrawingFailure(Acad::eFileAccessErr, std::strerror(errno));
}

std::vector<CKeptDrawing> CAutosave::Left() const {
    std::vector<CKeptDrawing> arLeft;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_folder, error)) {
        std::string strName;
        if (entry.path().extension() != g_pDrawingEnding || IsAlive(entry.path())) continue;
        if (!ReadFileWhole(WithEnding(entry.path(), g_pNameEnding).string(), &strName) || strName.empty())
            continue; // the run ended before the copy was whole
        arLeft.push_back({entry.path(), strName.substr(1), strName[0] == g_cNamed});
    }
    std::sort(arLeft.begin(), arLeft.end(),
              [](const CKeptDrawing& a, const CKeptDrawing& b) { return a.m_file < b.m_file; });
    return arLeft;
}

CDescriptor CAutosave::Claim(const CKeptDrawing& kept) {
    CDescriptor lock(Lock(kept.m_file, 0));
    std::error_code error;
    if (lock && !fs::exists(kept.m_file, error)) lock.Close(); // discarded between opening and locking
    return lock;
}

void CAutosave::Discard(const CKeptDrawing& kept) {
    Remove(kept.m_file);
}
