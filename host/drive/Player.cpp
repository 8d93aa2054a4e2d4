#include "host/drive/Player.h"

#include <algorithm>
#include <utility>

#include "host/documents/Documents.h"
#include "host/drive/Menus.h"
#include "host/drive/MessageBoxes.h"
#include "host/drive/Mouse.h"
#include "host/drive/RealInput.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

// How often a form that waits for something is tried again.
constexpr UINT WAIT_MILLISECONDS = 10;

constexpr int LISP_ERROR = 1;
constexpr int STILL_OPEN = 3;

std::wstring quoted(const std::wstring& text) { return L"\"" + text + L"\""; }

void report(const std::wstring& line, int status) {
    host().console().error(line);
    host().fail(status);
}

std::wstring named(const Session& session) {
    return session.dialog().empty() ? L"session of the main frame" : L"session " + quoted(session.dialog());
}

std::wstring printed(lisp::Value form) { return wideText(host().lisp().print(form)); }

}  // namespace

Player& player() {
    static Player& instance = *new Player;
    return instance;
}

void Player::setPlays(bool plays) {
    m_plays = plays;
    host().alerts().setAttended(!plays);
    m_watch.reset();
    m_still.reset();
    if (!plays) return;
    m_watch.emplace(*this);
    m_still.emplace();
}

void Player::queue(std::unique_ptr<Session> session) {
    if (m_plays) m_queue.add(std::move(session));
}

void Player::reportLeftovers() {
    for (const auto& session : m_queue.waiting()) {
        report(named(*session) + L": its dialog was never opened", LISP_ERROR);
    }
}

// The plug-in names its newest dialog, and no other than the newest can be idle; without one the main frame.
HWND Player::newestPlayable() const {
    const HWND dialog = documents().newestDialog();
    return dialog ? dialog : m_frame;
}

bool Player::hasFrameSession() const {
    const auto& waiting = m_queue.waiting();
    return std::any_of(waiting.begin(), waiting.end(),
                       [](const auto& session) { return session->dialog().empty(); });
}

void Player::frameIdle(HWND frame) {
    if (!m_plays) return;
    m_frame = frame;
    dialogIdle(frame);
}

void Player::frameLeft() {
    if (m_frame) windowGone(m_frame);
}

// A menu runs a loop of its own, which tells nobody that it is idle. A timer's message comes when there is no
// other one, so it is what tells; where no menu shows, the dialog's own loop stops it before it comes.
void Player::watchForMenu() {
    if (!m_menuTimer) m_menuTimer = SetTimer(nullptr, 0, WAIT_MILLISECONDS, &menuTimer);
}

void CALLBACK Player::menuTimer(HWND, UINT, UINT_PTR, DWORD) noexcept {
    const HWND dialog = player().newestPlayable();
    if (dialog && worksMenu())
        player().idle(dialog);
    else
        repeatLostRelease();
}

void Player::dialogIdle(HWND dialog) {
    if (m_menuTimer) KillTimer(nullptr, std::exchange(m_menuTimer, 0));
    idle(dialog);
}

void Player::idle(HWND dialog) {
    host().console().flush();
    if (deliverHeldReleases(nullptr)) return wakeAgain(dialog, false);
    const bool playable = isPlayable(dialog);
    if (!playable && isSystemDialog(dialog)) answer(dialog);
    if (!doStep(dialog) && playable) play(dialog);
}

bool Player::doStep(HWND dialog) {
    try {
        if (!m_steps.doNext(dialog)) return false;
    } catch (const lisp::Error& error) {
        report(m_progress.place() + L"\n  " + wideText(error.text()), LISP_ERROR);
    }
    wakeAgain(dialog, false);
    return true;
}

std::unique_ptr<Session> Player::takeSession(HWND dialog) {
    return m_queue.take([=, this](const std::wstring& name) {
        if (name.empty() || dialog == m_frame) return name.empty() && dialog == m_frame;
        return documents().findWindow(name.c_str(), nullptr, -1) == dialog;
    });
}

Player::Run& Player::runOf(HWND dialog) {
    const auto found =
        std::find_if(m_runs.begin(), m_runs.end(), [=](const Run& run) { return run.dialog == dialog; });
    if (found != m_runs.end()) return *found;
    std::shared_ptr<Session> session = takeSession(dialog);
    if (!session && host().isHeadless()) {
        report(L"no session for dialog " + quoted(textOf(dialog)) + L", and nobody else to work it",
               STILL_OPEN);
    }
    return m_runs.emplace_back(Run{dialog, std::move(session)});
}

void Player::play(HWND dialog) {
    Run& run = runOf(dialog);
    if (run.session && !run.session->isOver()) {
        // Evaluating may add and remove runs, and end this one.
        const std::shared_ptr<Session> session = run.session;
        evaluate(dialog, *session);
    } else if (run.session || host().isHeadless()) {
        closeLeftOpen(run);
    }
}

