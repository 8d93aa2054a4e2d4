#include "host/check/FormReader.h"

#include <algorithm>
#include <optional>

#include "host/check/Layout.h"
#include "host/lisp/Text.h"
#include "host/lisp/Tokens.h"

namespace check {

namespace {

// Lists nest no deeper in any program that a person writes, and each level costs stack.
constexpr size_t DEEPEST = 200;

// Reads one stretch of text by itself.
class StretchReader {
  public:
    StretchReader(std::u16string_view text, size_t begin, size_t end, std::span<const uint32_t> offsets,
                  Words& words)
        : m_text(text.substr(0, end)),
          m_offsets(offsets),
          m_words(words),
          m_position(begin),
          m_layout(begin) {
        m_open.push_back({});
    }

    // The string that begins at `mendAt` was left open: it ends at `mendEnd`.
    void read(size_t mendAt = std::u16string_view::npos, size_t mendEnd = 0) {
        m_mendAt = mendAt;
        m_mendEnd = mendEnd;
        while (m_position < m_text.size()) token();
        finish();
    }

    bool fits() const {
        return !m_openString && !m_openComment && !m_unclosed && !m_stray && !m_tooDeep && !m_nestsDefinition;
    }
    bool endsInString() const { return m_openString.has_value(); }
    bool endsInComment() const { return m_openComment.has_value(); }
    // Where the string begins that probably lacks its other quotation mark.
    size_t suspectString() const { return m_suspectString.value_or(m_openString.value_or(0)); }
    std::vector<Form>& forms() { return m_forms; }

    std::vector<Fault> faults() const {
        std::vector<Fault> faults;
        const auto add = [&](size_t at, std::u16string_view text) {
            faults.push_back({place(at), place(at) + 1, std::u16string(text)});
        };
        if (m_tooDeep) add(*m_tooDeep, u"lists are nested too deeply here to be checked");
        if (m_openComment) add(*m_openComment, u"the comment that opens here is not closed");
        if (m_openString) add(suspectString(), u"the string that opens here is not closed");
        if (!faults.empty()) return faults;
        if (m_unclosed)
            add(m_layout.unclosed().value_or(*m_unclosed), u"the list that opens here is not closed");
        if (m_stray) {
            const std::optional<size_t> early = m_layout.closedEarly();
            add(early.value_or(*m_stray),
                early ? u"a closing parenthesis too many: what follows is indented as if the list went on"
                      : u"a closing parenthesis without an opening one");
        }
        return faults;
    }

  private:
    struct Open {
        Form form;
        size_t at = 0;
        bool isQuote = false;
        size_t first = 0;  // of its elements among the pending forms
    };

    uint32_t place(size_t at) const {
        if (m_offsets.empty()) return static_cast<uint32_t>(at);
        return m_offsets[std::min(at, m_offsets.size() - 1)];
    }

    void token() {
        const char16_t c = m_text[m_position];
        if (lisp::isBlank(c)) {
            if (c == u'\n') m_layout.newLine(m_position + 1);
            ++m_position;
        } else if (c == u';') {
            comment();
        } else if (c == u')') {
            close();
        } else {
            m_layout.token(m_position);
            if (c == u'(') {
                open(false);
            } else if (c == u'\'') {
                open(true);
            } else if (c == u'"') {
                string();
            } else {
                word();
            }
        }
    }

    void comment() {
        if (!m_text.substr(m_position).starts_with(u";|")) {
            m_position = std::min(m_text.find(u'\n', m_position), m_text.size());
            return;
        }
        const size_t end = m_text.find(u"|;", m_position + 2);
        if (end == m_text.npos) {
            m_openComment = m_position;
            m_position = m_text.size();
            return;
        }
        const size_t line = m_text.rfind(u'\n', end);
        if (line != m_text.npos && line > m_position) m_layout.newLine(line + 1);
        m_position = end + 2;
    }

    void open(bool isQuote) {
        if (m_open.size() > DEEPEST) {
            m_tooDeep = m_position;
            m_position = m_text.size();
            return;
        }
        Open opened;
        opened.at = m_position;
        opened.isQuote = isQuote;
        opened.first = m_pending.size();
        // Nobody indents so: a list before is open by mistake, even where a later one closes once too often.
        const bool isAtMargin = m_position > 0 && m_text[m_position - 1] == u'\n';
        if (isAtMargin && m_open.size() > 1 && m_text.substr(m_position).starts_with(u"(defun "))
            m_nestsDefinition = true;
        opened.form.kind = isQuote ? Form::Kind::quote : Form::Kind::list;
        opened.form.begin = place(m_position);
        if (!isQuote) m_layout.open(m_position);
        m_open.push_back(std::move(opened));
        ++m_position;
    }

