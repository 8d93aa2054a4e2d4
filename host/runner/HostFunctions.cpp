#include "host/runner/HostFunctions.h"

#include "host/documents/Documents.h"
#include "host/drive/Resources.h"
#include "host/runner/HostFiles.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"
#include "host/units/UnitFunctions.h"

namespace {

using lisp::Call;
using lisp::Value;

// Each of the two gives the number of documents that are open then.
Value openDocument(Call&) {
    documents().open();
    return Value::integer(static_cast<int32_t>(documents().count()));
}

Value closeDocument(Call&) {
    if (!documents().close()) throw lisp::Error(u"no document is open");
    return Value::integer(static_cast<int32_t>(documents().count()));
}

Value loadPlugin(Call& call) {
    documents().loadPlugin(systemPath(wideText(call.text(0))).wstring());
    return Value::truth();
}

Value unloadPlugin(Call& call) {
    documents().unloadPlugin(call.has(0) ? wideText(call.text(0)) : L"");
    return Value::truth();
}

Value loadActions(Call& call) {
    host().actions().load(call.text(0));
    return Value::truth();
}

// (windows gdi-objects kernel-handles)
Value resources(Call& call) {
    const HeldResources held = heldResources();
    return call.lisp.list(
        {Value::integer(held.windows), Value::integer(held.gdiObjects), Value::integer(held.kernelHandles)});
}

// (host_warn flag): whether warnings are told from now on. Gives what held before.
Value tellWarnings(Call& call) {
    const bool before = host().warnings().isHeard();
    host().warnings().setHeard(!call[0].isNil());
    return before ? Value::truth() : Value::nil();
}

Value exitProgram(Call& call) { host().exit(call.integerOr(0, host().status())); }

}  // namespace

void defineHostFunctions(lisp::Interpreter& lisp) {
    lisp.defineNative(u"host_open_document", &openDocument, nullptr, 0, 0);
    lisp.defineNative(u"host_close_document", &closeDocument, nullptr, 0, 0);
    lisp.defineNative(u"host_load_plugin", &loadPlugin, nullptr, 1, 1);
    lisp.defineNative(u"host_unload_plugin", &unloadPlugin, nullptr, 0, 1);
    lisp.defineNative(u"host_warn", &tellWarnings, nullptr, 1, 1);
    lisp.defineNative(u"host_resources", &resources, nullptr, 0, 0);
    lisp.defineNative(u"exit", &exitProgram, nullptr, 0, 1);
    defineUnitFunctions(lisp);
    // The plug-in has the files of its dialogs' actions loaded by this command.
    lisp.defineNative(u"c:wex_loadlisp", &loadActions, nullptr, 1, 1);
}
