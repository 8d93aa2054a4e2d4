// The language, the product's functions, and two dialogs.
#pragma once

#include "host/check/Knowledge.h"
#include "host/lisp/Interpreter.h"
#include "src/LispSignatures.h"

inline const check::Knowledge& testKnowledge() {
    static const check::Knowledge knowledge = [] {
        check::Knowledge made;
        addFunctions(made, lisp::Interpreter().machine());
        for (const char16_t* name : {u"ui_session", u"ui_click", u"ui_type", u"ui_cell"}) {
            check::Function function;
            function.name = name;
            made.add(function);
        }
        check::describeHostFunctions(made);
        for (const wchar_t* signature : LISP_SIGNATURES) {
            const std::wstring_view text(signature);
            made.add(check::parseSignature(std::u16string(text.begin(), text.end())));
        }
        made.add(check::Dialog{u"FORM",
                               {{u"OK", 1, u"default button"},
                                {u"NAME", 112, u"edit box"},
                                {u"KEEP", 113, u"check box"},
                                {u"PARTS", 114, u"list control"}}});
        made.add(check::Dialog{u"ASK", {{u"OK", 1, u"button"}, {u"TEXT", 112, u"label"}}});
        return made;
    }();
    return knowledge;
}
