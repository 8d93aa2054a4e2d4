#include "host/runner/Run.h"

#include <windows.h>

#include <ole2.h>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <vector>

#include "host/documents/CallFrame.h"
#include "host/documents/Documents.h"
#include "host/documents/DrawingFunctions.h"
#include "host/drive/PictureFunctions.h"
#include "host/drive/Player.h"
#include "host/drive/UiFunctions.h"
#include "host/frame/MainFrame.h"
#include "host/frame/Prompt.h"
#include "host/record/Recorder.h"
#include "host/runner/CheckDialogs.h"
#include "host/runner/CheckFiles.h"
#include "host/runner/ComparePictures.h"
#include "host/runner/CrashReport.h"
#include "host/runner/DataFunctions.h"
#include "host/runner/HostFiles.h"
#include "host/runner/HostFunctions.h"
#include "host/runner/Options.h"
#include "host/runner/ServeEditor.h"
#include "host/runner/ShowDialogs.h"
#include "host/runner/TempFolder.h"
#include "host/runner/Terminal.h"
#include "host/runner/Watch.h"
#include "host/runner/Watchdog.h"
#include "host/runner/WatchedRun.h"
#include "host/services/DataModule.h"
#include "host/services/Host.h"
#include "host/services/ProgramFolder.h"
#include "host/services/Texts.h"
#include "src/platform/base/DialogResources.h"