void Player::evaluate(HWND dialog, Session& session) {
    const lisp::Value form = session.takeForm();
    const std::wstring place =
        named(session) + L", step " + std::to_wstring(session.step()) + L": " + printed(form);
    m_progress.set(place);
    m_repeat = false;
    m_evaluating.push_back(dialog);
    try {
        host().lisp().eval(form);
    } catch (const lisp::Error& error) {
        report(place + L"\n  " + wideText(error.text()), LISP_ERROR);
    } catch (const std::exception& error) {
        report(place + L"\n  " + wideFromUtf8(error.what()), LISP_ERROR);
    }
    m_evaluating.pop_back();
    const bool waiting = std::exchange(m_repeat, false);
    if (waiting) session.putBack();
    wakeAgain(dialog, waiting);
}

// The loop has run empty and sleeps until a message comes.
void Player::wakeAgain(HWND dialog, bool waiting) {
    if (m_timer && !waiting) KillTimer(nullptr, std::exchange(m_timer, 0));
    if (waiting) {
        if (!m_timer) m_timer = SetTimer(nullptr, 0, WAIT_MILLISECONDS, nullptr);
    } else {
        PostMessageW(dialog, WM_NULL, 0, 0);
        watchForMenu();
    }
}

void Player::pressCloseBox(HWND dialog) {
    if (openMenu()) EndMenu();
    PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
}

void Player::closeLeftOpen(Run& run) {
    if (run.dialog == m_frame) {
        PostMessageW(m_frame, WM_CLOSE, 0, 0);
        return;
    }
    const std::wstring dialog = L"dialog " + quoted(textOf(run.dialog));
    if (run.closing) {
        report(dialog + L": the close box does not end it", STILL_OPEN);
        host().exit(host().status());
    }
    if (run.session) report(dialog + L" is still open at the end of its session", STILL_OPEN);
    run.closing = true;
    pressCloseBox(run.dialog);
}

void Player::act(HWND dialog, Steps::Work work) {
    if (m_steps.isEmpty()) {
        work();
    } else {
        m_steps.add(dialog, std::move(work));
    }
}

// It also comes to the front again when a dialog goes that its coming up had brought up; the loop of that one
// may have taken the answer from the queue.
void Player::messageBoxShown(HWND box) {
    if (const Answered* given = findAnswered(box)) return answerBox(box, given->answer);
    answer(box);
}

Player::Answered* Player::findAnswered(HWND box) {
    const auto found = std::find_if(m_answered.begin(), m_answered.end(),
                                    [=](const Answered& given) { return given.box == box; });
    return found == m_answered.end() ? nullptr : &*found;
}

void Player::answer(HWND box) {
    if (Answered* given = findAnswered(box)) return answerAnew(*given);
    host().alerts().record(boxText(box));
    m_lastBox = boxLook(box);
    m_answered.push_back({box, takeAnswer()});
    answerBox(box, m_answered.back().answer);
}

BoxAnswer Player::takeAnswer() {
    if (m_answers.empty()) return {};
    BoxAnswer answer = std::move(m_answers.front());
    m_answers.pop_front();
    return answer;
}

// The box is idle though it was answered: it didn't take the answer, such as the name of a file that isn't
// there.
void Player::answerAnew(Answered& given) {
    if (!m_answers.empty()) {
        given.answer = takeAnswer();
        return answerBox(given.box, given.answer);
    }
    const std::wstring box = L"dialog " + quoted(textOf(given.box));
    if (given.refused) {
        report(box + L": Cancel does not end it", STILL_OPEN);
        host().exit(host().status());
    }
    const auto& [button, name] = given.answer;
    report(m_progress.place() + L"\n  " + box + L" did not take the answer " +
               std::wstring(boxButtonName(button)) + (name.empty() ? L"" : L" with the name " + quoted(name)),
           LISP_ERROR);
    given.refused = true;
    answerBox(given.box, {IDCANCEL, {}});
}

void Player::windowGone(HWND window) {
    std::erase_if(m_answered, [=](const Answered& given) { return given.box == window; });
    if (window == m_frame) m_frame = nullptr;
    // What had brought it up may go on with a menu, or with a loop that waits for the mouse.
    if (m_plays && isSystemDialog(window)) watchForMenu();
    m_steps.forget(window);
    deliverHeldReleases(window);
    const auto found =
        std::find_if(m_runs.begin(), m_runs.end(), [=](const Run& run) { return run.dialog == window; });
    if (found == m_runs.end()) return;
    const Run run = *found;
    m_runs.erase(found);
    // Keys don't stay down until some later dialog is idle.
    if (m_runs.empty())
        while (m_steps.doNext(nullptr)) continue;
    if (!run.session || run.session->isOver()) return;
    report(named(*run.session) + L": the dialog ended before step " +
               std::to_wstring(run.session->step() + 1) + L": " + printed(run.session->nextForm()),
           LISP_ERROR);
}
