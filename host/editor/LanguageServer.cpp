#include "host/editor/LanguageServer.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

#include "host/editor/Completion.h"
#include "host/lisp/Text.h"

namespace editor {

namespace {

using Json = nlohmann::json;

enum ErrorCode {
    PARSE_ERROR = -32700,
    INVALID_REQUEST = -32600,
    METHOD_NOT_FOUND = -32601,
    INVALID_PARAMS = -32602,
    NOT_INITIALIZED = -32002
};

struct RequestError {
    ErrorCode code;
    std::string text;
};

std::string textOf(const Json& message) {
    return message.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json errorReply(const Json& id, const RequestError& error) {
    return {{"jsonrpc", "2.0"}, {"id", id}, {"error", {{"code", error.code}, {"message", error.text}}}};
}

uint32_t count(const Json& number) {
    if (!number.is_number_unsigned() && !(number.is_number_integer() && number.get<int64_t>() >= 0))
        throw RequestError{INVALID_PARAMS, "a position is told by two whole numbers from 0"};
    return static_cast<uint32_t>(std::min<uint64_t>(number.get<uint64_t>(), UINT32_MAX));
}

Position position(const Json& json) { return {count(json.at("line")), count(json.at("character"))}; }

Json jsonOf(Position position) { return {{"line", position.line}, {"character", position.character}}; }

Json jsonOf(const check::Finding& finding) {
    constexpr int WARNING = 2, INFORMATION = 3;
    return {{"range",
             {{"start", {{"line", finding.line}, {"character", finding.column}}},
              {"end", {{"line", finding.endLine}, {"character", finding.endColumn}}}}},
            {"severity", finding.isNote ? INFORMATION : WARNING},
            {"source", "wexhost"},
            {"message", lisp::toUtf8(finding.text)}};
}

const std::string& uriOf(const Json& params) {
    return params.at("textDocument").at("uri").get_ref<const std::string&>();
}

constexpr char NO_GUIDE[] = "(docs/lisp-functions.md is neither beside wexhost nor in a folder above it.)";

}  // namespace

// What one message asks for.
class LanguageServer::Session {
  public:
    explicit Session(LanguageServer& server) : m_server(server) {}

    std::optional<Json> answer(const std::string& method, const Json& params) {
        struct Request {
            std::string_view method;
            Json (Session::*answer)(const Json& params);
        };
        static constexpr Request REQUESTS[] = {{"initialize", &Session::initialize},
                                               {"shutdown", &Session::shutDown},
                                               {"textDocument/completion", &Session::completion},
                                               {"textDocument/hover", &Session::hover}};
        for (const Request& request : REQUESTS)
            if (request.method == method) return (this->*request.answer)(params);
        return std::nullopt;
    }

    void hear(const std::string& method, const Json& params) {
        if (method == "exit") m_server.m_exitStatus = m_server.m_isShutDown ? 0 : 1;
        if (!m_server.m_isInitialized) return;
        if (method == "textDocument/didOpen") open(params);
        if (method == "textDocument/didChange") change(params);
        if (method == "textDocument/didClose") close(params);
        // A program that loads the file, or calls what it defines, may now be right or wrong.
        if (method == "textDocument/didSave") forgetChecks();
    }

    std::vector<std::string> replies;

  private:
    Json initialize(const Json&) {
        if (m_server.m_isInitialized)
            throw RequestError{INVALID_REQUEST, "the server is initialized already"};
        m_server.m_isInitialized = true;
        constexpr int INCREMENTAL = 2;
        return {{"capabilities",
                 {{"positionEncoding", "utf-16"},
                  {"textDocumentSync", {{"openClose", true}, {"change", INCREMENTAL}, {"save", true}}},
                  {"completionProvider", {{"triggerCharacters", {"(", "\""}}}},
                  {"hoverProvider", true}}},
                {"serverInfo", {{"name", "wexhost"}}}};
    }

    Json shutDown(const Json&) {
        m_server.m_isShutDown = true;
        return nullptr;
    }

