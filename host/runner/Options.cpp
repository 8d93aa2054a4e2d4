#include "host/runner/Options.h"

#include <algorithm>
#include <cwchar>
#include <iterator>
#include <utility>

#include "host/services/DataChoice.h"

namespace {

constexpr std::pair<std::wstring_view, WarningMode> WARN_MODES[] = {
    {L"", WarningMode::on},
    {L"=off", WarningMode::off},
    {L"=error", WarningMode::error},
};

// What a watching host starts the program's with; nobody else has a use for it.
constexpr std::wstring_view WATCHED = L"--watched=";

class Parser {
  public:
    explicit Parser(std::span<const std::wstring> arguments) : m_rest(arguments) {}

    Options parse() {
        while (!m_rest.empty() && m_options.error.empty()) take(next());
        if (m_options.error.empty() && m_options.check) checkOperands();
        if (m_options.error.empty() && waitsForNobody()) fail(L"--headless needs a program, -e or -i");
        if (m_options.error.empty() && m_options.comparePictures &&
            (m_options.pictures.empty() || m_options.pictures.size() % 2 == 1))
            fail(L"--compare-pictures needs pairs of files");
        if (m_options.error.empty() && m_options.watch && !hasFile()) fail(L"--watch needs a program");
        return m_options;
    }

  private:
    const std::wstring& next() {
        const std::wstring& first = m_rest.front();
        m_rest = m_rest.subspan(1);
        return first;
    }

    void fail(const std::wstring& why) { m_options.error = why; }

    void checkOperands() {
        if (m_options.steps.empty()) fail(L"--check needs a file");
        for (const Options::Step& step : m_options.steps)
            if (step.isExpression) fail(L"--check reads files, and -e is none");
    }

    bool hasFile() const {
        return std::any_of(m_options.steps.begin(), m_options.steps.end(),
                           [](const Options::Step& step) { return !step.isExpression; });
    }

    bool waitsForNobody() const {
        const bool ends = m_options.help || m_options.version || m_options.showDialogs ||
                          m_options.checkDialogs || m_options.languageServer || m_options.comparePictures ||
                          m_options.interactive;
        return m_options.headless && m_options.steps.empty() && !ends;
    }

    // The operand of `option`, or an empty text and an error.
    std::wstring operand(const std::wstring& option) {
        if (!m_rest.empty()) return next();
        fail(option + L" needs an operand");
        return {};
    }

    void takeTimeout(const std::wstring& option) {
        const std::wstring text = operand(option);
        if (!m_options.error.empty()) return;
        wchar_t* end = nullptr;
        m_options.timeoutSeconds = std::wcstod(text.c_str(), &end);
        const bool isNumber = !text.empty() && *end == L'\0';
        if (!isNumber || !(m_options.timeoutSeconds > 0))
            fail(option + L": " + text + L" is no number of seconds");
    }

    void takeData(const std::wstring& option) {
        m_options.data = operand(option);
        if (!m_options.error.empty()) return;
        const std::wstring wrong = parseDataChoice(m_options.data).error;
        if (!wrong.empty()) fail(option + L": " + wrong);
    }

    // --warn[=MODE]
    void takeWarn(const std::wstring& option) {
        const std::wstring mode = option.substr(std::wstring_view(L"--warn").size());
        const auto found = std::find_if(std::begin(WARN_MODES), std::end(WARN_MODES),
                                        [&](const auto& known) { return mode == known.first; });
        if (found == std::end(WARN_MODES))
            fail(option + L": only --warn, --warn=off and --warn=error are known");
        else
            m_options.warn = found->second;
    }

    void takeOperand(const std::wstring& argument) {
        if (m_options.comparePictures) {
            m_options.pictures.push_back(argument);
        } else if (m_options.checkDialogs) {
            m_options.modules.push_back(argument);
        } else if (m_options.showDialogs) {
            m_options.dialogs.push_back(argument);
        } else {
            m_options.steps.push_back({false, argument});
        }
    }

