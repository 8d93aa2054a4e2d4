// Which dialog is the current one at a place of a program, as far as that is sure.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace check {

struct Dialog;

// The dialogs of which one is current; none of them where no dialog is.
class DialogSet {
  public:
    DialogSet() = default;
    explicit DialogSet(const Dialog* dialog) : m_one(dialog) {}
    static DialogSet any();

    bool isAny() const { return m_isAny; }
    std::span<const Dialog* const> dialogs() const {
        return m_several.empty() ? std::span(&m_one, m_one ? 1 : 0)
                                 : std::span<const Dialog* const>(m_several);
    }
    // Whether that made a difference.
    bool add(const DialogSet& others);

  private:
    bool m_isAny = false;
    bool addOne(const Dialog* dialog);

    // Mostly it is one. With more, all of them stand in the vector.
    const Dialog* m_one = nullptr;
    std::vector<const Dialog*> m_several;
};

// The dialogs that code opens and starts, from where a function, an action or a file begins.
class Flow {
  public:
    explicit Flow(DialogSet atBegin) : m_atBegin(std::move(atBegin)) {}

    const DialogSet& current() const;
    // Whether the dialog that was current at the beginning still is.
    bool isAtBegin() const { return m_opened.empty() && m_startedBefore == 0 && !m_isLost; }
    void open(DialogSet dialogs) { m_opened.push_back(std::move(dialogs)); }
    // When a dialog has run, the one before it is current again.
    void start();
    // What a call of code with that flow does.
    void call(const Flow& code);
    // What holds where this one and the other come together.
    void join(const Flow& other);

    // Whether both have opened and not started equally many.
    bool isLevelWith(const Flow& other) const;
    bool hasSameEffect(const Flow& other) const;

  private:
    void lose();

    DialogSet m_atBegin;
    std::vector<DialogSet> m_opened;
    // How many dialogs of those that were open at the beginning have been started.
    size_t m_startedBefore = 0;
    bool m_isLost = false;
};

}  // namespace check
