#include "src/records/ResultChain.h"

#include <new>

void ResultChain::appendFields(const Record& record) {
    for (size_t at = 0; at < record.size(); ++at)
        hostNewString(record.field(at).data(), &append(HV_STRING).value.stringValue);
}

void ResultChain::appendRecord(const Record& record) {
    append(HV_LIST_BEGIN);
    appendFields(record);
    append(HV_LIST_END);
}

HostValue& ResultChain::append(int type) {
    HostValue* node = hostNewRb(type);
    if (!node) throw std::bad_alloc();
    if (m_tail)
        m_tail->next = node;
    else
        m_head.reset(node);
    m_tail = node;
    return *node;
}
