#include "src/listctrl/ListCtrlFunctions.h"

#include <cmath>

#include "src/dialog/TileWarnings.h"
#include "src/listctrl/ItemCall.h"
#include "src/listctrl/ListCells.h"
#include "src/listctrl/ListCheck.h"
#include "src/listctrl/ListColumns.h"
#include "src/listctrl/ListRows.h"
#include "src/listctrl/WexListCtrl.h"
#include "src/platform/host/HostServices.h"

namespace {

constexpr int DEFAULT_WIDTH = 75;  // pixels at 96 dots per inch

double displayScale() { return hostMonitorDpiXScale(nullptr); }

// The width as the message takes it. kept: -1 and -2 are crossed with those of the platform.
constexpr LPARAM widthParameter(int width) {
    constexpr LPARAM fitHeader = LPARAM{static_cast<uint16_t>(LVSCW_AUTOSIZE_USEHEADER)};
    constexpr LPARAM fitContents = LPARAM{static_cast<uint16_t>(LVSCW_AUTOSIZE)};
    if (width == -1) return fitHeader;
    if (width == -2) return fitContents;
    return static_cast<uint16_t>(width);
}

void keepColumnText(CWnd& list, const CString& text) {
    if (auto* wrapper = dynamic_cast<WexListCtrl*>(&list)) wrapper->m_columnRef = text;
}

// The check of the functions that say of another tile that they can't use it.
bool isUsableListControl(const CWnd* control) {
    if (!control || isListControl(control)) return control;
    alertText(TEXT_UNUSABLE_FOR_LIST_CONTROL);
    return false;
}

void warnNoColumn(int column) {
    warn(WARN_OUTSIDE, [=] { return L"the list has no column " + std::to_wstring(column); });
}

// -1 where there is none, and that names no column.
int columnArgument(LispCall& call) {
    const auto column = call.shortNumber();
    if (column == -1) warnNoColumn(-1);
    return column.value_or(-1);
}

// What becomes of the text, where that isn't what the numbers say.
void warnOfItem(const CWnd& list, const ItemCall& item, int rows) {
    if (!item.isText) warn(WARN_NO_EFFECT, L"the text is no string: it counts as an empty one");
    const auto number = [](int n) { return std::to_wstring(n); };
    if (!item.setsCell(rows)) {
        // A row behind the last one is where the text goes.
        if (item.row > rows)
            warn(WARN_OUTSIDE, [&] {
                return L"the list has no row " + number(item.row) + L": the text becomes row " + number(rows);
            });
        else if (item.column > 0)
            warn(WARN_OUTSIDE, [&] {
                return L"the list has no row " + number(item.row) +
                       L" yet: the text becomes it, from its first column on";
            });
    } else if (item.row < 0) {
        warn(WARN_OUTSIDE, [&] { return L"the list has no row " + number(item.row); });
    } else if (item.column == -1) {
        warn(WARN_NO_EFFECT,
             [&] { return L"row " + number(item.row) + L" is set by a column only, and none is given"; });
    } else if (item.column < 0 || (item.column > 0 && item.column >= columnCount(list))) {
        warnNoColumn(item.column);
    }
}

// Behind the first tab comes the first column's title.
void warnOfColumnText(const CString& text) {
    const CString first = text.substr(0, text.find(L'\t'));
    if (!first.IsEmpty())
        warn(WARN_NO_EFFECT, [&] {
            return quoted(first) + L" makes no column: titles stand behind tabs, the first one too";
        });
}

constexpr wchar_t ONLY_T[] = L"only T is understood: what is on stays on";
constexpr std::wstring_view LIST_CONTROL_CLASS[] = {L"SysListView32"};

}  // namespace

void listAddColumn(LispCall& call) {
    const CWnd* list = listControlOf(call.tile());
    const std::optional<CString> title = call.text();
    if (!list || !title) return call.retNil();
    const int given = call.shortOr(-1);
    if (given < -1) call.warnOfArgument([=] { return noSuch(L"width", given); });
    const double width = (given == -1 ? DEFAULT_WIDTH : given) * displayScale();
    insertColumn(*list, columnCount(*list), *title, static_cast<int>(std::lround(width)));
    call.retVoid();
}

void listAddItem(LispCall& call) {
    const CWnd* list = listControlOf(call.tile());
    const std::optional<ItemCall> item = itemCallFrom(call.rest());
    if (!item) call.warnMissing();
    if (!list || !item) return call.retNil();
    const int rows = rowCount(*list);
    if (item->row != -1 || !item->isText) warnOfItem(*list, *item, rows);
    if (item->isText && !item->isLast)
        warn(WARN_UNUSED_ARGUMENT,
             L"the text is the last argument: what stands behind it counts for nothing");
    if (item->setsCell(rows))
        setCell(*list, item->row, item->column, item->text);
    else
        appendRow(*list, item->text);
    call.retVoid();
}

