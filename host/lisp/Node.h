// Analysed source: a tree of nodes that evaluate themselves.
#pragma once

#include <memory>
#include <vector>

#include "host/lisp/Objects.h"

namespace lisp {

class Machine;

struct Node {
    virtual ~Node() = default;
    virtual Value eval(Machine& machine) const = 0;
};

// The nodes of one function or of one form. Owns them; keeps the objects they mention alive.
struct Code : Object {
    Code() : Object(ObjectKind::Code) {}

    template <class T, class... Arguments>
    T* make(Arguments&&... arguments) {
        auto node = std::make_unique<T>(std::forward<Arguments>(arguments)...);
        T* result = node.get();
        nodes.push_back(std::move(node));
        return result;
    }

    const Node* root = nullptr;
    std::vector<std::unique_ptr<Node>> nodes;
    std::vector<Value> constants;
};

}  // namespace lisp