    void open(const Json& params) {
        const Json& item = params.at("textDocument");
        Document document;
        document.text = OpenText(item.at("text").get_ref<const std::string&>());
        document.version = versionOf(item);
        m_server.m_documents.insert_or_assign(uriOf(params), std::move(document));
        forgetChecks();
    }

    void change(const Json& params) {
        Document& document = documentOf(params);
        for (const Json& change : params.at("contentChanges")) {
            const std::string& text = change.at("text").get_ref<const std::string&>();
            if (change.contains("range"))
                document.text.replace(position(change["range"].at("start")),
                                      position(change["range"].at("end")), text);
            else
                document.text = OpenText(text);
        }
        document.version = versionOf(params.at("textDocument"));
        document.isToBeTold = true;
        document.checked.reset();
    }

    void close(const Json& params) {
        if (!m_server.m_documents.erase(uriOf(params))) return;
        replies.push_back(textOf({{"jsonrpc", "2.0"},
                                  {"method", "textDocument/publishDiagnostics"},
                                  {"params", {{"uri", uriOf(params)}, {"diagnostics", Json::array()}}}}));
        forgetChecks();
    }

    // The documents know each other's functions, so each is checked anew where one comes or goes.
    void forgetChecks() {
        for (auto& [uri, document] : m_server.m_documents) {
            document.checked.reset();
            document.isToBeTold = true;
        }
    }

    Json completion(const Json& params) {
        Document& document = documentOf(params);
        const uint32_t offset = document.text.offsetOf(position(params.at("position")));
        const check::CheckedProgram& checked = m_server.checked(uriOf(params), document);
        const Completion found = completionAt(checked, m_server.m_knowledge, document.text.text(), offset);
        const Json range = {{"start", jsonOf(document.text.positionOf(found.begin))},
                            {"end", jsonOf(document.text.positionOf(found.end))}};
        Json items = Json::array();
        for (const CompletionItem& item : found.items)
            items.push_back({{"label", lisp::toUtf8(item.text)},
                             {"kind", static_cast<int>(item.kind)},
                             {"detail", lisp::toUtf8(item.detail)},
                             {"filterText", lisp::toUtf8(item.text)},
                             {"textEdit", {{"range", range}, {"newText", lisp::toUtf8(item.text)}}}});
        return {{"isIncomplete", false}, {"items", std::move(items)}};
    }

    Json hover(const Json& params) {
        Document& document = documentOf(params);
        const uint32_t offset = document.text.offsetOf(position(params.at("position")));
        const check::CheckedProgram& checked = m_server.checked(uriOf(params), document);
        const std::vector<const check::Form*> around = checked.formsAround(offset);
        const check::Form* symbol = around.empty() || !around.back()->isSymbol() ? nullptr : around.back();
        if (!symbol || !symbol->word->function) return nullptr;
        const std::string name = lisp::toUtf8(lisp::lowerCase(symbol->word->name));
        std::string text(m_server.m_guide.entry(name));
        const std::string usage = lisp::toUtf8(symbol->word->function->usage);
        if (text.empty() && !usage.empty()) text = "`(" + usage + ")`\n\n";
        if (m_server.m_guide.isEmpty()) text += NO_GUIDE;
        if (text.empty()) return nullptr;
        return {{"contents", {{"kind", "markdown"}, {"value", text}}},
                {"range",
                 {{"start", jsonOf(document.text.positionOf(symbol->begin))},
                  {"end", jsonOf(document.text.positionOf(symbol->end))}}}};
    }

    Document& documentOf(const Json& params) {
        const auto at = m_server.m_documents.find(uriOf(params));
        if (at == m_server.m_documents.end())
            throw RequestError{INVALID_PARAMS, "the document " + uriOf(params) + " isn't open"};
        return at->second;
    }

    static std::optional<int64_t> versionOf(const Json& item) {
        const auto at = item.find("version");
        return at != item.end() && at->is_number_integer() ? std::optional(at->get<int64_t>()) : std::nullopt;
    }

