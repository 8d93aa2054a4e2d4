// What an assistive program reads of a grid and does with it.
#include <oleacc.h>

#include "tests/ui/gridlib/Support.h"

namespace {

class AccessibleTest : public GridTest {
  protected:
    AccessibleTest() {
        CoInitialize(nullptr);
        fill(20, 2);
        AccessibleObjectFromWindow(grid.m_hWnd, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                   reinterpret_cast<void**>(&client));
    }
    ~AccessibleTest() override {
        if (client) client->Release();
        CoUninitialize();
    }

    static VARIANT child(long id) {
        VARIANT child;
        child.vt = VT_I4;
        child.lVal = id;
        return child;
    }
    // The child of a cell, as a client finds it: by going through the table.
    VARIANT cell(uint32_t row, uint32_t col) {
        VARIANT at;
        client->accNavigate(NAVDIR_FIRSTCHILD, child(CHILDID_SELF), &at);
        for (uint32_t i = 0; i < row; ++i) client->accNavigate(NAVDIR_DOWN, at, &at);
        for (uint32_t i = 0; i < col; ++i) client->accNavigate(NAVDIR_RIGHT, at, &at);
        return at;
    }
    template <class Get>
    std::wstring text(Get get, const VARIANT& of) {
        BSTR text = nullptr;
        (client->*get)(of, &text);
        const std::wstring copy = text ? text : L"";
        SysFreeString(text);
        return copy;
    }
    template <class Get>
    long number(Get get, const VARIANT& of) {
        VARIANT number;
        (client->*get)(of, &number);
        return number.lVal;
    }

    std::vector<long> selectedChildren() {
        VARIANT selection;
        client->get_accSelection(&selection);
        if (selection.vt != VT_UNKNOWN) return {selection.lVal};
        IEnumVARIANT* children = nullptr;
        selection.punkVal->QueryInterface(__uuidof(IEnumVARIANT), reinterpret_cast<void**>(&children));
        selection.punkVal->Release();
        std::vector<long> ids;
        ULONG given;
        for (VARIANT next; children && children->Next(1, &next, &given) == S_OK;) ids.push_back(next.lVal);
        if (children) children->Release();
        return ids;
    }

