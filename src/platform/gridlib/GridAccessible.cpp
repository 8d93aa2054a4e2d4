#include "src/platform/gridlib/GridAccessible.h"

#include <oleacc.h>

#include <algorithm>
#include <limits>
#include <string>

#include "src/platform/base/GridQuery.h"
#include "src/platform/gridlib/CountedObject.h"
#include "src/platform/gridlib/GridMessages.h"
#include "src/platform/gridlib/SelectedChildren.h"

namespace {

constexpr int64_t MOST_CHILDREN = std::numeric_limits<LONG>::max();

BSTR textOf(const std::wstring& text) {
    return SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

// It knows its grid by the window alone and asks it by message, so that it may outlive it.
class GridAccessible final : public CountedObject<IAccessible, IDispatch> {
  public:
    explicit GridAccessible(HWND grid) : m_grid(grid) {}

    // --- IDispatch: clients come by the interface itself

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        return E_NOTIMPL;
    }

    // --- the tree

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
        return AccessibleObjectFromWindow(m_grid, static_cast<DWORD>(OBJID_WINDOW), __uuidof(IDispatch),
                                          reinterpret_cast<void**>(parent));
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override {
        GridTableLook table;
        if (!ask(GridQuestion::Table, table)) return E_FAIL;
        const int64_t cells = (int64_t{table.rows} + 1) * (int64_t{table.columns} + 1);
        *count = static_cast<long>(std::min(cells, MOST_CHILDREN));
        return S_OK;
    }
    // Cells have no objects of their own.
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
        *object = nullptr;
        GridPlace at;
        return isCell(child, at) ? S_FALSE : E_INVALIDARG;
    }

    // --- what a cell is

    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
        *name = nullptr;
        GridPlace at;
        if (!isCell(child, at)) return S_FALSE;
        const std::wstring ofColumn = at.row > 0 ? shownText({0, at.column}) : L"";
        const std::wstring ofRow = at.column > 0 ? shownText({at.row, 0}) : L"";
        const std::wstring between = ofColumn.empty() || ofRow.empty() ? L"" : L", ";
        *name = textOf(ofRow + between + ofColumn);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
        *value = nullptr;
        GridPlace at;
        if (!isCell(child, at)) return S_FALSE;
        *value = textOf(shownText(at));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override {
        *description = nullptr;
        GridPlace at;
        if (!isCell(child, at)) return S_FALSE;
        *description = textOf(L"Row " + std::to_wstring(at.row) + L", column " + std::to_wstring(at.column));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
        role->vt = VT_I4;
        role->lVal = ROLE_SYSTEM_TABLE;
        GridPlace at;
        if (isCell(child, at))
            role->lVal = at.row == 0      ? ROLE_SYSTEM_COLUMNHEADER
                         : at.column == 0 ? ROLE_SYSTEM_ROWHEADER
                                          : ROLE_SYSTEM_CELL;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
        state->vt = VT_I4;
        state->lVal = IsWindowEnabled(m_grid) ? STATE_SYSTEM_FOCUSABLE : STATE_SYSTEM_UNAVAILABLE;
        GridTableLook table;
        GridCellLook cell;
        if (!ask(GridQuestion::Table, table)) return E_FAIL;
        if (!isCell(child, cell.at)) return S_OK;
        if (!ask(GridQuestion::Cell, cell)) return E_INVALIDARG;
        const bool isCurrent = cell.at.row == table.current.row && cell.at.column == table.current.column;
        if (table.hasCurrent && isCurrent && GetFocus() == m_grid) state->lVal |= STATE_SYSTEM_FOCUSED;
        state->lVal |= STATE_SYSTEM_SELECTABLE;
        if (isSelected(table, cell.at)) state->lVal |= STATE_SYSTEM_SELECTED;
        if (!cell.isEditable) state->lVal |= STATE_SYSTEM_READONLY;
        if (cell.isTicked) state->lVal |= STATE_SYSTEM_CHECKED;
        if (cell.rect.width() <= 0) state->lVal |= STATE_SYSTEM_OFFSCREEN;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height,
                                          VARIANT child) override {
        GridCellLook cell;
        RECT rect;
        if (isCell(child, cell.at)) {
            if (!ask(GridQuestion::Cell, cell)) return E_INVALIDARG;
            rect = {cell.rect.left, cell.rect.top, cell.rect.right, cell.rect.bottom};
        } else {
            GetClientRect(m_grid, &rect);
        }
        MapWindowPoints(m_grid, nullptr, reinterpret_cast<POINT*>(&rect), 2);
        *left = rect.left;
        *top = rect.top;
        *width = rect.right - rect.left;
        *height = rect.bottom - rect.top;
        return S_OK;
    }

