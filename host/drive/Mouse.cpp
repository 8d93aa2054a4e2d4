#include "host/drive/Mouse.h"

#include <commctrl.h>

#include <algorithm>
#include <deque>
#include <iterator>
#include <utility>
#include <vector>

#include "host/drive/MessageBoxes.h"
#include "host/drive/RealInput.h"
#include "host/drive/WindowClass.h"

namespace {

struct Posted {
    HWND window;
    UINT message;
    WPARAM w;
    LPARAM l;

    bool operator==(const Posted&) const = default;
    void post() const { PostMessageW(window, message, w, l); }
};

bool isRelease(UINT message) { return message == WM_LBUTTONUP || message == WM_RBUTTONUP; }

// How often a click is played again, should other programs keep taking it away.
constexpr int MOST_REPEATS = 20;

bool isButton(HWND window) {
    return hasWindowClass(window, WC_BUTTONW) && !(SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_STATIC);
}

// Another dialog or a message box stands before the window's own; not `going`, which is on its way out.
bool isBlocked(HWND window, HWND going) {
    const HWND dialog = dialogOf(window);
    const HWND active = GetActiveWindow();
    const bool otherIsActive = active && active != dialog && active != going && isSystemDialog(active);
    return dialog && (otherIsActive || !IsWindowEnabled(dialog));
}

// Watches what the drive has posted or clicked until all of it was taken from the queue: so loops pay for the
// watch only while the mouse is at work.
class WatchedMouse {
  public:
    void post(const Posted& posted) {
        std::erase_if(m_waiting, [](const Posted& old) { return !IsWindow(old.window); });
        watch();
        m_waiting.push_back(posted);
        posted.post();
    }

    // Down and up are posted together: list and tree views run a loop of their own on the first until they
    // see the second.
    void postClick(const Posted& press, const Posted& release) {
        m_click = {press, release};
        m_repeats = 0;
        post(press);
        post(release);
    }

    // The real mouse's click, whose messages come from the system.
    void watchReal(const Spot& spot) {
        watch();
        m_real.push_back({spot, false});
    }

    // Whether there was one to deliver.
    bool deliverHeld(HWND going) {
        const std::vector<Posted> held = std::move(m_held);
        m_held.clear();
        for (const Posted& release : held) {
            if (!IsWindow(release.window)) continue;
            if (isBlocked(release.window, going)) {
                m_held.push_back(release);
            } else {
                post(release);
            }
        }
        return deliverReal(going) || m_held.size() < held.size();
    }

  private:
    struct RealClick {
        Spot spot;
        bool isPressed;
    };

    static LRESULT CALLBACK messageHook(int code, WPARAM removed, LPARAM l) noexcept;

    void taken(MSG& message) {
        takenReal(message);
        takenPosted(message);
    }

    void watch() {
        if (!m_hook) m_hook = SetWindowsHookExW(WH_GETMESSAGE, &messageHook, nullptr, GetCurrentThreadId());
    }

    void stopWatching() {
        if (m_waiting.empty() && m_real.empty() && m_hook)
            UnhookWindowsHookEx(std::exchange(m_hook, nullptr));
    }

    // The release of a press that has brought up a box goes to what lies under the mouse, also to another
    // program. Where the queue is empty and it hasn't come, it never will.
    bool deliverReal(HWND going) {
        if (going) return false;
        std::erase_if(m_real, [](const RealClick& click) { return !click.isPressed; });
        const auto free = std::find_if(m_real.begin(), m_real.end(), [](const RealClick& click) {
            return !IsWindow(click.spot.window) || !isBlocked(click.spot.window, nullptr);
        });
        const bool isFree = free != m_real.end();
        if (isFree) {
            moveMouse(free->spot, MOUSEEVENTF_LEFTUP);
            m_real.erase(free);
        }
        stopWatching();
        return isFree;
    }

    // The message leaves the queue.
    void takenReal(MSG& message) {
        if (message.message == WM_LBUTTONDOWN) {
            const auto click = std::find_if(m_real.begin(), m_real.end(), [&](const RealClick& waiting) {
                return !waiting.isPressed && waiting.spot.window == message.hwnd;
            });
            if (click != m_real.end()) click->isPressed = true;
        }
        if (message.message != WM_LBUTTONUP) return;
        // The last one that was pressed: earlier ones may wait behind boxes.
        const auto click = std::find_if(m_real.rbegin(), m_real.rend(),
                                        [](const RealClick& waiting) { return waiting.isPressed; });
        if (click == m_real.rend()) return;
        if (isBlocked(click->spot.window, nullptr)) {
            message.message = WM_NULL;
        } else {
            m_real.erase(std::next(click).base());
            stopWatching();
        }
    }

    // The same of what was posted. A press doesn't reach a window that can't be worked.
    void takenPosted(MSG& message) {
        const auto found = std::find(m_waiting.begin(), m_waiting.end(),
                                     Posted{message.hwnd, message.message, message.wParam, message.lParam});
        if (found == m_waiting.end()) return;
        const Posted posted = *found;
        m_waiting.erase(found);
        stopWatching();
        const bool isStopped = isBlocked(posted.window, nullptr);
        const bool isMove = posted.message == WM_MOUSEMOVE;
        if (!isMove && !isRelease(posted.message)) m_pressLost = isStopped;
        if (!m_pressLost && !isStopped && !playsAgain(posted)) return;
        if (!m_pressLost && isStopped && !isMove) m_held.push_back(posted);
        message.message = WM_NULL;
    }

