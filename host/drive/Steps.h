// What is left to do of a form: a person does one thing, sees what comes of it, and then does the next.
#pragma once

#include <windows.h>

#include <functional>
#include <list>

class Steps {
  public:
    using Work = std::function<void()>;

    bool isEmpty() const { return m_waiting.empty(); }

    // Has the work done when the loop of `dialog` next runs empty, behind the steps that wait already and
    // before the next form. With null any dialog's loop will do: a key is let go wherever the press has led.
    // What a step itself adds comes before what waited behind it.
    void add(HWND dialog, Work work) { m_waiting.push_back({dialog, std::move(work)}); }

    // Does the first step that may be done in that dialog, with null the first that may be done anywhere.
    // False where there is none. Throws what the step throws.
    bool doNext(HWND dialog) {
        for (auto at = m_waiting.begin(); at != m_waiting.end(); ++at) {
            if (at->dialog && at->dialog != dialog) continue;
            const Work work = std::move(at->work);
            m_waiting.erase(at);
            const SetAside others(m_waiting);
            work();
            return true;
        }
        return false;
    }

    // The dialog is gone, and nobody can go on there.
    void forget(HWND dialog) {
        std::erase_if(m_waiting, [=](const Step& step) { return step.dialog == dialog; });
    }

  private:
    struct Step {
        HWND dialog;
        Work work;
    };

    // Takes the steps out of the list, and puts them behind those that have come meanwhile.
    class SetAside {
      public:
        explicit SetAside(std::list<Step>& list) : m_list(list) { m_taken.swap(list); }
        ~SetAside() { m_list.splice(m_list.end(), m_taken); }
        SetAside(const SetAside&) = delete;
        SetAside& operator=(const SetAside&) = delete;

      private:
        std::list<Step>& m_list;
        std::list<Step> m_taken;
    };

    std::list<Step> m_waiting;
};
