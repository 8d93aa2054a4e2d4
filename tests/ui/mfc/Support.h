// A dialog whose doings a test gives as functions, and an owner that plays a session step by step.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <vector>

#include "src/platform/mfc/CDialog.h"
#include "src/platform/mfc/ModuleState.h"

using Action = std::function<void()>;

inline void run(const Action& action) {
    if (action) action();
}

// A visible top-level window. Each time a dialog's loop tells it to be idle, it runs the next step; a session
// that has run out with its dialog open fails and destroys the dialog.
class Owner : public CWnd {
  public:
    Owner() {
        CreateEx(0, L"Static", L"Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, RECT{0, 0, 400, 300}, nullptr, 0);
    }

    std::deque<Action> steps;
    int idles = 0;
    // Something else than a step ends the dialog: idleness is only counted.
    bool waits = false;

    const MessageMap& messageMap() const override {
        static const MessageMap map(CWnd::messageMap(), {onRaw<WM_ENTERIDLE, &Owner::onEnterIdle>()});
        return map;
    }

  private:
    LRESULT onEnterIdle(WPARAM, LPARAM dialog) {
        ++idles;
        if (waits) return 0;
        if (steps.empty()) {
            ADD_FAILURE() << "the session ran out with its dialog open";
            ::DestroyWindow(reinterpret_cast<HWND>(dialog));
            return 0;
        }
        const Action step = std::move(steps.front());
        steps.pop_front();
        PostMessage(WM_NULL);  // another idle period, and so the next step
        step();
        return 0;
    }
};

class TestDialog : public CDialog {
  public:
    explicit TestDialog(CWnd* parent, UINT templateId = 1) : CDialog(templateId, parent) {}

    Action init, ok, timer, destroy, paint, preTranslate;

    bool PreTranslateMessage(MSG& message) override {
        run(preTranslate);
        return CDialog::PreTranslateMessage(message);
    }

    const MessageMap& messageMap() const override {
        static const MessageMap map(CDialog::messageMap(), {
                                                               on<WM_TIMER, &TestDialog::onTimer>(),
                                                               on<WM_DESTROY, &TestDialog::onDestroy>(),
                                                               on<WM_PAINT, &TestDialog::onPaint>(),
                                                           });
        return map;
    }

    void click(int id) const { ::SendMessageW(::GetDlgItem(m_hWnd, id), BM_CLICK, 0, 0); }

  protected:
    bool OnInitDialog() override {
        CDialog::OnInitDialog();
        run(init);
        return true;
    }
    void OnOK() override { ok ? ok() : CDialog::OnOK(); }

  private:
    void onTimer(UINT_PTR) { run(timer); }
    void onDestroy() { run(destroy); }
    void onPaint() {
        run(paint);
        Default();
    }
};

// Notes the messages that its window gets.
template <class Base>
class Noting : public Base {
  public:
    using Base::Base;
    std::vector<UINT> seen;

  protected:
    LRESULT WindowProc(UINT message, WPARAM w, LPARAM l) override {
        seen.push_back(message);
        return Base::WindowProc(message, w, l);
    }
};

// The templates, texts and manifest are those of the test program itself.
class OwnResources {
  public:
    OwnResources() { *AfxGetModuleState() = {GetModuleHandleW(nullptr), GetModuleHandleW(nullptr)}; }
    ~OwnResources() { *AfxGetModuleState() = {}; }
    OwnResources(const OwnResources&) = delete;
    OwnResources& operator=(const OwnResources&) = delete;
};

class MfcTest : public testing::Test {
  protected:
    OwnResources resources;
    Owner owner;
};
