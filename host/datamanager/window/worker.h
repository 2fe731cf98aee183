#pragma once

#include <QtCore/QString>
#include <QtCore/QThread>

#include <functional>
#include <utility>

#include "host/datamanager/window/call_place.h"

/// Runs work one after another on a thread of its own, so that the window never waits for a file, a database
/// or another program.
class CWorker final {
public:
    using CFailed = std::function<void(const QString& strWhy)>;
    /// Hears what is under way; an empty text when nothing is.
    using CBusy = std::function<void(const QString& strWhat)>;

    explicit CWorker(CBusy fnBusy);
    /// Waits for the work under way; what it would have answered is dropped.
    ~CWorker();
    CWorker(const CWorker&) = delete;
    CWorker& operator=(const CWorker&) = delete;

    /// Runs fnWork on the worker's thread, then, back on the caller's, fnDone with its result or fnFailed
    /// with the failure that it threw. strWhat names the work for the user.
    template <class Work, class Done>
    void Do(const QString& strWhat, Work fnWork, Done fnDone, CFailed fnFailed) {
        Begin(strWhat,
              [fnWork = std::move(fnWork), fnDone = std::move(fnDone),
               fnFailed = std::move(fnFailed)]() -> CAnswer {
                  try {
                      return [fnDone, result = fnWork()] { fnDone(result); };
                  } catch (const std::exception&) {
                      return [fnFailed, strWhy = FailureText()] { fnFailed(strWhy); };
                  }
              });
    }

    [[nodiscard]] bool IsBusy() const { return m_nWaiting > 0; }

private:
    using CAnswer = std::function<void()>;

    void Begin(const QString& strWhat, std::function<CAnswer()> fnWork);
    void End();
    /// Of the exception that is being handled.
    static QString FailureText();

    CBusy m_fnBusy;
    int m_nWaiting = 0; ///< work under way or to come
    QThread m_thread;
    CCallPlace m_place; ///< lives on the thread
    CCallPlace m_home;  ///< lives on the caller's
};
