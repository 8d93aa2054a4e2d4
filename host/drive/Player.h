// Plays sessions: at each idle moment of a dialog's loop it evaluates one form.
#pragma once

#include <windows.h>

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/drive/IdleWatch.h"
#include "host/drive/MessageBoxes.h"
#include "host/drive/Progress.h"
#include "host/drive/Sessions.h"
#include "host/drive/Steps.h"
#include "host/drive/StillMouse.h"

class Player : public DialogObserver {
  public:
    // While sessions aren't played, ui_session is dropped and a dialog waits for the person.
    bool plays() const { return m_plays; }
    void setPlays(bool plays);

    // A session without a dialog's name is for the main frame, which closes at its end.
    void queue(std::unique_ptr<Session> session);
    bool hasFrameSession() const;
    // The loop of the main frame has run empty, and has been left.
    void frameIdle(HWND frame);
    void frameLeft();
    // Whether that loop runs, while sessions are played.
    bool playsFrame() const { return m_frame != nullptr; }
    // Reports sessions whose dialog never came up.
    void reportLeftovers();

    // The dialog whose session evaluates a form at this moment; null where none does.
    HWND playedDialog() const { return m_evaluating.empty() ? nullptr : m_evaluating.back(); }
    // Has the form at hand evaluated again at the next idle moment; for ui_wait.
    void repeatForm() { m_repeat = true; }
    // Has the work done in the dialog at once, or behind what the form at hand has left to do.
    void act(HWND dialog, Steps::Work work);
    // A menu that is open closes first, as for a person who presses beside it.
    static void pressCloseBox(HWND dialog);
    // What the form at hand has left to do before the next one.
    Steps& steps() { return m_steps; }

    // Has the next box answered so that nobody has answered yet; those of several calls come in their order.
    void answerNextBox(BoxAnswer answer) { m_answers.push_back(std::move(answer)); }
    // How the last message box looked that was answered.
    const BoxLook& lastBox() const { return m_lastBox; }

    Progress& progress() { return m_progress; }

    void dialogIdle(HWND dialog) override;
    void messageBoxShown(HWND box) override;
    void windowGone(HWND window) override;

  private:
    // A dialog that has been seen idle.
    struct Run {
        HWND dialog;
        std::shared_ptr<Session> session;  // null where none was queued
        bool closing = false;              // its close box was pressed
    };

    // A box that was answered and hasn't ended yet.
    struct Answered {
        HWND box;
        BoxAnswer answer;
        bool refused = false;
    };

    HWND newestPlayable() const;
    bool isPlayable(HWND dialog) const { return newestPlayable() == dialog; }
    std::unique_ptr<Session> takeSession(HWND dialog);
    void idle(HWND dialog);
    Run& runOf(HWND dialog);
    bool doStep(HWND dialog);
    void play(HWND dialog);
    void evaluate(HWND dialog, Session& session);
    void wakeAgain(HWND dialog, bool waiting);
    void watchForMenu();
    static void CALLBACK menuTimer(HWND, UINT, UINT_PTR, DWORD) noexcept;
    void closeLeftOpen(Run& run);
    void answer(HWND box);
    Answered* findAnswered(HWND box);
    BoxAnswer takeAnswer();
    void answerAnew(Answered& given);

    bool m_plays = false;
    bool m_repeat = false;
    HWND m_frame = nullptr;  // the main frame while its own loop runs
    UINT_PTR m_timer = 0;
    UINT_PTR m_menuTimer = 0;
    SessionQueue m_queue;
    // The innermost dialog last.
    std::vector<Run> m_runs;
    std::vector<HWND> m_evaluating;
    std::vector<Answered> m_answered;
    std::deque<BoxAnswer> m_answers;
    BoxLook m_lastBox;
    Steps m_steps;
    std::optional<IdleWatch> m_watch;
    std::optional<StillMouse> m_still;
    Progress m_progress;
};

// The one of the process; made at the first question.
Player& player();