    void take(const std::wstring& argument) {
        if (m_onlyFiles || argument.empty() || argument[0] != L'-') return takeOperand(argument);
        if (argument == L"--headless") {
            m_options.headless = true;
        } else if (argument == L"--play") {
            m_options.play = true;
        } else if (argument == L"-i") {
            m_options.interactive = true;
        } else if (argument == L"--help" || argument == L"-h") {
            m_options.help = true;
        } else if (argument == L"--version") {
            m_options.version = true;
        } else if (argument == L"--dialogs") {
            m_options.showDialogs = true;
        } else if (argument == L"--check-dialogs") {
            m_options.checkDialogs = true;
        } else if (argument == L"--check") {
            m_options.check = true;
        } else if (argument == L"--language-server") {
            m_options.languageServer = true;
        } else if (argument == L"--compare-pictures") {
            m_options.comparePictures = true;
        } else if (argument == L"--approve") {
            m_options.approve = true;
        } else if (argument == L"--watch") {
            m_options.watch = true;
        } else if (argument.starts_with(WATCHED)) {
            m_options.watched = argument.substr(WATCHED.size());
        } else if (argument == L"--no-warn") {
            m_options.warn = WarningMode::off;
        } else if (argument.starts_with(L"--warn")) {
            takeWarn(argument);
        } else if (argument == L"--timeout") {
            takeTimeout(argument);
        } else if (argument == L"--data") {
            takeData(argument);
        } else if (argument == L"--support") {
            m_options.supportFolders.push_back(operand(argument));
        } else if (argument == L"--record") {
            m_options.record = operand(argument);
        } else if (argument == L"--shots") {
            m_options.shotsFolder = operand(argument);
        } else if (argument == L"--settings") {
            m_options.settings = operand(argument);
        } else if (argument == L"--plugin") {
            m_options.plugin = operand(argument);
        } else if (argument == L"-e") {
            m_options.steps.push_back({true, operand(argument)});
        } else if (argument == L"--") {
            m_onlyFiles = true;
        } else {
            fail(argument + L" is no option");
        }
    }

    std::span<const std::wstring> m_rest;
    Options m_options;
    bool m_onlyFiles = false;
};

}  // namespace

Options parseOptions(std::span<const std::wstring> arguments) { return Parser(arguments).parse(); }

std::wstring_view usage() {
    return LR"(Usage: wexhost [OPTION]... [FILE.lsp]...
Runs Lisp programs with the dialog functions. Without a file or an expression it opens its main frame.

  -e EXPR            evaluate a Lisp expression; files and expressions run in the order given
  -i                 prompt on the terminal, after the files
  --headless         nobody is there: play the programs' sessions, answer all alerts
  --play             play the programs' sessions where the person can watch
  --record OUT.lsp   write what the person does in the dialogs as sessions that do it again
  --watch            run the program anew whenever it is saved, or what it loads: its dialog opens again as it was
  --warn, --no-warn  tell, or don't, what a program's calls couldn't do; without a person it is told
  --warn=error       the same, and a warning makes the exit status 1
  --timeout SECONDS  give up after that time; inf for never
  --data DATABASE    open it for the programs: FILE.sqlite, or odbc:CONNECT STRING
  --support DIR      look for Lisp files in DIR too; may be given several times
  --shots DIR        where ui_shot writes its pictures (the working folder)
  --approve          ui_same_shot takes how the dialogs look now as how they shall look
  --plugin PATH      the plug-in to load (WexDialogs.pgx beside wexhost.exe)
  --settings FILE    what the main frame keeps for the next time (a file of the person's; while sessions
                     play, nothing is kept without this option)
  --check            read the files as one program, run nothing, and tell what is wrong with them
  --language-server  serve an editor by the language server protocol, on standard input and output
  --dialogs [NAME]...
                     list the dialogs, or the tiles of those named
  --check-dialogs [MODULE]...
                     check key lists and dialog templates, and how the dialogs look
  --compare-pictures A.png B.png ...
                     fail where the second one of a pair doesn't look as the first
  --help             print this text
  --version          print the version
  --                 what follows are files

Exit status: 0 done; 1 a Lisp error, a warning of a check or with --warn=error, or pictures that differ; 2 bad usage;
3 a session ended with its dialog still open; 4 time ran out; 5 the host crashed.
)";
}