    // --- ways between them

    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override {
        GridTableLook table;
        child->vt = VT_EMPTY;
        const HWND focus = GetFocus();
        if (!ask(GridQuestion::Table, table) || !focus || (focus != m_grid && !IsChild(m_grid, focus)))
            return S_FALSE;
        setChild(child, table.hasCurrent ? childOf(table.current.row, table.current.column, table.columns)
                                         : CHILDID_SELF);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
        GridTableLook table;
        children->vt = VT_EMPTY;
        if (!ask(GridQuestion::Table, table) || table.areaCount == 0) return S_FALSE;
        const GridArea& first = table.areas[0];
        if (table.areaCount == 1 && first.top == first.bottom && first.left == first.right) {
            setChild(children, childOf(first.top, first.left, table.columns));
        } else {
            children->vt = VT_UNKNOWN;
            children->punkVal = selectedChildren({table.areas, table.areas + table.areaCount}, table.columns);
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT* child) override {
        child->vt = VT_EMPTY;
        POINT at{x, y};
        RECT client;
        ScreenToClient(m_grid, &at);
        GetClientRect(m_grid, &client);
        if (!PtInRect(&client, at)) return S_FALSE;
        GridTableLook table;
        if (!ask(GridQuestion::Table, table)) return E_FAIL;
        setChild(child, cellAt(table, at));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT* end) override {
        end->vt = VT_EMPTY;
        GridTableLook table;
        if (!ask(GridQuestion::Table, table)) return E_FAIL;
        GridPlace at;
        if (!isCell(start, at)) {
            if (direction == NAVDIR_FIRSTCHILD) setChild(end, 1);
            if (direction == NAVDIR_LASTCHILD)
                setChild(end, childOf(table.rows, table.columns, table.columns));
            return end->vt == VT_EMPTY ? S_FALSE : S_OK;
        }
        int64_t row = at.row, col = at.column;
        if (direction == NAVDIR_UP) --row;
        if (direction == NAVDIR_DOWN) ++row;
        if (direction == NAVDIR_LEFT || direction == NAVDIR_PREVIOUS) --col;
        if (direction == NAVDIR_RIGHT || direction == NAVDIR_NEXT) ++col;
        if (direction == NAVDIR_PREVIOUS && col < 0) --row, col = table.columns;
        if (direction == NAVDIR_NEXT && col > table.columns) ++row, col = 0;
        if (row < 0 || col < 0 || row > table.rows || col > table.columns) return S_FALSE;
        setChild(end, childOf(static_cast<uint32_t>(row), static_cast<uint32_t>(col), table.columns));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT child) override {
        GridPlace at;
        if (!isCell(child, at) || at.row == 0) return E_INVALIDARG;
        if (flags & SELFLAG_TAKEFOCUS) SetFocus(m_grid);
        const WPARAM place = uint64_t{at.row} << 32 | at.column;
        return SendMessageW(m_grid, WM_GRID_SELECT, place, flags) ? S_OK : S_FALSE;
    }

    // --- what cells don't have

    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR* help) override { return none(help); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT, long*) override { return none(file); }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT, BSTR* keys) override { return none(keys); }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT, BSTR* action) override { return none(action); }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

  private:
    ~GridAccessible() override = default;

    static HRESULT none(BSTR* text) {
        *text = nullptr;
        return S_FALSE;
    }
    static void setChild(VARIANT* to, long child) {
        to->vt = VT_I4;
        to->lVal = child;
    }

    template <class Record>
    bool ask(GridQuestion question, Record& record) const {
        static const UINT message = RegisterWindowMessageW(GRID_QUERY_MESSAGE);
        return SendMessageW(m_grid, message, static_cast<WPARAM>(question),
                            reinterpret_cast<LPARAM>(&record)) != 0;
    }

    bool isCell(const VARIANT& child, GridPlace& at) const {
        GridTableLook table;
        if (child.vt != VT_I4 || child.lVal <= 0 || !ask(GridQuestion::Table, table)) return false;
        const int64_t index = child.lVal - 1, wide = int64_t{table.columns} + 1;
        at = {static_cast<uint32_t>(index / wide), static_cast<uint32_t>(index % wide)};
        return at.row <= table.rows;
    }

    std::wstring shownText(GridPlace at) const {
        GridCellLook cell;
        cell.at = at;
        return ask(GridQuestion::Cell, cell) ? cell.text : L"";
    }

    static bool isSelected(const GridTableLook& table, GridPlace at) {
        return std::any_of(table.areas, table.areas + table.areaCount,
                           [&](const GridArea& area) { return area.contains(at); });
    }

    // The child at that place of the client area; the table itself where there is no cell.
    long cellAt(const GridTableLook& table, POINT at) const {
        const LRESULT place = SendMessageW(m_grid, WM_GRID_CELL_AT, static_cast<WPARAM>(at.x), at.y);
        const uint32_t row = static_cast<uint32_t>(place >> 32), col = static_cast<uint32_t>(place);
        return row > table.rows || col > table.columns ? CHILDID_SELF : childOf(row, col, table.columns);
    }

    HWND m_grid;
};

}  // namespace

LRESULT gridObject(HWND grid, WPARAM w) {
    auto* object = new GridAccessible(grid);
    const LRESULT result = LresultFromObject(__uuidof(IAccessible), w, object);
    object->Release();
    return result;
}

long childOf(uint32_t row, uint32_t col, uint32_t colCount) {
    const int64_t child = int64_t{row} * (int64_t{colCount} + 1) + col + 1;
    return static_cast<long>(std::min(child, MOST_CHILDREN));
}
