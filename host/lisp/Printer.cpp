#include "host/lisp/Printer.h"

#include "host/lisp/Machine.h"
#include "host/lisp/Reader.h"
#include "host/lisp/Text.h"

namespace lisp {

namespace {

// Stops soon after the limit: a list that holds another many times over is small in memory only.
struct Printer {
    const Machine& machine;
    bool forReading;
    size_t limit;
    std::u16string out;

    void append(Value value);
    void appendList(Value list);
};

void Printer::appendList(Value list) {
    char16_t separator = u'(';
    for (; list.isCons() && out.size() <= limit; list = list.cdr()) {
        out += separator;
        append(list.car());
        separator = u' ';
    }
    if (!list.isNil()) {
        out += u" . ";
        append(list);
    }
    out += u')';
}

void Printer::append(Value value) {
    machine.checkDepth();
    if (out.size() > limit) return;
    if (value.isNil()) {
        out += u"nil";
    } else if (value.isInteger()) {
        out += decimal(int64_t(value.asInteger()));
    } else if (value.isReal()) {
        out += decimal(value.asReal());
    } else if (value.isString()) {
        out += forReading ? readable(value.asString()) : value.asString();
    } else if (value.isCons()) {
        appendList(value);
    } else if (value.isFunction()) {
        const Function* function = value.asFunction();
        out += function->native ? u"#<native " : u"#<function ";
        out += (function->name ? lowerCase(function->name->name) : u"lambda") + u">";
    } else if (value.isFile()) {
        out += u"#<file " + readable(value.asFile()->name) + u">";
    } else {
        out += value.symbolName();
    }
}

}  // namespace

std::u16string printed(const Machine& machine, Value value, bool forReading) {
    constexpr size_t LONGEST = size_t(1) << 24;
    Printer printer{machine, forReading, LONGEST, {}};
    printer.append(value);
    if (printer.out.size() > LONGEST) throw Error(u"too long to print");
    return std::move(printer.out);
}

std::u16string abbreviated(const Machine& machine, Value value) {
    constexpr size_t LONGEST = 60;
    Printer printer{machine, true, LONGEST, {}};
    printer.append(value);
    if (printer.out.size() > LONGEST) printer.out = printer.out.substr(0, LONGEST) + u"\u2026";
    return std::move(printer.out);
}

}  // namespace lisp
