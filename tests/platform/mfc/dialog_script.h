#pragma once
// A presenter for tests: a function plays the user.

#include "platform/mfc/modal_window.h"

#include <functional>

class CDialogScript : public CDialogPresenter {
public:
    explicit CDialogScript(std::function<void(CModalWindow&)> play)
        : m_play(std::move(play))
        , m_pFormer(DialogPresenter()) {
        SetDialogPresenter(this);
    }
    ~CDialogScript() override { SetDialogPresenter(m_pFormer); }
    CDialogScript(const CDialogScript&) = delete;
    CDialogScript& operator=(const CDialogScript&) = delete;

    void RunModal(CModalWindow& window) override { m_play(window); }

private:
    std::function<void(CModalWindow&)> m_play;
    CDialogPresenter* m_pFormer;
};
