#pragma once

#include <QtCore/QElapsedTimer>

#include <chrono>
#include <memory>
#include <string>

class QProgressDialog;
class QWidget;

/// The dialog before the window that shows how far long work is, and lets the user give it up. Work that is
/// over soon shows none.
class CWorkProgress {
public:
    explicit CWorkProgress(QWidget& window, std::chrono::milliseconds quiet = std::chrono::milliseconds(100));
    ~CWorkProgress();
    CWorkProgress(const CWorkProgress&) = delete;
    CWorkProgress& operator=(const CWorkProgress&) = delete;

    /// Tells how far the work (UTF-8) is; false when the user gave it up, by which it is over. May be called
    /// as often as one likes: only now and then it handles the events that wait.
    bool Show(const std::string& strWork, std::size_t nDone, std::size_t nAll);
    /// The work is over.
    void End();

private:
    void Open();
    void Update(const std::string& strWork, double dPart);

    QWidget& m_window;
    std::chrono::milliseconds m_quiet;
    QElapsedTimer m_clock; // since the work began, or since the last look at what the user does
    std::unique_ptr<QProgressDialog> m_pDialog;
};
