#include "host/runner/HostKnowledge.h"

#include "host/documents/Documents.h"
#include "host/lisp/Machine.h"
#include "host/runner/DialogList.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

void addFunctions(check::Knowledge& knowledge) {
    for (const auto& [name, symbol] : host().lisp().machine().symbols) {
        if (!symbol->value.isFunction()) continue;
        const lisp::Function& defined = *symbol->value.asFunction();
        check::Function function;
        function.name = symbol->name;
        function.minimum = static_cast<int>(defined.minimum);
        function.maximum = defined.maximum == UINT32_MAX ? -1 : static_cast<int>(defined.maximum);
        knowledge.add(std::move(function));
    }
}

check::Dialog knownDialog(const ListedDialog& listed, const std::vector<IconCaption>& captions) {
    check::Dialog dialog;
    dialog.name = lispText(listed.name);
    dialog.hasTemplate = listed.layout != nullptr;
    if (listed.layout)
        for (const DialogTemplateControl& control : listed.layout->controls)
            dialog.tiles.push_back(
                {lispText(listed.keyOf(control.id)), control.id, lispText(kindWord(control, captions))});
    // A key without a control is a key all the same.
    for (size_t i = 0; i < listed.keys.keys.size(); ++i) {
        const std::u16string key = lispText(listed.keyOf(controlIdOfKey(listed.keys.keys[i], i)));
        if (!key.empty() && !dialog.tileOfKey(key))
            dialog.tiles.push_back({key, controlIdOfKey(listed.keys.keys[i], i), u""});
    }
    return dialog;
}

}  // namespace

check::Knowledge hostKnowledge() {
    check::Knowledge knowledge;
    addFunctions(knowledge);
    describeHostFunctions(knowledge);
    for (const std::wstring& signature : documents().signatures())
        knowledge.add(check::parseSignature(lispText(signature)));
    const ResourceModules modules = loadResourceModules({});
    const std::vector<IconCaption> captions = iconCaptions();
    for (const ListedDialog& dialog : listDialogs(modules.asked))
        knowledge.add(knownDialog(dialog, captions));
    return knowledge;
}
