#include "platform/ado/sqlite_pool.h"

#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <mutex>
#include <utility>

#include "platform/ado/sqlite_functions.h"

namespace {

struct CSqliteClose {
    void operator()(sqlite3* pDatabase) const { sqlite3_close_v2(pDatabase); }
};
using COwnedDatabase = std::unique_ptr<sqlite3, CSqliteClose>;

struct stat StatusOf(const std::string& strPath) {
    struct stat status = {};
    if (stat(strPath.c_str(), &status) != 0) status = {};
    return status;
}

bool IsSameFile(const struct stat& a, const struct stat& b) {
    return a.st_ino != 0 && a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool IsSameMoment(const timespec& a, const timespec& b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

/// The status change is newer whatever was done to the file: written, replaced in place, or given other
/// rights.
bool IsUnchanged(const struct stat& a, const struct stat& b) {
    return IsSameFile(a, b) && a.st_size == b.st_size && IsSameMoment(a.st_ctim, b.st_ctim);
}

/// The one handle that lies idle.
class CIdleHandle {
public:
    void Keep(COwnedDatabase pDatabase, std::string strPath, int nFlags, const struct stat& status) {
        const std::lock_guard guard(m_mutex);
        m_pDatabase = std::move(pDatabase);
        m_strPath = std::move(strPath);
        m_nFlags = nFlags;
        m_status = status;
        m_process = getpid();
    }

    /// The idle handle if it fits. It is none of a forked child's, and stays open in it.
    COwnedDatabase Take(const std::string& strPath, int nFlags, const struct stat& status) {
        const std::lock_guard guard(m_mutex);
        if (m_process != getpid()) {
            static_cast<void>(m_pDatabase.release());
            return nullptr;
        }
        const bool bFits = m_strPath == strPath && m_nFlags == nFlags && IsUnchanged(m_status, status);
        return bFits ? std::move(m_pDatabase) : nullptr;
    }

private:
    std::mutex m_mutex;
    COwnedDatabase m_pDatabase;
    std::string m_strPath;
    int m_nFlags = 0;
    struct stat m_status = {};
    pid_t m_process = 0;
};

CIdleHandle& IdleHandle() {
    static CIdleHandle s_handle;
    return s_handle;
}

/// Puts a handle that nobody holds any more aside, unless its file has gone from its path or a transaction
/// was left open, which closing undoes.
struct CRelease {
    std::string m_strPath;
    int m_nFlags;
    struct stat m_opened;

    void operator()(sqlite3* pRaw) const {
        COwnedDatabase pDatabase(pRaw);
        const struct stat status = StatusOf(m_strPath);
        if (!IsSameFile(m_opened, status) || sqlite3_get_autocommit(pRaw) == 0) return;
        IdleHandle().Keep(std::move(pDatabase), m_strPath, m_nFlags, status);
    }
};

} // namespace

CSqliteHandle OpenSqliteFile(const std::string& strPathUtf8, int nFlags) {
    const struct stat before = StatusOf(strPathUtf8);
    COwnedDatabase pDatabase = IdleHandle().Take(strPathUtf8, nFlags, before);
    if (!pDatabase) {
        sqlite3* pRaw = nullptr;
        const int nOpened =
            sqlite3_open_v2(strPathUtf8.c_str(), &pRaw, nFlags | SQLITE_OPEN_NOMUTEX, nullptr);
        pDatabase.reset(pRaw);
        if (nOpened != SQLITE_OK) ThrowSqliteError(pRaw, nOpened);
        sqlite3_extended_result_codes(pRaw, 1);
        if (const int nResult = RegisterDialectFunctions(pRaw)) ThrowSqliteError(pRaw, nResult);
    }
    return {pDatabase.release(), CRelease{strPathUtf8, nFlags, before}};
}
