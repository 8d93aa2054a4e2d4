#include "host/runner/HostKnowledge.h"

#include <stdexcept>

#include "host/documents/Documents.h"
#include "host/lisp/Machine.h"
#include "host/lisp/Text.h"
#include "host/runner/DialogList.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

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
    check::addFunctions(knowledge, host().lisp().machine());
    const auto missed = check::describeHostFunctions(knowledge);
    if (!missed.empty())
        throw std::logic_error("the check describes a function that isn't there: " + lisp::toUtf8(missed[0]));
    for (const std::wstring& signature : documents().signatures())
        knowledge.add(check::parseSignature(lispText(signature)));
    const ResourceModules modules = loadResourceModules({});
    const std::vector<IconCaption> captions = iconCaptions();
    for (const ListedDialog& dialog : listDialogs(modules.asked))
        knowledge.add(knownDialog(dialog, captions));
    return knowledge;
}
