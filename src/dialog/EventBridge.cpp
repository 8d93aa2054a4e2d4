#include "src/dialog/EventBridge.h"

#include "src/dialog/WexDialog.h"
#include "src/shell/LispInvoke.h"

namespace {

void putSymbol(const wchar_t* name, OwnedChain chain) { hostPutSym(name, chain.get()); }

void setEventKeyOf(const CWnd& control) {
    if (const auto* dialog = dynamic_cast<const WexDialog*>(control.GetParent()))
        setEventKey(dialog->keyForId(control.GetDlgCtrlID()));
}

// The value is set. The control, and with it its action's text, may be deleted by the call.
void publishValue(const CWnd& control, EventReason reason, CString action) {
    setEventKeyOf(control);
    setEventReason(reason);
    callLispAction(action);
}

}  // namespace

void setEventKey(const CString& key) {
    putSymbol(L"$key", OwnedChain(hostBuildList(HV_STRING, key.c_str(), 0)));
}

void setEventValue(const CString& text) {
    putSymbol(L"$value", OwnedChain(hostBuildList(HV_STRING, text.c_str(), 0)));
}

void setEventValuePoint(double x, double y) {
    OwnedChain node(hostNewRb(HV_POINT));
    node->value.pointValue[0] = x;
    node->value.pointValue[1] = y;
    putSymbol(L"$value", std::move(node));
}

void setEventValueCell(int row, int column, const CString& text) {
    const auto type = [](int number) { return static_cast<int>(number > INT16_MAX ? HV_LONG : HV_SHORT); };
    putSymbol(L"$value",
              OwnedChain(hostBuildList(type(row), row, type(column), column, HV_STRING, text.c_str(), 0)));
}

void setEventReason(int16_t reason) {
    putSymbol(L"$reason", OwnedChain(hostBuildList(HV_SHORT, static_cast<int>(reason), 0)));
}

void callLispAction(const CString& name) {
    if (!name.IsEmpty()) invokeLisp(name.c_str());
}

void publish(const CWnd& control, const CString& value, EventReason reason, const CString& action) {
    setEventValue(value);
    publishValue(control, reason, action);
}

void publishCell(const CWnd& control, int row, int column, const CString& text, EventReason reason,
                 const CString& action) {
    setEventValueCell(row, column, text);
    publishValue(control, reason, action);
}