    // Another program whose window came to the front has taken the mouse from a button between press and
    // release, so that nothing would be clicked.
    bool playsAgain(const Posted& release) {
        if (release != m_click.release) return false;
        const Posted press = m_click.press;
        m_click = {};
        if (GetCapture() == release.window || !isButton(release.window) || m_repeats == MOST_REPEATS)
            return false;
        ++m_repeats;
        SetForegroundWindow(dialogOf(release.window));
        m_click = {press, release};
        post(press);
        post(release);
        return true;
    }

    std::deque<Posted> m_waiting;
    std::vector<Posted> m_held;
    std::vector<RealClick> m_real;  // the ones whose release hasn't come yet
    HHOOK m_hook = nullptr;
    bool m_pressLost = false;
    struct {
        Posted press, release;
    } m_click{};        // the last one
    int m_repeats = 0;  // of it
};

WatchedMouse& mouse() {
    static WatchedMouse instance;
    return instance;
}

LRESULT CALLBACK WatchedMouse::messageHook(int code, WPARAM removed, LPARAM l) noexcept {
    if (code == HC_ACTION && removed & PM_REMOVE) mouse().taken(*reinterpret_cast<MSG*>(l));
    return CallNextHookEx(nullptr, code, removed, l);
}

DWORD eventFlag(UINT message) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            return MOUSEEVENTF_LEFTDOWN;
        case WM_LBUTTONUP:
            return MOUSEEVENTF_LEFTUP;
        case WM_RBUTTONDOWN:
            return MOUSEEVENTF_RIGHTDOWN;
        case WM_RBUTTONUP:
            return MOUSEEVENTF_RIGHTUP;
        default:
            return 0;
    }
}

// The real mouse needs no keys with a message, since they are held.
void post(const Spot& spot, UINT message, WPARAM keys) {
    if (usesRealInput()) return moveMouse(spot, eventFlag(message));
    mouse().post({spot.window, message, keys, MAKELPARAM(spot.point.x, spot.point.y)});
}

// Who has taken the mouse sees its way there, as that of the real mouse.
void showWay(const Spot& spot, WPARAM keys) {
    if (!usesRealInput() && GetCapture() == spot.window) post(spot, WM_MOUSEMOVE, keys);
}

// The real mouse would make two presses on one point a double one.
Spot pressSpot(const Spot& spot) { return usesRealInput() ? besideLastClick(spot) : spot; }

}  // namespace

Spot middleOf(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    return {window, {client.right / 2, client.bottom / 2}};
}

bool isInView(const Spot& spot) {
    RECT client;
    return GetClientRect(spot.window, &client) && PtInRect(&client, spot.point);
}

void hold(const Spot& spot, WPARAM keys) {
    showWay(spot, keys);
    post(pressSpot(spot), WM_LBUTTONDOWN, MK_LBUTTON | keys);
}

void letGo(const Spot& spot, WPARAM keys) {
    showWay(spot, MK_LBUTTON | keys);
    post(spot, WM_LBUTTONUP, keys);
}

void click(const Spot& wanted, WPARAM keys) {
    const Spot spot = pressSpot(wanted);
    if (usesRealInput()) {
        // What else takes a press, such as a table, follows the mouse by itself from then on.
        if (isButton(spot.window) || hasWindowClass(spot.window, WC_LISTBOXW)) mouse().watchReal(spot);
        post(spot, WM_LBUTTONDOWN, keys);
        return post(spot, WM_LBUTTONUP, keys);
    }
    const LPARAM at = MAKELPARAM(spot.point.x, spot.point.y);
    showWay(spot, keys);
    mouse().postClick({spot.window, WM_LBUTTONDOWN, MK_LBUTTON | keys, at},
                      {spot.window, WM_LBUTTONUP, keys, at});
}

void doubleClick(const Spot& wanted, WPARAM keys) {
    const Spot spot = pressSpot(wanted);
    if (usesRealInput()) {
        post(spot, WM_LBUTTONDOWN, keys);
        post(spot, WM_LBUTTONUP, keys);
    } else {
        click(spot, keys);
    }
    post(spot, WM_LBUTTONDBLCLK, MK_LBUTTON | keys);
    post(spot, WM_LBUTTONUP, keys);
}

void rightClick(const Spot& wanted, WPARAM keys) {
    const Spot spot = pressSpot(wanted);
    showWay(spot, keys);
    post(spot, WM_RBUTTONDOWN, MK_RBUTTON | keys);
    post(spot, WM_RBUTTONUP, keys);
}

void hover(const Spot& spot, WPARAM keys) { post(spot, WM_MOUSEMOVE, keys); }

void sweep(const Spot& from, const Spot& to, WPARAM keys) {
    const POINT between = {(from.point.x + to.point.x) / 2, (from.point.y + to.point.y) / 2};
    post(pressSpot(from), WM_LBUTTONDOWN, MK_LBUTTON | keys);
    post({from.window, between}, WM_MOUSEMOVE, MK_LBUTTON | keys);
    post(to, WM_MOUSEMOVE, MK_LBUTTON | keys);
    post(to, WM_LBUTTONUP, keys);
}

bool deliverHeldReleases(HWND going) { return mouse().deliverHeld(going); }
