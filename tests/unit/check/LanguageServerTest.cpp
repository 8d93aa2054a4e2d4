#include "host/editor/LanguageServer.h"

#include <gtest/gtest.h>

#include "host/editor/MessageReader.h"
#include "tests/unit/check/TestKnowledge.h"

namespace {

using editor::LanguageServer;

// A server with one open document, driven by the bodies of messages.
class LanguageServerTest : public testing::Test {
  protected:
    LanguageServerTest()
        : m_server(testKnowledge(), {},
                   editor::FunctionGuide("### (wex_get_tile *tile*)\n\nGives a string.\n")) {}

    std::string take(const std::string& message) {
        std::string all;
        for (const std::string& reply : m_server.take(message)) all += reply;
        return all;
    }
    std::string findings() {
        std::string all;
        for (const std::string& message : m_server.findings()) all += message;
        return all;
    }
    void open(const std::string& text, const std::string& name = "a") {
        take(R"({"jsonrpc":"2.0","id":0,"method":"initialize","params":{}})");
        take(R"({"jsonrpc":"2.0","method":"textDocument/didOpen","params":{"textDocument":{"uri":"file:///)" +
             name + R"(.lsp","languageId":"lisp","version":1,"text":")" + text + R"("}}})");
    }
    std::string ask(const std::string& method, int line, int character) {
        return take(R"({"jsonrpc":"2.0","id":5,"method":"textDocument/)" + method +
                    R"(","params":{"textDocument":{"uri":"file:///a.lsp"},"position":{"line":)" +
                    std::to_string(line) + R"(,"character":)" + std::to_string(character) + "}}}");
    }
    static bool has(const std::string& text, const std::string& part) { return text.find(part) != text.npos; }

    LanguageServer m_server;
};

TEST_F(LanguageServerTest, WhatIsNoRequestIsAnswered) {
    EXPECT_TRUE(has(take("{"), "-32700"));
    EXPECT_TRUE(has(take("[1]"), "-32600"));
    EXPECT_TRUE(has(take(R"({"id":1,"method":5})"), "-32600"));
    EXPECT_TRUE(has(take(R"({"id":1,"method":"textDocument/hover","params":{}})"), "-32002"));
    take(R"({"id":1,"method":"initialize","params":{}})");
    EXPECT_TRUE(has(take(R"({"id":"x","method":"textDocument/hover","params":[]})"), "-32602"));
    EXPECT_TRUE(has(ask("hover", 0, 0), "isn't open"));
    EXPECT_TRUE(has(take(R"({"id":1,"method":"workspace/symbol","params":{}})"), "-32601"));
    EXPECT_EQ(take(R"({"method":"$/cancelRequest","params":{"id":1}})"), "");
    EXPECT_TRUE(has(take(R"({"id":2,"method":"shutdown"})"), R"("result":null)"));
    take(R"({"method":"exit"})");
    EXPECT_EQ(m_server.exitStatus(), 0);
}

TEST_F(LanguageServerTest, ChangesAreCountedInUtf16) {
    open(R"(; 😀 é\r\n(princ \"😀\" (prinz 1))\r\n)");
    EXPECT_TRUE(has(findings(), R"("start":{"character":13,"line":1})"));
    EXPECT_EQ(findings(), "");
    take(R"({"method":"textDocument/didChange","params":{"textDocument":{"uri":"file:///a.lsp","version":2},)"
         R"("contentChanges":[{"range":{"start":{"line":1,"character":13},"end":{"line":1,"character":18}},)"
         R"("text":"princ"}]}})");
    const std::string told = findings();
    EXPECT_TRUE(has(told, R"("diagnostics":[])"));
    EXPECT_TRUE(has(told, R"("version":2)"));
    EXPECT_TRUE(
        has(take(R"({"method":"textDocument/didClose","params":{"textDocument":{"uri":"file:///a.lsp"}}})"),
            R"("diagnostics":[])"));
}

TEST_F(LanguageServerTest, ASaveHasOtherDocumentsCheckedAnew) {
    open("(helper)");
    open("", "b");
    EXPECT_TRUE(has(findings(), "there is no function helper"));
    take(
        R"-({"method":"textDocument/didChange","params":{"textDocument":{"uri":"file:///b.lsp","version":2},)-"
        R"-("contentChanges":[{"text":"(defun helper ())"}]}})-");
    EXPECT_FALSE(has(findings(), "a.lsp"));
    take(R"({"method":"textDocument/didSave","params":{"textDocument":{"uri":"file:///b.lsp"}}})");
    EXPECT_TRUE(has(findings(), R"("diagnostics":[],"uri":"file:///a.lsp")"));
}

TEST_F(LanguageServerTest, CompletesWhatFitsThePlace) {
    open(
        R"((wex_new_dialog \"FORM\")\n(wex_action_tile \"OK\" \"(wex_get_tile \\\"\\\")\")\n(wex_ge)\n(wex_get_tile \"\")");
    const std::string keys = ask("completion", 1, 39);
    EXPECT_TRUE(has(keys, R"("label":"PARTS")") && has(keys, "list control of FORM")) << keys;
    EXPECT_FALSE(has(keys, R"("label":"TEXT")"));
    EXPECT_TRUE(has(ask("completion", 0, 18), R"("label":"ASK")"));
    EXPECT_TRUE(has(ask("completion", 2, 7), R"("label":"wex_get_tile")"));
    // In a call that isn't closed yet.
    EXPECT_TRUE(has(ask("completion", 3, 15), R"("label":"KEEP")"));
    EXPECT_TRUE(has(ask("hover", 1, 28), "Gives a string."));
    EXPECT_TRUE(has(ask("hover", 1, 0), R"("result":null)"));
}

TEST_F(LanguageServerTest, CompletesAtTheEndOfWhatIsOpen) {
    open(
        R"((wex_new_dialog \"FORM\")\n(wex_action_tile \"OK\" \"(wex_get_tile \\\"\")\n(wex_action_tile \"OK\" \"(wex_ge\")\n(wex_get_tile \"K)");
    EXPECT_TRUE(has(ask("completion", 1, 39), R"("label":"KEEP")"));
    EXPECT_TRUE(has(ask("completion", 2, 30), R"("label":"wex_get_tile")"));
    EXPECT_TRUE(has(ask("completion", 3, 16), R"("label":"KEEP")"));
}

TEST(MessageReader, TakesMessagesApart) {
    editor::MessageReader reader;
    reader.feed("Content-Length: 2\r\nContent-Type: x\r\n\r\n{}content-length:1\r");
    EXPECT_EQ(reader.next(), "{}");
    EXPECT_EQ(reader.next(), std::nullopt);
    reader.feed("\n\r\n");
    EXPECT_EQ(reader.next(), std::nullopt);
    reader.feed("7X: 1\r\n\r\nContent-Length: 1x\r\n\r\n");
    EXPECT_EQ(reader.next(), "7");
    EXPECT_EQ(reader.next(), "");
    EXPECT_EQ(reader.next(), "");
    EXPECT_EQ(reader.next(), std::nullopt);
}

}  // namespace
