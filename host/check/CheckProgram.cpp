#include "host/check/CheckProgram.h"

#include <algorithm>
#include <set>
#include <tuple>

#include "host/check/CallReport.h"
#include "host/check/Definitions.h"
#include "host/check/DialogFlow.h"
#include "host/check/LineTable.h"
#include "host/lisp/Text.h"

namespace check {

namespace {

// The tiles with which a person does something that a program would want to know.
bool isWorked(const DialogTile& tile) {
    if (tile.key.empty() || tile.key == u"OK" || tile.key == u"CANCEL" || tile.key == u"ACCEPT") return false;
    if (tile.kind.find(u"read only") != tile.kind.npos || tile.kind == u"image tile") return false;
    const TileKinds idle = kindOfWords(u"label") | kindOfWords(u"group box") | kindOfWords(u"tab control");
    const TileKinds kind = kindOfWords(tile.kind);
    return kind != ANY_KIND && !(kind & idle);
}

}  // namespace

class CheckedProgram::Work {
  public:
    explicit Work(Program& program) : m_program(program), m_definitions(program), m_flow(program) {}

    void run(const std::vector<ProgramFile*>& files) {
        m_definitions.collect(files);
        m_flow.follow(files);
        CallReport report(
            m_program, m_flow.atCalls(),
            [this](const ProgramFile& file, uint32_t begin, uint32_t end, std::u16string text) {
                tell(file, begin, end, std::move(text), false);
            },
            [this](std::u16string_view dialog) {
                return !m_program.hasForeignCode && !m_definitions.opensOthers() &&
                       !m_definitions.mentions(dialog);
            });
        report.walkProgram(files);
        for (const auto& file : m_program.files)
            for (const Fault& fault : file->read.faults)
                tell(*file, fault.begin, fault.end, fault.text, false);
        tellIdleTiles();
    }

    std::vector<Finding> findings() const {
        std::vector<Finding> findings;
        for (const auto& file : m_program.files) {
            const LineTable lines(file->source.text);
            for (const Told& told : m_told) {
                if (told.file != file.get() || lines.isSilent(lines.line(told.begin))) continue;
                const uint32_t line = lines.line(told.begin), endLine = lines.line(told.end);
                findings.push_back({file->source.name, line, told.begin - lines.start(line), endLine,
                                    told.end - lines.start(endLine), told.isNote, told.text});
            }
        }
        return findings;
    }

    const Definitions& definitions() const { return m_definitions; }
    const DialogFlow& flow() const { return m_flow; }

  private:
    struct Told {
        const ProgramFile* file;
        uint32_t begin;
        uint32_t end;
        bool isNote;
        std::u16string text;

        bool operator<(const Told& other) const {
            return std::tie(begin, end, isNote, text, file) <
                   std::tie(other.begin, other.end, other.isNote, other.text, other.file);
        }
    };

    void tell(const ProgramFile& file, uint32_t begin, uint32_t end, std::u16string text, bool isNote) {
        m_told.insert({&file, begin, end, isNote, std::move(text)});
    }

    // One note for each dialog, where it is opened first.
    void tellIdleTiles() {
        std::set<const Dialog*> seen;
        for (const Definitions::Opening& opening : m_definitions.openings()) {
            const Dialog* dialog = m_program.knowledge.dialog(opening.name->text());
            if (!dialog || m_program.hasForeignCode || !seen.insert(dialog).second) continue;
            const std::u16string idle = idleTiles(*dialog);
            if (!idle.empty())
                tell(*opening.file, opening.name->begin, opening.name->end,
                     u"no action and no reading touches these tiles of " + dialog->name + u": " + idle, true);
        }
    }

    std::u16string idleTiles(const Dialog& dialog) const {
        const TileKinds radio = kindOfWords(u"radio button");
        const auto isTouched = [&](const DialogTile& tile) {
            return (!tile.key.empty() && m_definitions.touches(tile.key)) || m_definitions.touches(tile.id);
        };
        // Of radio buttons one tells of the others.
        const bool readsRadio = std::any_of(
            dialog.tiles.begin(), dialog.tiles.end(),
            [&](const DialogTile& tile) { return kindOfWords(tile.kind) == radio && isTouched(tile); });
        std::u16string names;
        for (const DialogTile& tile : dialog.tiles) {
            const bool isRead = isTouched(tile) || (readsRadio && kindOfWords(tile.kind) == radio);
            if (isWorked(tile) && !isRead) names += (names.empty() ? u"" : u", ") + tile.key;
        }
        return names;
    }

    Program& m_program;
    Definitions m_definitions;
    DialogFlow m_flow;
    std::set<Told> m_told;
};

CheckedProgram::CheckedProgram(std::vector<Source> sources, const Knowledge& knowledge, FindSource find,
                               const std::vector<std::u16string>& alsoDefined)
    : m_program(std::make_unique<Program>(knowledge, std::move(find))),
      m_work(std::make_unique<Work>(*m_program)) {
    std::vector<ProgramFile*> files;
    for (Source& source : sources) files.push_back(&m_program->addFile(std::move(source)));
    for (const std::u16string& name : alsoDefined) m_program->words.at(name)->isSet = true;
    m_work->run(files);
    m_findings = m_work->findings();
}

std::vector<std::u16string> CheckedProgram::definedNames() const {
    std::vector<std::u16string> names;
    for (const auto& definition : m_program->definitions) names.push_back(definition->word->name);
    return names;
}

CheckedProgram::~CheckedProgram() = default;

std::vector<const Form*> CheckedProgram::formsAround(uint32_t offset) const {
    std::vector<const Form*> around;
    const std::vector<Form>* forms = &m_program->files[0]->read.forms;
    while (forms) {
        const auto at = std::find_if(forms->begin(), forms->end(), [=](const Form& form) {
            const bool goesOn = form.isList() || form.isString() ? !form.isClosed : true;
            return form.begin < offset && (offset < form.end || (offset == form.end && goesOn));
        });
        if (at == forms->end()) break;
        around.push_back(&*at);
        const ReadText* text = at->isString() ? m_program->knownText(*at) : nullptr;
        forms = text ? &text->forms : &at->items;
    }
    return around;
}

DialogSet CheckedProgram::dialogAt(const Form& call) const {
    if (call.items.empty()) return DialogSet::any();
    const auto at = m_work->flow().atCalls().find(&call.items[0]);
    return at == m_work->flow().atCalls().end() ? DialogSet::any() : at->second;
}

std::vector<const Dialog*> CheckedProgram::openedDialogs() const {
    std::vector<const Dialog*> dialogs;
    for (const Definitions::Opening& opening : m_work->definitions().openings())
        if (const Dialog* dialog = m_program->knowledge.dialog(opening.name->text()))
            dialogs.push_back(dialog);
    return dialogs;
}

std::u16string Finding::message() const {
    return file + u':' + lisp::decimal(int64_t(line) + 1) + u':' + lisp::decimal(int64_t(column) + 1) +
           (isNote ? u": note: " : u": warning: ") + text;
}

}  // namespace check