    void close() {
        while (m_open.size() > 1 && m_open.back().isQuote) closeTop(m_position, true);
        if (m_open.size() == 1) {
            if (!m_stray) m_stray = m_position;
            m_layout.stray();
        } else {
            m_layout.close(m_position);
            closeTop(m_position + 1, true);
        }
        ++m_position;
    }

    void closeTop(size_t end, bool isClosed) {
        Form form = std::move(m_open.back().form);
        const auto first = m_pending.begin() + static_cast<ptrdiff_t>(m_open.back().first);
        m_open.pop_back();
        form.items.assign(std::make_move_iterator(first), std::make_move_iterator(m_pending.end()));
        m_pending.erase(first, m_pending.end());
        // One that is open goes on to the end of the text, behind an escape too.
        form.end = isClosed ? place(end - 1) + 1 : place(end);
        form.isClosed = isClosed;
        add(std::move(form));
    }

    void add(Form&& form) {
        if (m_open.size() == 1) {
            m_forms.push_back(std::move(form));
            return;
        }
        m_pending.push_back(std::move(form));
        if (m_open.back().isQuote) closeTop(m_position, true);
    }

    void string() {
        const size_t begin = m_position++;
        Form form;
        form.kind = Form::Kind::string;
        form.begin = place(begin);
        const size_t limit = begin == m_mendAt ? m_mendEnd : m_text.size();
        auto content = std::make_unique<StringContent>();
        form.isClosed = takeContent(*content, limit);
        const bool isMended = begin == m_mendAt;
        const bool isOpen = !form.isClosed && !isMended;
        content->offsets.push_back(
            place(form.isClosed ? m_position - 1 : std::min(m_position, m_text.size() - 1)));
        form.content = std::move(content);
        form.end = form.isClosed ? place(m_position - 1) + 1 : place(m_position);
        if (isOpen && !m_openString) m_openString = begin;
        noteString(begin, isOpen);
        add(std::move(form));
    }

    // Up to the closing mark, or to `limit`. Whether there is a mark.
    bool takeContent(StringContent& content, size_t limit) {
        while (m_position < limit) {
            const size_t begin = m_position;
            while (m_position < limit && m_text[m_position] != u'"' && m_text[m_position] != u'\\')
                ++m_position;
            content.text.append(m_text.substr(begin, m_position - begin));
            for (size_t at = begin; at < m_position; ++at) content.offsets.push_back(place(at));
            if (m_position == limit) break;
            const size_t at = m_position++;
            if (m_text[at] == u'"') return true;
            if (m_position == limit) {
                content.text += u'\\';
            } else {
                const char16_t letter = m_text[m_position++];
                content.text += lisp::escaped(letter, m_text, m_position);
            }
            content.offsets.push_back(place(at));
        }
        return false;
    }

    // The first string that goes on in another line, or touches a word, is the one whose mark is missing.
    void noteString(size_t begin, bool isOpen) {
        const std::u16string_view inside = m_text.substr(begin, m_position - begin);
        const size_t line = inside.find(u'\n');
        if (line != inside.npos) m_layout.newLine(begin + inside.rfind(u'\n') + 1);
        const bool touches = m_position < m_text.size() && !lisp::endsWord(m_text[m_position]);
        if (!m_suspectString && (touches || line != inside.npos || isOpen)) m_suspectString = begin;
    }

    void word() {
        const size_t begin = m_position;
        while (m_position < m_text.size() && !lisp::endsWord(m_text[m_position])) ++m_position;
        const std::u16string_view token = m_text.substr(begin, m_position - begin);
        if (token == u"." && m_open.size() > 1 && !m_open.back().isQuote) {
            m_open.back().form.isDotted = true;
            return;
        }
        Form form;
        form.begin = place(begin);
        form.end = place(m_position - 1) + 1;
        form.kind = Form::Kind::symbol;
        if (const auto number = lisp::numberOf(token)) {
            const auto* integer = std::get_if<int32_t>(&*number);
            form.kind = integer ? Form::Kind::integer : Form::Kind::real;
            if (integer) form.number = *integer;
        } else {
            form.word = m_words.at(token);
        }
        add(std::move(form));
    }