    IAccessible* client = nullptr;
};

TEST_F(AccessibleTest, EachCellHasTextHeadersPlaceRoleAndState) {
    ASSERT_NE(client, nullptr);
    long count = 0;
    client->get_accChildCount(&count);
    EXPECT_EQ(count, 21 * 3);
    EXPECT_EQ(number(&IAccessible::get_accRole, child(CHILDID_SELF)), ROLE_SYSTEM_TABLE);

    grid.SetStyleRange(CGXRange(2, 1), CGXStyle().SetReadOnly(true));
    press(2, 1);
    const VARIANT at = cell(2, 1);
    EXPECT_EQ(text(&IAccessible::get_accValue, at), L"2:1");
    EXPECT_EQ(text(&IAccessible::get_accName, at), L"2:0, 0:1");
    EXPECT_EQ(text(&IAccessible::get_accDescription, at), L"Row 2, column 1");
    EXPECT_EQ(number(&IAccessible::get_accRole, at), ROLE_SYSTEM_CELL);
    EXPECT_EQ(number(&IAccessible::get_accRole, cell(2, 0)), ROLE_SYSTEM_ROWHEADER);
    EXPECT_EQ(number(&IAccessible::get_accRole, cell(0, 1)), ROLE_SYSTEM_COLUMNHEADER);
    const long state = number(&IAccessible::get_accState, at);
    EXPECT_TRUE(state & STATE_SYSTEM_SELECTED);
    EXPECT_TRUE(state & STATE_SYSTEM_FOCUSED);
    EXPECT_TRUE(state & STATE_SYSTEM_READONLY);
    EXPECT_TRUE(number(&IAccessible::get_accState, cell(20, 1)) & STATE_SYSTEM_OFFSCREEN);

    long left, top, width, height;
    client->accLocation(&left, &top, &width, &height, at);
    VARIANT found;
    EXPECT_EQ(client->accHitTest(left + 1, top + 1, &found), S_OK);
    EXPECT_EQ(found.lVal, at.lVal);
    EXPECT_EQ(client->accHitTest(left, top + 2000, &found), S_FALSE);
}

TEST_F(AccessibleTest, StateTellsWhatAPersonMayChangeAndWhatIsTicked) {
    grid.SetStyleRange(CGXRange(1, 1, 2, 1), CGXStyle().SetControl(CONTROL_CHECK).SetValue(L"0"));
    grid.SetValueRange(CGXRange(2, 1), L"1");
    grid.SetStyleRange(CGXRange(3, 1), CGXStyle().SetControl(CONTROL_STATIC));
    constexpr long BOTH = STATE_SYSTEM_READONLY | STATE_SYSTEM_CHECKED;
    const auto state = [&](uint32_t row, uint32_t col) {
        return number(&IAccessible::get_accState, cell(row, col)) & BOTH;
    };
    EXPECT_EQ(state(1, 1), 0);
    EXPECT_EQ(state(2, 1), STATE_SYSTEM_CHECKED);
    EXPECT_EQ(state(3, 1), STATE_SYSTEM_READONLY);
    EXPECT_EQ(state(0, 1), STATE_SYSTEM_READONLY);
}

// Each as its number and the child that it is about.
std::vector<std::pair<DWORD, long>> noticed;

void CALLBACK notice(HWINEVENTHOOK, DWORD event, HWND, LONG object, LONG child, DWORD, DWORD) {
    if (object == OBJID_CLIENT) noticed.emplace_back(event, child);
}

TEST_F(AccessibleTest, SelectionAndValuesAreToldToWhoListens) {
    press(1, 1);
    noticed.clear();
    const HWINEVENTHOOK hook = SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_VALUECHANGE, nullptr, notice,
                                               GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    const auto take = [] {
        pump();
        return std::exchange(noticed, {});
    };
    using Noticed = std::vector<std::pair<DWORD, long>>;
    const long first = cell(1, 1).lVal, second = cell(2, 1).lVal;
    key(VK_DOWN);
    EXPECT_EQ(take(), (Noticed{{EVENT_OBJECT_FOCUS, second}, {EVENT_OBJECT_SELECTION, second}}));
    key(VK_UP, {VK_SHIFT});
    EXPECT_EQ(take(), (Noticed{{EVENT_OBJECT_FOCUS, second}, {EVENT_OBJECT_SELECTIONWITHIN, CHILDID_SELF}}));
    key(VK_DELETE);
    EXPECT_EQ(take(), (Noticed{{EVENT_OBJECT_VALUECHANGE, first}, {EVENT_OBJECT_VALUECHANGE, second}}));
    grid.SetValueRange(CGXRange(1, 1, 20, 2), L"program");
    EXPECT_EQ(take(), (Noticed{{EVENT_OBJECT_VALUECHANGE, second}})) << "the current cell";
    UnhookWinEvent(hook);
}

TEST_F(AccessibleTest, ClientMovesTheCurrentCellAsAPersonDoes) {
    grid.events.clear();
    client->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, cell(15, 2));
    EXPECT_EQ(grid.takeEvents(), Events{L"select 15 2 15 2 key"});
    VARIANT focus;
    client->get_accFocus(&focus);
    EXPECT_EQ(focus.lVal, cell(15, 2).lVal);
    EXPECT_EQ(client->accSelect(SELFLAG_TAKESELECTION, cell(0, 1)), E_INVALIDARG) << "a header";

    client->accSelect(SELFLAG_EXTENDSELECTION, cell(16, 1));
    client->accSelect(SELFLAG_ADDSELECTION, cell(3, 1));
    EXPECT_EQ(grid.takeEvents(), (Events{L"select 15 1 16 2 key", L"select 3 1 3 1 key"}));
    client->accSelect(SELFLAG_ADDSELECTION, cell(16, 2));
    EXPECT_EQ(grid.takeEvents(), Events()) << "it is selected";
    EXPECT_EQ(selectedChildren(), (std::vector{cell(15, 1).lVal, cell(15, 2).lVal, cell(16, 1).lVal,
                                               cell(16, 2).lVal, cell(3, 1).lVal}));
    EXPECT_EQ(client->accSelect(SELFLAG_REMOVESELECTION, cell(15, 1)), S_FALSE) << "a range has no holes";
    EXPECT_EQ(client->accSelect(SELFLAG_REMOVESELECTION, cell(3, 1)), S_OK);
    EXPECT_EQ(selectedChildren().size(), 4u);
    client->accSelect(SELFLAG_TAKESELECTION, cell(3, 1));
    EXPECT_EQ(selectedChildren(), std::vector{cell(3, 1).lVal});

    grid.DestroyWindow();
    long count;
    EXPECT_EQ(client->get_accChildCount(&count), E_FAIL) << "it outlives its window";
}

}  // namespace
