#include "host/runner/ServeEditor.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "host/documents/Database.h"
#include "host/editor/LanguageServer.h"
#include "host/editor/MessageReader.h"
#include "host/runner/HostFiles.h"
#include "host/runner/HostKnowledge.h"
#include "host/services/Host.h"
#include "host/services/ProgramFolder.h"
#include "host/services/Texts.h"

namespace {

namespace fs = std::filesystem;

constexpr DWORD CHUNK = 64 * 1024;

std::string guideText() {
    const fs::path guide = findDelivered(L"docs/lisp-functions.md");
    return guide.empty() ? std::string() : fileBytes(guide.wstring(), HOST_SHARE_READ);
}

std::string withoutEscapes(std::string_view uri) {
    std::string text;
    for (size_t i = 0; i < uri.size(); ++i) {
        const bool isEscape = uri[i] == '%' && i + 2 < uri.size() &&
                              isxdigit(static_cast<unsigned char>(uri[i + 1])) &&
                              isxdigit(static_cast<unsigned char>(uri[i + 2]));
        text +=
            isEscape ? static_cast<char>(std::stoi(std::string(uri.substr(i + 1, 2)), nullptr, 16)) : uri[i];
        if (isEscape) i += 2;
    }
    return text;
}

// The folder of a document; empty where its URI is no file's.
fs::path folderOf(std::string_view uri) {
    constexpr std::string_view FILE_URI = "file://";
    if (!uri.starts_with(FILE_URI)) return {};
    std::wstring path = wideFromUtf8(withoutEscapes(uri.substr(FILE_URI.size())));
    const bool hasDrive = path.size() > 2 && path[2] == L':';
    if (hasDrive) path.erase(0, 1);
    return systemPath(path).parent_path();
}

// As the host's Lisp finds it, and in the document's own folder, where it would be if it ran.
std::optional<check::Source> findBeside(std::string_view uri, std::u16string_view name) {
    const HostFiles files({folderOf(uri)});
    try {
        std::optional<fs::path> path = files.find(name);
        if (!path) path = host().lisp().files().find(name);
        if (!path) return std::nullopt;
        const std::u16string found = lisp::fromPath(*path);
        return check::Source{found, host().lisp().fileText(found)};
    } catch (const lisp::Error&) {
        return std::nullopt;
    }
}

void send(const std::vector<std::string>& messages) {
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    for (const std::string& message : messages) {
        const std::string bytes = editor::framed(message);
        DWORD written = 0;
        for (size_t sent = 0; sent < bytes.size(); sent += written)
            if (!WriteFile(output, bytes.data() + sent, static_cast<DWORD>(bytes.size() - sent), &written,
                           nullptr))
                return;
    }
}

// Whether more has come; no, where it can't be asked.
bool hasMore(HANDLE input) {
    DWORD waiting = 0;
    return PeekNamedPipe(input, nullptr, 0, nullptr, &waiting, nullptr) && waiting > 0;
}

}  // namespace

int serveEditor() {
    const check::Knowledge knowledge = hostKnowledge();
    editor::LanguageServer server(knowledge, &findBeside, editor::FunctionGuide(guideText()));
    editor::MessageReader reader;
    const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
    std::string chunk(CHUNK, '\0');
    DWORD count = 0;
    while (ReadFile(input, chunk.data(), CHUNK, &count, nullptr) && count > 0) {
        reader.feed(std::string_view(chunk).substr(0, count));
        while (const std::optional<std::string> message = reader.next()) {
            send(server.take(*message));
            if (server.exitStatus()) return *server.exitStatus();
        }
        if (!hasMore(input)) send(server.findings());
    }
    return 1;
}