    void finish() {
        while (m_open.size() > 1) {
            if (!m_open.back().isQuote && !m_tooDeep) m_unclosed = m_open.back().at;
            closeTop(std::max<size_t>(m_text.size(), 1), false);
        }
    }

    std::u16string_view m_text;
    std::span<const uint32_t> m_offsets;
    Words& m_words;
    size_t m_position;
    size_t m_mendAt = std::u16string_view::npos;
    size_t m_mendEnd = 0;
    Layout m_layout;
    // The lists that are open, below them one that stands for the text.
    std::vector<Open> m_open;
    // Their elements so far, those of the innermost list last.
    std::vector<Form> m_pending;
    std::vector<Form> m_forms;
    std::optional<size_t> m_openString, m_suspectString, m_openComment, m_unclosed, m_stray, m_tooDeep;
    bool m_nestsDefinition = false;
};

void append(ReadText& all, StretchReader& part) {
    std::vector<Form>& forms = part.forms();
    all.forms.insert(all.forms.end(), std::make_move_iterator(forms.begin()),
                     std::make_move_iterator(forms.end()));
    const std::vector<Fault> faults = part.faults();
    all.faults.insert(all.faults.end(), faults.begin(), faults.end());
}

// Reads what doesn't fit so that as much of it as can be becomes forms.
void appendBroken(ReadText& all, std::u16string_view text, size_t begin, size_t end,
                  std::span<const uint32_t> offsets, Words& words) {
    StretchReader broken(text, begin, end, offsets, words);
    broken.read();
    if (!broken.endsInString()) return append(all, broken);
    // The string ends with its line, and what follows is read as it was meant.
    const size_t string = broken.suspectString();
    StretchReader mended(text, begin, end, offsets, words);
    mended.read(string, std::min(text.find(u'\n', string), end));
    const std::vector<Fault> faults = broken.faults();
    all.faults.insert(all.faults.end(), faults.begin(), faults.end());
    all.forms.insert(all.forms.end(), std::make_move_iterator(mended.forms().begin()),
                     std::make_move_iterator(mended.forms().end()));
}

// Where a "(" stands in the first column, and both ends of the text.
std::vector<size_t> stretches(std::u16string_view text) {
    std::vector<size_t> starts = {0};
    for (size_t at = text.find(u"\n("); at != text.npos; at = text.find(u"\n(", at + 1))
        starts.push_back(at + 1);
    starts.push_back(text.size());
    return starts;
}

}  // namespace

ReadText readFile(std::u16string_view text, Words& words) {
    ReadText all;
    StretchReader whole(text, 0, text.size(), {}, words);
    whole.read();
    if (whole.fits()) {
        append(all, whole);
        return all;
    }
    const std::vector<size_t> starts = stretches(text);
    for (size_t i = 0; i + 1 < starts.size();) {
        // A string or a comment may hold lines that look like the beginning of a form.
        size_t next = i + 1;
        for (size_t end = next; end < std::min(starts.size(), i + 20); ++end) {
            StretchReader part(text, starts[i], starts[end], {}, words);
            part.read();
            if (part.fits()) {
                next = end;
                break;
            }
            if (!part.endsInString() && !part.endsInComment()) break;
        }
        StretchReader part(text, starts[i], starts[next], {}, words);
        part.read();
        if (part.fits())
            append(all, part);
        else
            appendBroken(all, text, starts[i], starts[next], {}, words);
        i = next;
    }
    return all;
}

ReadText readString(std::u16string_view text, std::span<const uint32_t> offsets, Words& words) {
    ReadText all;
    StretchReader whole(text, 0, text.size(), offsets, words);
    whole.read();
    if (whole.fits())
        append(all, whole);
    else
        appendBroken(all, text, 0, text.size(), offsets, words);
    return all;
}

Word* Words::at(std::u16string_view name) {
    m_capitals.clear();
    for (const char16_t c : name) m_capitals += lisp::upperCase(c);
    if (const auto at = m_words.find(m_capitals); at != m_words.end()) return at->second.get();
    auto word = std::make_unique<Word>();
    word->name = m_capitals;
    Word* const made = word.get();
    m_words.emplace(made->name, std::move(word));
    return made;
}

}  // namespace check
