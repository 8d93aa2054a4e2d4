// The language server protocol, without its streams: messages in, messages out.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/check/CheckProgram.h"
#include "host/editor/FunctionGuide.h"
#include "host/editor/OpenText.h"

namespace editor {

// The file that `load` means by `name` in a program whose document has that URI.
using FindBeside =
    std::function<std::optional<check::Source>(std::string_view uri, std::u16string_view name)>;

class LanguageServer {
  public:
    // `knowledge` must outlive the server.
    LanguageServer(const check::Knowledge& knowledge, FindBeside find, FunctionGuide guide);
    ~LanguageServer();

    // Takes one message as it came, JSON or not, and gives what is to be sent back. Throws nothing.
    std::vector<std::string> take(std::string_view message);
    // The findings of the documents that have changed, to be sent when no message waits.
    std::vector<std::string> findings();

    // Set when the client has told the server to end: the exit status of the process.
    std::optional<int> exitStatus() const { return m_exitStatus; }

  private:
    struct Document {
        OpenText text;
        std::optional<int64_t> version;
        std::unique_ptr<check::CheckedProgram> checked;  // null where the text has changed since
        bool isToBeTold = true;
    };
    class Session;

    const check::CheckedProgram& checked(const std::string& uri, Document& document);

    const check::Knowledge& m_knowledge;
    FindBeside m_find;
    FunctionGuide m_guide;
    std::map<std::string, Document, std::less<>> m_documents;
    bool m_isInitialized = false;
    bool m_isShutDown = false;
    std::optional<int> m_exitStatus;
};

}  // namespace editor
