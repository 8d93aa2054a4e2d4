// The module's open dialogs, from their making to the end of their run. Portable.
#pragma once

#include <memory>
#include <vector>

// Holds the dialogs in the order in which they were made and the one that the tile functions work on, which
// at all times is the newest or none. Dialogs are deleted here and nowhere else.
template <class Dialog>
class DialogRegistry {
  public:
    Dialog* current() const { return m_current; }
    Dialog* newest() const { return m_dialogs.empty() ? nullptr : m_dialogs.back().get(); }
    // The dialog made just before the newest; null when there is none.
    Dialog* beforeNewest() const { return m_dialogs.size() < 2 ? nullptr : (m_dialogs.end() - 2)->get(); }
    bool empty() const { return m_dialogs.empty(); }
    const std::vector<std::unique_ptr<Dialog>>& dialogs() const { return m_dialogs; }

    // No dialog is current any more, though those that are open stay.
    void clearCurrent() { m_current = nullptr; }

    void add(std::unique_ptr<Dialog> dialog) {
        m_current = dialog.get();
        m_dialogs.push_back(std::move(dialog));
    }

    // A run is over: the newest dialog goes, whichever ran, and the one made before it becomes current.
    void removeNewest() {
        m_current = nullptr;
        if (m_dialogs.empty()) return;
        // The object may look here while it is deleted; it must not find itself.
        const std::unique_ptr<Dialog> gone = std::move(m_dialogs.back());
        m_dialogs.pop_back();
        m_current = newest();
    }

  private:
    std::vector<std::unique_ptr<Dialog>> m_dialogs;
    Dialog* m_current = nullptr;
};
