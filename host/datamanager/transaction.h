#pragma once

#include "platform/ado/error.h"
#include "platform/ado/provider.h"

/// A transaction that is undone unless it was committed.
class CDbTransaction {
public:
    explicit CDbTransaction(CDbConnection& database)
        : m_pDatabase(&database) {
        database.BeginTransaction();
    }
    CDbTransaction(const CDbTransaction&) = delete;
    CDbTransaction& operator=(const CDbTransaction&) = delete;
    ~CDbTransaction() {
        if (m_pDatabase) Undo();
    }

    void Commit() {
        m_pDatabase->CommitTransaction();
        m_pDatabase = nullptr;
    }

private:
    void Undo() noexcept {
        try {
            m_pDatabase->RollbackTransaction();
        } catch (const CDbError&) {
            m_pDatabase = nullptr; // the engine has undone it by itself
        }
    }

    CDbConnection* m_pDatabase;
};
