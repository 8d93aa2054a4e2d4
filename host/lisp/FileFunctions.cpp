// Files: reading and writing text, looking at folders, names.
#include <algorithm>
#include <filesystem>
#include <iterator>

#include "host/lisp/Builtins.h"
#include "host/lisp/Machine.h"
#include "host/lisp/Text.h"
#include "host/lisp/WildcardMatch.h"

namespace lisp {

namespace {

namespace fs = std::filesystem;

fs::path pathOf(Call& call, size_t index) { return call.lisp.files().resolve(call.text(index)); }

// Names look the same on every platform.
Value nameOf(Call& call, const fs::path& path) { return call.lisp.string(fromPath(path)); }

bool openForReading(Call& call, const fs::path& path, File& file) {
    std::error_code fault;
    if (!fs::is_regular_file(path, fault)) return false;
    std::ifstream stream(path, std::ios::binary);
    std::string bytes(std::istreambuf_iterator<char>(stream), {});
    if (!stream.is_open() || stream.bad()) return false;
    file.reading = true;
    file.content = decodeFile(bytes);
    call.lisp.machine().heap.charge(2 * file.content.size());
    return true;
}

// (open name mode): "r", "w" or "a"; nil where the file can't be opened.
Value openFile(Call& call) {
    std::u16string mode = lowerCase(call.text(1));
    if (mode != u"r" && mode != u"w" && mode != u"a") call.expected(1, "\"r\", \"w\" or \"a\"");
    fs::path path = pathOf(call, 0);
    File* file = call.lisp.machine().heap.file();
    file->name = call.text(0);
    if (mode == u"r") return openForReading(call, path, *file) ? Value::of(file) : Value::nil();
    file->output.open(path, std::ios::binary | (mode == u"a" ? std::ios::app : std::ios::trunc));
    return file->output.is_open() ? Value::of(file) : Value::nil();
}

File& openedFile(Call& call, bool forReading) {
    if (!call[0].isFile()) call.expected(0, "a file");
    File* file = call[0].asFile();
    if (!file->open) call.expected(0, "a file that is still open");
    if (forReading && !file->reading) call.expected(0, "a file that is open for reading");
    return *file;
}

Value closeFile(Call& call) {
    File& file = openedFile(call, false);
    file.open = false;
    file.content = {};
    bool written = true;
    if (!file.reading) {
        file.output.close();
        written = !file.output.fail();
    }
    if (!written) throw Error(u"can't write to " + file.name);
    return Value::nil();
}

Value readLine(Call& call) {
    File& file = openedFile(call, true);
    if (file.position >= file.content.size()) return Value::nil();
    size_t end = std::min(file.content.find(u'\n', file.position), file.content.size());
    Value line =
        call.lisp.string(std::u16string_view(file.content).substr(file.position, end - file.position));
    file.position = end + 1;
    return line;
}

Value readCharacter(Call& call) {
    File& file = openedFile(call, true);
    if (file.position >= file.content.size()) return Value::nil();
    return Value::integer(file.content[file.position++]);
}

Value findFile(Call& call) {
    std::optional<fs::path> path = call.lisp.files().find(call.text(0));
    return path ? nameOf(call, *path) : Value::nil();
}

Value fileExists(Call& call) {
    std::error_code fault;
    return Value::truth(fs::is_regular_file(pathOf(call, 0), fault));
}

Value folderExists(Call& call) {
    std::error_code fault;
    return Value::truth(fs::is_directory(pathOf(call, 0), fault));
}

Value deleteFile(Call& call) {
    std::error_code fault;
    fs::path path = pathOf(call, 0);
    return Value::truth(fs::is_regular_file(path, fault) && fs::remove(path, fault));
}

Value renameFile(Call& call) {
    std::error_code fault;
    fs::rename(pathOf(call, 0), pathOf(call, 1), fault);
    return Value::truth(!fault);
}

Value copyFile(Call& call) {
    std::error_code fault;
    fs::path from = pathOf(call, 0), to = pathOf(call, 1);
    return Value::truth(fs::copy_file(from, to, fs::copy_options::overwrite_existing, fault));
}

Value fileSize(Call& call) {
    std::error_code fault;
    auto bytes = fs::file_size(pathOf(call, 0), fault);
    if (fault) return Value::nil();
    return bytes <= INT32_MAX ? Value::integer(int32_t(bytes)) : Value::real(double(bytes));
}

Value makeFolder(Call& call) {
    std::error_code fault;
    return Value::truth(fs::create_directory(pathOf(call, 0), fault));
}

// (folder-files folder [pattern]): sorted names, without subfolders.
Value folderFiles(Call& call) {
    std::vector<std::u16string> names;
    std::error_code fault;
    fs::directory_iterator entry(pathOf(call, 0), fault);
    for (; !fault && entry != fs::directory_iterator(); entry.increment(fault)) {
        std::u16string name = fromPath(entry->path().filename());
        std::error_code unknown;
        if (entry->is_regular_file(unknown) && (!call.has(1) || wildcardMatch(name, call.text(1))))
            names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    ListBuilder result(call.lisp);
    for (const auto& name : names) result.add(call.lisp.string(name));
    return result.list();
}

Value fileBase(Call& call) { return nameOf(call, toPath(call.text(0)).stem()); }
Value fileExtension(Call& call) { return nameOf(call, toPath(call.text(0)).extension()); }
Value fileFolder(Call& call) { return nameOf(call, toPath(call.text(0)).parent_path()); }

constexpr Definition FUNCTIONS[] = {
    {u"open", openFile, 2, 2},
    {u"close", closeFile, 1, 1},
    {u"read-line", readLine, 1, 1},
    {u"read-char", readCharacter, 1, 1},
    {u"findfile", findFile, 1, 1},
    {u"file-exists", fileExists, 1, 1},
    {u"folder-exists", folderExists, 1, 1},
    {u"delete-file", deleteFile, 1, 1},
    {u"rename-file", renameFile, 2, 2},
    {u"copy-file", copyFile, 2, 2},
    {u"file-size", fileSize, 1, 1},
    {u"make-folder", makeFolder, 1, 1},
    {u"folder-files", folderFiles, 1, 2},
    {u"file-base", fileBase, 1, 1},
    {u"file-extension", fileExtension, 1, 1},
    {u"file-folder", fileFolder, 1, 1},
};

}  // namespace

void defineFileFunctions(Interpreter& lisp) { defineAll(lisp, FUNCTIONS); }

}  // namespace lisp
