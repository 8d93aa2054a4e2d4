// A dialog made from a template, run modally by the library's own loop.
#pragma once

#include "src/platform/mfc/CWnd.h"

struct CDataExchange {
    bool m_bSaveAndValidate;
};

// When a modal run ends, and with what.
class EndState {
  public:
    void begin() {
        m_open = m_goesOn = true;
        m_result = -1;
    }
    // The last call before `leave` decides. Without effect outside of a run.
    void end(int result) {
        if (!m_open) return;
        m_goesOn = false;
        m_result = result;
    }
    // What comes later changes nothing.
    void leave() { m_open = m_goesOn = false; }

    bool isOpen() const { return m_open; }
    bool goesOn() const { return m_goesOn; }
    int result() const { return m_result; }

  private:
    bool m_open = false;
    bool m_goesOn = false;
    int m_result = -1;
};

class CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)

  public:
    // The template's number; the parent is resolved when the dialog runs, and null means the application's
    // main window.
    CDialog(UINT templateId, CWnd* parent) : m_templateId(templateId), m_parent(parent) {}
    ~CDialog() override { DestroyWindow(); }

    // Runs the dialog until EndDialog. Gives its result, or -1 where the template can't be found or the
    // window can't be made, and when the application quits. The owner is disabled meanwhile. While the loop
    // is idle it sends WM_ENTERIDLE to the last of its owners (itself without one), once in each period. An
    // exception that was kept meanwhile ends the loop and is raised again from here, when the owner is
    // enabled and the window destroyed. The object must outlive the call, and runs once at a time.
    int DoModal();
    // Creates the window without running it; it shows as the template says. False where it can't be made.
    // Raises what OnInitDialog throws.
    bool Create();
    // Marks the dialog as ended and hides it, so that the focus leaves its controls while they still work.
    // The last call before the loop leaves decides the result. No effect without a window or once the loop
    // has left; before the loop runs, the window never shows.
    void EndDialog(int result);
    // True from the call of DoModal to its return: also before the window is made, and while it is taken
    // down.
    bool isRunning() const { return m_running; }

    bool UpdateData(bool save);
    bool PreTranslateMessage(MSG& message) override;

  protected:
    LRESULT WindowProc(UINT message, WPARAM w, LPARAM l) override;
    bool OnCommand(UINT id, UINT notification) override;

    // True: the platform sets the focus to the first control.
    virtual bool OnInitDialog();
    virtual void DoDataExchange(CDataExchange&) {}
    // Saves the data and ends the dialog with 1.
    virtual void OnOK();
    // Ends the dialog with 2.
    virtual void OnCancel();
    // The run is over and the window gone, but exceptions that were kept are still to be raised. What belongs
    // to the run goes here, so that the dialog can run again like the first time. Must not throw.
    virtual void runEnded() {}

    // The module of the template; null: by the resource search.
    HMODULE m_templateModule = nullptr;

  private:
    enum class First { hidden, asTemplate };

    HWND owner() const;
    bool create(HWND owner, First first);
    void runLoop(HWND owner);
    bool idle(HWND owner);
    bool preTranslate(MSG& message);

    UINT m_templateId;
    CWnd* m_parent;
    EndState m_end;
    bool m_running = false;
    // The window was the active one when it was ended, and hidden.
    bool m_wasActive = false;
    bool m_shown = false;
    bool m_toldIdle = false;
};
