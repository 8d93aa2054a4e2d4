#include "host/record/Recording.h"

#include "host/lisp/Reader.h"
#include "host/services/Texts.h"

namespace {

// Whether `next` does itself what the step does.
bool isIncluded(const RecordedStep& step, const RecordedStep* next) {
    using Kind = RecordedStep::Kind;
    if (!next || next->tile != step.tile) return false;
    return (step.kind == Kind::focus && (next->kind == Kind::click || next->kind == Kind::type)) ||
           (step.kind == Kind::open && next->kind == Kind::pick);
}

}  // namespace

std::wstring lispString(std::wstring_view text) { return wideText(lisp::readable(lispText(text))); }

std::wstring keyForm(const KeyStroke& stroke) {
    const std::wstring name = keyStrokeName(stroke);
    return name.empty() ? name : L"(ui_key " + lispString(name) + L")";
}

size_t Recording::begin(std::wstring_view dialog) {
    m_sessions.push_back({std::wstring(dialog), {}});
    return m_sessions.size() - 1;
}

Recording::Place Recording::add(size_t session, RecordedStep step) {
    auto& steps = m_sessions[session].steps;
    steps.push_back(std::move(step));
    m_last = Place{session, steps.size() - 1};
    ++m_count;
    return *m_last;
}

void Recording::addBeforeLast(std::wstring form) {
    (m_last ? at(*m_last).before : m_beforeAll).push_back(std::move(form));
}

void Recording::dropMenuKeys() {
    if (!m_last) return;
    auto& steps = m_sessions[m_last->session].steps;
    for (auto step = steps.rbegin(); step != steps.rend() && step->kind == RecordedStep::Kind::menuKey;
         ++step)
        step->form.clear();
}

std::vector<std::wstring> Recording::formsOf(const Session& session) {
    std::vector<std::wstring> forms;
    for (auto step = session.steps.begin(); step != session.steps.end(); ++step) {
        forms.insert(forms.end(), step->before.begin(), step->before.end());
        if (step->form.empty()) continue;
        auto next = std::next(step);
        while (next != session.steps.end() && next->form.empty()) ++next;
        if (!isIncluded(*step, next == session.steps.end() ? nullptr : &*next)) forms.push_back(step->form);
    }
    return forms;
}

std::wstring Recording::text() const {
    std::wstring text = m_head;
    if (!m_beforeAll.empty()) text += L'\n';
    for (const std::wstring& form : m_beforeAll) text += form + L"\n";
    for (const Session& session : m_sessions) {
        text += L"\n(ui_session " + lispString(session.dialog) + L"\n  '(";
        bool isFirst = true;
        for (const std::wstring& form : formsOf(session)) {
            if (!isFirst) text += L"\n    ";
            text += form;
            isFirst = false;
        }
        text += L"))\n";
    }
    return text;
}
