#include "host/lisp/Error.h"

#include "host/lisp/Text.h"

namespace lisp {

Error::Error(std::u16string message, int argument)
    : message_(std::move(message)), utf8_(toUtf8(message_)), argument_(argument) {}

std::u16string Error::text() const {
    std::u16string text;
    if (!file_.empty()) text += file_ + u":" + decimal(int64_t(line_)) + u": ";
    if (!function_.empty()) text += u"(" + function_ + u"): ";
    if (argument_) text += u"argument " + decimal(int64_t(argument_)) + u": ";
    return text + message_;
}

void Error::locate(std::u16string_view file, int line, std::u16string_view function) {
    if (located_) return;
    located_ = true;
    file_ = file;
    line_ = line;
    function_ = function;
    utf8_ = toUtf8(text());
}

}  // namespace lisp
