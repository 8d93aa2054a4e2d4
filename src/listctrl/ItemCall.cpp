#include "src/listctrl/ItemCall.h"

namespace {

// Takes a short where the chain has one.
void readNumber(const HostValue*& node, int& number) {
    if (!node || node->type != HV_SHORT) return;
    number = node->value.shortValue;
    node = node->next;
}

}  // namespace

std::optional<ItemCall> itemCallFrom(const HostValue* arguments) {
    ItemCall call;
    readNumber(arguments, call.row);
    readNumber(arguments, call.column);
    if (!arguments) return std::nullopt;
    if (arguments->type == HV_STRING) call.text = arguments->value.stringValue;
    return call;
}
