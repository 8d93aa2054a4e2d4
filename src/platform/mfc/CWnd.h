// A window object around a window handle: the root of all window classes.
//
// There is one wrapper for each window. Permanent wrappers belong to whoever made them and outlive their
// windows; when the window is gone, m_hWnd is null. A window that nobody wrapped gets an on-demand wrapper
// when it is asked for. That one belongs to the library: it lives until the permanent wrapper of its dialog
// is deleted, or, for a window outside of all dialogs, as long as the process; so pointers that records keep
// never dangle. On-demand wrappers don't see their window go: isLive() tells.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "src/platform/base/CObject.h"
#include "src/platform/base/CString.h"
#include "src/platform/mfc/MessageMap.h"

class CWnd : public CObject {
    DECLARE_DYNAMIC(CWnd)

  public:
    CWnd() = default;
    // Gives a subclassed window its own procedure back; destroys a window that this object created.
    ~CWnd() override;

    HWND m_hWnd = nullptr;

    // --- creation and attaching

    // The wrapper of that window, made on demand; null for a null handle.
    static CWnd* FromHandle(HWND window);
    // The wrapper of that window if somebody made one, or null.
    static CWnd* FromHandlePermanent(HWND window);

    // Takes the window's messages. An on-demand wrapper of that window lets go of it and stays alive.
    // Attached to that very window already: nothing to do. False where the object has another window, the
    // window has another permanent wrapper, or there is no such window. Final, since most callers know the
    // window as a CWnd only: what a class does besides goes to attached().
    virtual bool SubclassWindow(HWND window) final;
    // Creates a window of a registered class. `rect` is in the parent's client pixels.
    virtual bool CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style,
                          const RECT& rect, HWND parent, UINT id) final;
    virtual bool DestroyWindow() final;

    // --- queries

    // Whether there is a window, still.
    bool isLive() const { return m_hWnd && IsWindow(m_hWnd); }
    // Whether the focus is here, or in a child as in the edit box of a combo box.
    bool holdsFocus() const;
    // The wrapper of that child; null where there is none.
    CWnd* GetDlgItem(int id) const;
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    DWORD GetStyle() const { return static_cast<DWORD>(GetWindowLongPtrW(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE)); }
    // At most 255 characters; empty without a window.
    const CString& className() const;
    CString GetWindowText() const;
    RECT GetClientRect() const;
    RECT GetWindowRect() const;
    // The window's rectangle in its parent's client pixels.
    RECT rectInParent() const;
    HFONT GetFont() const { return reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)); }

    // --- verbs

    LRESULT SendMessage(UINT message, WPARAM w = 0, LPARAM l = 0) const {
        return ::SendMessageW(m_hWnd, message, w, l);
    }
    // The same for a message that no class handles, straight to what the window did before it was wrapped.
    // For a message to each of many entries, to which the way through the platform would cost as much as the
    // entry.
    LRESULT sendStraight(UINT message, WPARAM w = 0, LPARAM l = 0) const;
    bool PostMessage(UINT message, WPARAM w = 0, LPARAM l = 0) const {
        return ::PostMessageW(m_hWnd, message, w, l);
    }
    void SetWindowText(const CString& text) const { ::SetWindowTextW(m_hWnd, text.c_str()); }
    void EnableWindow(bool enable) const { ::EnableWindow(m_hWnd, enable); }
    void ShowWindow(int command) const { ::ShowWindow(m_hWnd, command); }
    void SetFocus() const { ::SetFocus(m_hWnd); }
    void SetFont(HFONT font) const { SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE); }
    void MoveWindow(const RECT& rect, bool repaint = true) const;
    // Puts the window under all of its siblings, where it is and as large as it is.
    void lower() const { SetWindowPos(m_hWnd, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE); }
    void ModifyStyle(DWORD remove, DWORD add) const;
    // The frame is drawn anew, and the client area measured.
    void ModifyStyleEx(DWORD remove, DWORD add) const;
    void Invalidate(bool erase = true) const { InvalidateRect(m_hWnd, nullptr, erase); }

    // --- what classes override

    // A message of the loop, seen before it is dispatched, from its window up to the dialog. True: it is
    // dealt with.
    virtual bool PreTranslateMessage(MSG&) { return false; }
    virtual const MessageMap& messageMap() const;

  protected:
    // The object has got its window, which may still be in the making.
    virtual void attached() {}
    virtual LRESULT WindowProc(UINT message, WPARAM w, LPARAM l);
    // A command that neither the control nor the message map took. True: it is dealt with.
    virtual bool OnCommand(UINT /*id*/, UINT /*notification*/) { return false; }
    // The default processing of the message that is being handled.
    LRESULT Default();
    // What the window did before it was wrapped.
    LRESULT DefWindowProc(UINT message, WPARAM w, LPARAM l);

  private:
    friend class WindowTable;
    friend class CDialog;

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l) noexcept;
    bool reflect(UINT message, WPARAM w, LPARAM l, LRESULT& result);

    // The window was created by this object and goes with it.
    bool m_created = false;
    // Kept, since asking costs as much as adding an entry to a list, and a window's class never changes.
    mutable CString m_className;
    mutable HWND m_classOf = nullptr;
    // The on-demand wrappers of windows below this one, kept even when their windows are gone.
    std::vector<std::unique_ptr<CWnd>> m_kept;
};