    LanguageServer& m_server;
};

LanguageServer::LanguageServer(const check::Knowledge& knowledge, FindBeside find, FunctionGuide guide)
    : m_knowledge(knowledge), m_find(std::move(find)), m_guide(std::move(guide)) {}

LanguageServer::~LanguageServer() = default;

std::vector<std::string> LanguageServer::take(std::string_view text) {
    const Json message = Json::parse(text, nullptr, false);
    if (message.is_discarded()) return {textOf(errorReply(nullptr, {PARSE_ERROR, "the message is no JSON"}))};
    const bool isObject = message.is_object();
    const Json id = isObject && message.contains("id") ? message["id"] : Json();
    const bool hasMethod = isObject && message.contains("method") && message["method"].is_string();
    // An answer to a request, which this server never sends.
    if (isObject && !message.contains("method") && (message.contains("result") || message.contains("error")))
        return {};
    const bool hasId = isObject && message.contains("id");
    if (!hasMethod || !(id.is_null() || id.is_string() || id.is_number_integer()))
        return {
            textOf(errorReply(nullptr, {INVALID_REQUEST, "the message is no request: a method is missing"}))};
    Session session(*this);
    const std::string method = message["method"].get<std::string>();
    const Json params = message.contains("params") ? message["params"] : Json::object();
    try {
        if (!hasId) {
            session.hear(method, params);
            return session.replies;
        }
        if (m_isShutDown) throw RequestError{INVALID_REQUEST, "the server has been shut down"};
        if (!m_isInitialized && method != "initialize")
            throw RequestError{NOT_INITIALIZED, "the first request is initialize"};
        std::optional<Json> result = session.answer(method, params);
        if (!result) throw RequestError{METHOD_NOT_FOUND, "there is no method " + method};
        session.replies.push_back(textOf({{"jsonrpc", "2.0"}, {"id", id}, {"result", std::move(*result)}}));
    } catch (const RequestError& error) {
        if (hasId) session.replies.push_back(textOf(errorReply(id, error)));
    } catch (const Json::exception& error) {
        if (hasId) session.replies.push_back(textOf(errorReply(id, {INVALID_PARAMS, error.what()})));
    }
    return session.replies;
}

const check::CheckedProgram& LanguageServer::checked(const std::string& uri, Document& document) {
    if (document.checked) return *document.checked;
    std::vector<std::u16string> others;
    for (const auto& [otherUri, other] : m_documents) {
        if (otherUri == uri || !other.checked) continue;
        const std::vector<std::u16string> names = other.checked->definedNames();
        others.insert(others.end(), names.begin(), names.end());
    }
    const auto find = [this, uri](std::u16string_view name) {
        return m_find ? m_find(uri, name) : std::optional<check::Source>();
    };
    document.checked = std::make_unique<check::CheckedProgram>(
        std::vector<check::Source>{{lisp::fromUtf8(uri), document.text.text()}}, m_knowledge, find, others);
    return *document.checked;
}

std::vector<std::string> LanguageServer::findings() {
    // A document that is checked before another one doesn't know its functions yet, and is checked twice.
    const auto isNew = [](const auto& entry) { return !entry.second.checked; };
    const bool twice = std::count_if(m_documents.begin(), m_documents.end(), isNew) > 1;
    if (twice)
        for (auto& [uri, document] : m_documents) checked(uri, document);
    std::vector<std::string> messages;
    for (auto& [uri, document] : m_documents) {
        if (!document.isToBeTold) continue;
        document.isToBeTold = false;
        if (twice) document.checked.reset();
        Json found = Json::array();
        const std::u16string name = lisp::fromUtf8(uri);
        for (const check::Finding& finding : checked(uri, document).findings())
            if (finding.file == name) found.push_back(jsonOf(finding));
        Json params = {{"uri", uri}, {"diagnostics", std::move(found)}};
        if (document.version) params["version"] = *document.version;
        messages.push_back(textOf({{"jsonrpc", "2.0"},
                                   {"method", "textDocument/publishDiagnostics"},
                                   {"params", std::move(params)}}));
    }
    return messages;
}

}  // namespace editor
