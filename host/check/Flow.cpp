#include "host/check/Flow.h"

#include <algorithm>
#include <utility>

namespace check {

DialogSet DialogSet::any() {
    DialogSet set;
    set.m_isAny = true;
    return set;
}

bool DialogSet::add(const DialogSet& others) {
    bool isChanged = others.m_isAny && !m_isAny;
    m_isAny = m_isAny || others.m_isAny;
    for (const Dialog* dialog : others.dialogs()) isChanged = addOne(dialog) || isChanged;
    return isChanged;
}

bool DialogSet::addOne(const Dialog* dialog) {
    const std::span<const Dialog* const> known = dialogs();
    if (std::find(known.begin(), known.end(), dialog) != known.end()) return false;
    if (!m_one) {
        m_one = dialog;
        return true;
    }
    if (m_several.empty()) m_several.push_back(m_one);
    m_several.push_back(dialog);
    return true;
}

const DialogSet& Flow::current() const {
    static const DialogSet any = DialogSet::any();
    if (!m_opened.empty()) return m_opened.back();
    return m_isLost || m_startedBefore > 0 ? any : m_atBegin;
}

void Flow::start() {
    if (m_opened.empty())
        ++m_startedBefore;
    else
        m_opened.pop_back();
}

void Flow::lose() {
    m_isLost = true;
    m_opened.clear();
}

void Flow::call(const Flow& code) {
    if (code.m_isLost) return lose();
    // A count that grows with each round of a recursion says nothing more.
    if (code.m_startedBefore + code.m_opened.size() + m_opened.size() + m_startedBefore > 20) return lose();
    for (size_t i = 0; i < code.m_startedBefore; ++i) start();
    for (const DialogSet& dialogs : code.m_opened) open(dialogs);
}

void Flow::join(const Flow& other) {
    if (other.m_isLost || m_isLost || !isLevelWith(other)) return lose();
    m_atBegin.add(other.m_atBegin);
    for (size_t i = 0; i < m_opened.size(); ++i) m_opened[i].add(other.m_opened[i]);
}

bool Flow::isLevelWith(const Flow& other) const {
    return m_opened.size() == other.m_opened.size() && m_startedBefore == other.m_startedBefore;
}

bool Flow::hasSameEffect(const Flow& other) const {
    if (m_isLost != other.m_isLost || !isLevelWith(other)) return false;
    for (size_t i = 0; i < m_opened.size(); ++i)
        if (DialogSet(m_opened[i]).add(other.m_opened[i]) || DialogSet(other.m_opened[i]).add(m_opened[i]))
            return false;
    return true;
}

}  // namespace check
