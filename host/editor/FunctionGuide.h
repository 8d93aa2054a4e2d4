// The entries of docs/lisp-functions.md, by function.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace editor {

class FunctionGuide {
  public:
    FunctionGuide() = default;
    // `markdown`: an entry begins with a heading such as "### (name *argument*), (other …)" and lasts to the
    // next heading.
    explicit FunctionGuide(std::string_view markdown);

    bool isEmpty() const { return m_entries.empty(); }
    // The entry in which the function stands, as Markdown; empty where there is none. `name` in lower case.
    std::string_view entry(std::string_view name) const;

  private:
    // Functions that share an entry share its text.
    std::map<std::string, std::shared_ptr<const std::string>, std::less<>> m_entries;
};

}  // namespace editor
