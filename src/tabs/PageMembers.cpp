#include "src/tabs/PageMembers.h"

#include <algorithm>

#include "src/platform/base/CInvalidArgException.h"
#include "src/shell/ValueOf.h"

namespace {

bool contains(const std::vector<CWnd*>& controls, const CWnd* control) {
    return std::find(controls.begin(), controls.end(), control) != controls.end();
}

}  // namespace

std::vector<CWnd*> membersOf(const HostValue* arguments, const ControlLookup& find) {
    std::vector<CWnd*> members;
    CWnd* found = nullptr;
    for (const HostValue* node = arguments; node; node = node->next) {
        if (const wchar_t* key = textOf(*node)) found = find.byKey(key);
        if (const auto id = shortOf(*node)) found = find.byId(*id);
        if (found) members.push_back(found);
    }
    return members;
}

void PageMembers::add(int page, CWnd* member) {
    if (!exists(page)) AfxThrowInvalidArgException();
    m_pages[page].push_back(member);
}

PageChange PageMembers::changeTo(int page) const {
    PageChange change;
    if (exists(page))
        for (CWnd* member : m_pages[page])
            if (!contains(change.show, member)) change.show.push_back(member);
    for (const auto& members : m_pages)
        for (CWnd* member : members)
            if (!contains(change.show, member) && !contains(change.hide, member))
                change.hide.push_back(member);
    return change;
}
