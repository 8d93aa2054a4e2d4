// Tells of what happens to the dialogs of this thread: a loop ran empty, a box came up, a window went.
#pragma once

#include <windows.h>

#include <vector>

class DialogObserver {
  public:
    // The modal loop of `dialog` has nothing more to do. Told once each time it runs empty.
    virtual void dialogIdle(HWND dialog) = 0;
    // A message box is about to be seen.
    virtual void messageBoxShown(HWND box) = 0;
    // The window is on its way out; of any window of the thread.
    virtual void windowGone(HWND window) = 0;

  protected:
    ~DialogObserver() = default;
};

// Watches while it lives. Who began to watch first is told first. The observer's calls may run Lisp and open
// dialogs, and must not throw.
//
// A modal loop that runs empty tells the dialog's owner, and the owners of nested dialogs pass that on until
// it comes to the main frame. So no hook sees the messages, each of which would cost more than its handling.
class IdleWatch {
  public:
    explicit IdleWatch(DialogObserver& observer);
    ~IdleWatch();
    IdleWatch(const IdleWatch&) = delete;
    IdleWatch& operator=(const IdleWatch&) = delete;

    // The main frame was told that the modal loop of `dialog` has run empty. Ignored while nobody watches.
    static void loopIsEmpty(HWND dialog);

  private:
    static LRESULT CALLBACK windowHook(int code, WPARAM w, LPARAM l) noexcept;
    template <class Tell>
    static void tellAll(Tell tell);

    static inline std::vector<DialogObserver*> s_observers;
    static inline HHOOK s_hook = nullptr;
    DialogObserver* m_observer;
};
