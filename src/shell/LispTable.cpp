#include "src/shell/LispTable.h"

#include "src/shell/Module.h"

namespace {

constexpr int NAME_CHARS = 132;

template <class Visit>
void eachRow(LispTable table, Visit visit) {
    int code = 0;
    for (const WexLispFunctionRow* row : table)
        if (row) visit(*row, code++);
}

CString nameOf(const WexLispFunctionRow& row) {
    return row.name ? CString(row.name) : loadString(g_moduleInstance, row.nameStringId, NAME_CHARS);
}

}  // namespace

void defineFunctions(LispTable table) {
    eachRow(table, [](const WexLispFunctionRow& row, int code) {
        hostDefun(nameOf(row).c_str(), code);
        if (row.registerHandler == 1) hostRegFunc(row.handler, code);
    });
}

void undefineFunctions(LispTable table) {
    eachRow(table, [](const WexLispFunctionRow& row, int code) { hostUndef(nameOf(row).c_str(), code); });
}

const WexLispFunctionRow* rowOfCode(LispTable table, int code) {
    const WexLispFunctionRow* found = nullptr;
    eachRow(table, [&](const WexLispFunctionRow& row, int at) {
        if (at == code) found = &row;
    });
    return found;
}

void invokeFunction(LispTable table, int code) {
    if (const WexLispFunctionRow* row = rowOfCode(table, code)) row->handler();
}
