#include "src/listctrl/ItemCall.h"

#include "src/shell/ValueOf.h"

namespace {

// Takes a short where the chain has one.
void readNumber(const HostValue*& node, int& number) {
    const auto found = node ? shortOf(*node) : std::nullopt;
    if (!found) return;
    number = *found;
    node = node->next;
}

}  // namespace

std::optional<ItemCall> itemCallFrom(const HostValue* arguments) {
    ItemCall call;
    readNumber(arguments, call.row);
    readNumber(arguments, call.column);
    if (!arguments) return std::nullopt;
    const wchar_t* text = textOf(*arguments);
    call.isText = text;
    call.isLast = !arguments->next;
    if (text) call.text = text;
    return call;
}
