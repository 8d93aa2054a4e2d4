#include "src/dialog/EventBridge.h"

#include "src/dialog/WexDialog.h"
#include "src/shell/LispInvoke.h"

namespace {

void putSymbol(const wchar_t* name, OwnedChain chain) { hostPutSym(name, chain.get()); }

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

void setEventReason(int16_t reason) {
    putSymbol(L"$reason", OwnedChain(hostBuildList(HV_SHORT, static_cast<int>(reason), 0)));
}

void callLispAction(const CString& name) {
    if (!name.IsEmpty()) invokeLisp(name.c_str());
}

void publish(const CWnd& control, const CString& value, EventReason reason, const CString& action) {
    const CString called = action;  // the control may be deleted by the call
    if (const auto* dialog = dynamic_cast<const WexDialog*>(control.GetParent()))
        setEventKey(dialog->keyForId(control.GetDlgCtrlID()));
    setEventValue(value);
    setEventReason(reason);
    callLispAction(called);
}