void listSetColumnWidth(LispCall& call) {
    const CWnd* list = listControlOf(call.tile());
    const int column = columnArgument(call);
    if (!list || column == -1) return call.retNil();
    const int width = call.shortOr(-1);
    if (width < -2) call.warnOfArgument([=] { return noSuch(L"width", width); });
    if (!list->SendMessage(LVM_SETCOLUMNWIDTH, column, widthParameter(width))) warnNoColumn(column);
    call.retVoid();
}

void listGetColumnWidth(LispCall& call) {
    const CWnd* list = listControlOf(call.tile());
    const int column = columnArgument(call);
    if (!list || column == -1) return call.retNil();
    const auto pixels = static_cast<int>(list->SendMessage(LVM_GETCOLUMNWIDTH, column));
    if (pixels == 0 && column >= columnCount(*list)) warnNoColumn(column);
    call.ret(static_cast<int>(std::lround(pixels / displayScale())));
}

void listShowGridLines(LispCall& call) {
    const CWnd* list = listControlOf(call.tile());
    const bool show = call.isTrue();
    if (!list || call.lacksArgument()) return call.retNil();
    call.retVoid();
    if (!show) {
        warn(WARN_NO_EFFECT, ONLY_T);
        return alertText(TEXT_UNUSABLE_FOR_LIST_CONTROL);
    }
    list->SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_GRIDLINES, LVS_EX_GRIDLINES);
}

void listSetColumns(LispCall& call) {
    const TileAddress tile = call.tile();
    const CString text = call.textOrEmpty();
    if (call.lacksArgument()) return call.retNil();
    call.retVoid();
    WexDialog* dialog = dialogToWork();
    if (!dialog) return;
    warnOfColumnText(text);
    if (!dialog->m_hWnd) warnUnlessOfClass(*dialog, tile, LIST_CONTROL_CLASS, L"list controls");
    if (CWnd* control = dialog->itemFor(tile)) {
        if (!isUsableListControl(control)) return;
        if (columnCount(*control) > 0) warn(WARN_NO_EFFECT, L"the list has columns already, and keeps them");
        keepColumnText(*control, text);
        applyColumnText(*control, text);
    } else if (CCtrlInfo* record = dialog->tileFor(tile)) {
        record->m_auxText = text;
    }
}

void listSetColumnReference(LispCall& call) {
    CWnd* control = controlOf(call.tile());
    const CString text = call.textOrEmpty();
    if (call.lacksArgument()) return call.retNil();
    call.retVoid();
    if (text.IsEmpty() || !isUsableListControl(control)) return;
    keepColumnText(*control, text);
    const CCtrlInfo* record = currentDialog()->tileForControl(control);
    if (record && !record->m_listItems.empty())
        reloadWaitingRows(*control, *record);
    else
        warn(WARN_NO_EFFECT, L"no rows waited for the dialog's start, so that none come back");
}

void listDeleteColumn(LispCall& call) {
    const CWnd* list = listControlOf(call.tile());
    const int column = columnArgument(call);
    if (!list || column == -1) return call.retNil();
    if (!deleteColumn(*list, column)) warnNoColumn(column);
    call.retVoid();
}

void listRenameColumn(LispCall& call) {
    const CWnd* list = listControlOf(call.tile());
    const int column = columnArgument(call);
    const std::optional<CString> title = call.text();
    if (!list || column == -1 || !title) return call.retNil();
    if (!renameColumn(*list, column, *title)) warnNoColumn(column);
    call.retVoid();
}

void listGetColCount(LispCall& call) {
    const CWnd* control = controlOf(call.tile());
    if (!isUsableListControl(control)) return call.retNil();
    call.ret(columnCount(*control));
}

void listSetItemCount(LispCall& call) {
    const TileAddress tile = call.tile();
    const auto given = call.shortOrLong();
    const int count = given.value_or(-1);
    const CWnd* list = call.lacksArgument() ? nullptr : listControlOf(tile);
    if (!list) return call.retNil();
    call.retVoid();
    // A list that the dialog didn't look at isn't known to be one.
    if (count != -1 && list->IsKindOf(RUNTIME_CLASS(CListCtrl))) list->SendMessage(LVM_SETITEMCOUNT, count);
    if (given && count < 0)
        warn(WARN_OUTSIDE, [=] { return std::to_wstring(count) + L" is no number of rows"; });
    if (!(list->GetStyle() & LVS_OWNERDATA))
        warn(WARN_OTHER_KIND, L"the list isn't a virtual one: its rows are those that it was given");
}
