// Which controls stand on which page of a tab control, and what shows when a page is selected. Portable.
#pragma once

#include <functional>
#include <vector>

#include "src/platform/host/HostValue.h"

class CWnd;

// How a page's arguments find their controls; null where there is none.
struct ControlLookup {
    std::function<CWnd*(const wchar_t* key)> byKey;
    std::function<CWnd*(int id)> byId;
};

// The controls that a chain of arguments names: a string is a key, a short a control id. What finds none
// counts for nothing. kept: any other node stands for the control that the node before it found.
std::vector<CWnd*> membersOf(const HostValue* arguments, const ControlLookup& find);

// What to do when a page is selected, in this order. No control is in both lists, or twice in one.
struct PageChange {
    std::vector<CWnd*> hide;
    std::vector<CWnd*> show;
};

// The pages of one tab control, in the order of its tabs. The controls belong to the dialog. A control may
// stand on several pages, or several times on one; one that stands on none is never touched.
class PageMembers {
  public:
    void addPage() { m_pages.emplace_back(); }
    // Raises CInvalidArgException where there is no such page.
    void add(int page, CWnd* member);
    // With no such page everything is hidden.
    PageChange changeTo(int page) const;

  private:
    bool exists(int page) const { return page >= 0 && static_cast<size_t>(page) < m_pages.size(); }

    std::vector<std::vector<CWnd*>> m_pages;
};
