#include "host/services/ValueChain.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <string>

HostValue* newNode(int type) {
    auto* node = static_cast<HostValue*>(std::calloc(1, sizeof(HostValue)));
    if (!node) throw std::bad_alloc();
    node->type = static_cast<int16_t>(type);
    return node;
}

void* newNodeMemory(size_t bytes) {
    void* memory = std::malloc(std::max<size_t>(bytes, 1));
    if (!memory) throw std::bad_alloc();
    return memory;
}

wchar_t* newNodeText(std::wstring_view text) {
    auto* copy = static_cast<wchar_t*>(newNodeMemory((text.size() + 1) * sizeof(wchar_t)));
    std::copy(text.begin(), text.end(), copy);
    copy[text.size()] = L'\0';
    return copy;
}

void releaseChain(HostValue* chain) {
    while (chain) {
        HostValue* next = chain->next;
        if (chain->type == HV_STRING) std::free(chain->value.stringValue);
        std::free(chain);
        chain = next;
    }
}

HostValue& ChainBuilder::append(int type) {
    auto* node = new (allocate(sizeof(HostValue))) HostValue{};
    node->type = static_cast<int16_t>(type);
    (m_tail ? m_tail->next : m_head) = node;
    m_tail = node;
    return *node;
}

HostValue* buildChain(int type, va_list rest) {
    ChainBuilder chain;
    for (; type != HV_NONE && type != 0; type = va_arg(rest, int)) {
        switch (type) {
            case HV_STRING: {
                const auto* text = va_arg(rest, const wchar_t*);
                chain.appendText(std::wstring_view(text ? text : L""));
                break;
            }
            case HV_SHORT:
                chain.append(type).value.shortValue = static_cast<int16_t>(va_arg(rest, int));
                break;
            case HV_LONG:
                chain.append(type).value.longValue = va_arg(rest, int);
                break;
            case HV_REAL:
            case HV_ANGLE:
            case HV_ORIENT:
                chain.append(type).value.realValue = va_arg(rest, double);
                break;
            case HV_POINT: {
                const auto* point = va_arg(rest, const double*);
                HostValue& node = chain.append(type);
                node.value.pointValue[0] = point[0];
                node.value.pointValue[1] = point[1];
                break;
            }
            default:
                chain.append(type);
        }
    }
    return chain.take();
}