namespace {

constexpr int LISP_ERROR = 1;
constexpr int BAD_USAGE = 2;

constexpr wchar_t GREETING[] = L"Type a Lisp expression, or the name of a command.\n";

void reportError(const std::wstring& text) {
    host().console().error(text);
    host().fail(LISP_ERROR);
}

// As it stands in a line of comment.
std::wstring quotedWord(std::wstring word) {
    std::replace(word.begin(), word.end(), L'\n', L' ');
    const bool isPlain = !word.empty() && word.find_first_of(L" '\"()$&;<>|*?`\\") == word.npos;
    return isPlain ? word : L"'" + word + L"'";
}

// Tells how what is recorded is played: in front of the same programs.
std::wstring recordingHead(const Options& options) {
    std::wstring words = quotedWord(options.record);
    for (const Options::Step& step : options.steps)
        words += (step.isExpression ? L" -e " : L" ") + quotedWord(step.text);
    return L"; What a person did in the dialogs of a program. To do it again, with nobody there or where it "
           L"can be seen:\n"
           L";\n"
           L";   wexhost --headless " +
           words + L"\n;   wexhost --play " + words + L"\n";
}

// Where Lisp looks for files: the support folders, then the folders of the programs.
std::unique_ptr<HostFiles> filesFor(const Options& options) {
    std::vector<std::filesystem::path> folders;
    for (const std::wstring& folder : options.supportFolders) folders.push_back(systemPath(folder));
    for (const Options::Step& step : options.steps) {
        if (!step.isExpression) folders.push_back(systemPath(step.text).parent_path());
    }
    auto files = std::make_unique<HostFiles>(std::move(folders));
    if (!options.watched.empty()) {
        static WatchedRun& run = *new WatchedRun(options.watched);
        files->setListener([](const std::filesystem::path& file) { run.noteFile(file); });
    }
    return files;
}

void loadPlugin(const std::wstring& named) {
    const std::filesystem::path path = named.empty() ? programFolder() / PLUGIN_NAME : systemPath(named);
    try {
        documents().loadPlugin(path.wstring());
    } catch (const lisp::Error& error) {
        reportError(wideText(error.text()));
    }
}

void openChosenData(const std::wstring& choice) {
    if (choice.empty()) return;
    try {
        if (!openData(choice)) host().fail(LISP_ERROR);
    } catch (const lisp::Error& error) {
        reportError(wideText(error.text()));
    }
}

// The files that Lisp finds; the interpreter's.
HostFiles* g_files = nullptr;
MainFrame* g_mainFrame = nullptr;
const Options* g_options = nullptr;

// Where the main frame keeps what a person finds again. Sessions leave no traces of their own accord.
std::filesystem::path settingsFile() {
    if (!g_options->settings.empty()) return systemPath(g_options->settings);
    const wchar_t* folder = _wgetenv(L"LOCALAPPDATA");
    if (g_options->playsSessions() || !folder) return {};
    return std::filesystem::path(folder) / L"WexHost" / L"frame.txt";
}

// The host's own kind of warning, beside those of plug-ins.
constexpr int32_t DATABASE_FAILED = -1;

void warnOfData(HostText line) {
    const CallFrame* frame = CallFrame::current();
    if (frame)
        host().warn({frame->place(), frame->name(), DATABASE_FAILED},
                    L"a call of the database failed: " + std::wstring(line.text, line.length));
}

// Removed by endHost.
std::unique_ptr<TempFolder>& tempFolder() {
    static auto& folder = *new std::unique_ptr<TempFolder>;
    return folder;
}

void makeTempFolder() {
    try {
        tempFolder() = std::make_unique<TempFolder>();
    } catch (const std::filesystem::filesystem_error& error) {
        host().console().error(L"wexhost: hosts that run at the same time may disturb each other: " +
                               wideFromUtf8(error.what()));
    }
}

// A plug-in of which a function is being called can't be unloaded.
void endHost() {
    if (g_mainFrame) g_mainFrame->keepSettings();
    if (!CallFrame::current()) documents().closeAll();
    closeData();
    tempFolder().reset();
}

// Lives to the end of the process.
void startRecording(const Options& options) {
    if (!options.record.empty()) new Recorder(systemPath(options.record), recordingHead(options));
}

HWND makeMainFrame();
void completeMainFrame();
lisp::Value workMainFrameForLisp(lisp::Call&);

void startHost(const Options& options) {
    g_options = &options;
    // For the services of the platform that plug-ins use on this thread, such as that of pictures.
    OleInitialize(nullptr);
    host().setMainFrame(&makeMainFrame, &completeMainFrame);
    host().setAtExit(&endHost);
    makeTempFolder();
    host().setHeadless(options.headless);
    startRecording(options);
    host().warnings().setMode(options.warningMode());
    // A watched run sees a dialog before a session changes it.
    auto files = filesFor(options);
    player().setPlays(options.playsSessions());
    lisp::Interpreter& lisp = host().lisp();
    lisp.setOutput([](std::u16string_view text) { host().console().print(wideText(text)); });
    g_files = files.get();
    lisp.setFileAccess(std::move(files));
    defineHostFunctions(lisp);
    lisp.defineNative(u"host_main_frame", &workMainFrameForLisp, nullptr, 0, 0);
    defineDrawingFunctions(lisp);
    defineUiFunctions(lisp);
    setPictureChoices({systemPath(options.shotsFolder).wstring(), options.approve});
    defineDataFunctions(lisp);
    setDataFailureListener(&warnOfData);
    documents().open();
    openChosenData(options.data);
    loadPlugin(options.plugin);
}

// Whether the step came to its end.
bool runStep(const Options::Step& step) {
    try {
        if (step.isExpression) {
            host().lisp().evalText(lispText(step.text), u"-e");
        } else {
            host().lisp().loadFile(std::u16string_view(lispText(step.text)));
        }
        return true;
    } catch (const lisp::Error& error) {
        reportError(wideText(error.text()));
    } catch (const std::exception& error) {
        reportError(wideFromUtf8(error.what()));
    }
    return false;
}

void runProgram(const std::wstring& path) {
    g_files->addFolder(std::filesystem::path(path).parent_path());
    runStep({false, path});
    rollBackLeftover(path);
}

MainFrame& mainFrame() {
    if (!g_mainFrame) g_mainFrame = new MainFrame({&runProgram, &dialogNames}, settingsFile());
    return *g_mainFrame;
}

HWND makeMainFrame() { return mainFrame().window(); }
void completeMainFrame() { mainFrame().complete(); }

// Whether the main frame still stands.
bool dispatchWaitingMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) return false;
        if (g_mainFrame && g_mainFrame->translate(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return true;
}

// Until the frame is closed.
void workMainFrame() {
    mainFrame().complete();
    while (dispatchWaitingMessages()) {
        player().frameIdle(host().mainFrame());
        WaitMessage();
    }
    player().frameLeft();
}

// (host_main_frame): the person works the main frame, or its session does, until it is closed.
lisp::Value workMainFrameForLisp(lisp::Call&) {
    if (player().playsFrame()) throw lisp::Error(u"the main frame is being worked already");
    if (host().isHeadless() && !player().hasFrameSession())
        throw lisp::Error(u"the main frame has no session, and nobody else to work it");
    host().mainFrame();
    workMainFrame();
    return lisp::Value::none();
}

void printPrompt(const Prompt& prompt) {
    if (!Terminal::isPerson()) return;
    host().console().print(prompt.isContinuing() ? L"more: " : L"Command: ");
    host().console().flush();
}

void workTerminal() {
    Prompt prompt(host().lisp(), [](const std::u16string& error) { reportError(wideText(error)); });
    static Terminal& terminal = *new Terminal;
    printPrompt(prompt);
    while (!terminal.isOver()) {
        const HANDLE event = terminal.event();
        MsgWaitForMultipleObjects(1, &event, FALSE, INFINITE, QS_ALLINPUT);
        if (!dispatchWaitingMessages()) return;
        while (const std::optional<std::wstring> line = terminal.takeLine()) {
            prompt.enter(lispText(*line));
            printPrompt(prompt);
        }
    }
    prompt.finish();
}

void work(const Options& options) {
    startHost(options);
    for (const Options::Step& step : options.steps) {
        const bool isDone = runStep(step);
        if (!step.isExpression) rollBackLeftover(step.text);
        if (!isDone) break;
    }
    if (options.interactive) {
        workTerminal();
    } else if (options.steps.empty()) {
        host().mainFrame();
        if (!player().plays()) host().console().print(GREETING);
        workMainFrame();
    }
    player().reportLeftovers();
}

std::vector<std::wstring> systemPaths(std::span<const std::wstring> paths) {
    std::vector<std::wstring> converted;
    for (const std::wstring& path : paths) converted.push_back(systemPath(path).wstring());
    return converted;
}

std::vector<std::wstring> programFiles(const Options& options) {
    std::vector<std::wstring> files;
    for (const Options::Step& step : options.steps) files.push_back(step.text);
    return files;
}

int refuse(const Options& options) {
    host().console().error(L"wexhost: " + options.error + L"\nTry wexhost --help.");
    return BAD_USAGE;
}

}  // namespace

int hostRun(int count, wchar_t** arguments) {
    reportCrashes();
    SetConsoleOutputCP(CP_UTF8);
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    const std::vector<std::wstring> given(arguments + 1, arguments + count);
    const Options options = parseOptions(given);
    if (!options.error.empty()) return refuse(options);
    if (options.help) {
        host().console().print(usage());
        return 0;
    }
    if (options.version) {
        host().console().print(L"wexhost " WEX_VERSION L"\n");
        return 0;
    }
    if (options.showDialogs) return showDialogs(options.dialogs);
    if (options.checkDialogs) return checkDialogs(systemPaths(options.modules));
    if (options.comparePictures) return comparePictures(systemPaths(options.pictures));
    if (options.watch) return watchProgram(options, given);
    std::optional<Watchdog> watchdog;
    if (options.timeoutSeconds > 0) watchdog.emplace(options.timeoutSeconds);
    if (options.languageServer) {
        startHost(options);
        host().exit(serveEditor());
    }
    if (options.check) {
        startHost(options);
        host().exit(checkFiles(programFiles(options)));
    }
    work(options);
    host().exit(host().status());
}
