#include "host/check/Program.h"

namespace check {

Argument argumentOf(const Word& function, size_t index) {
    if (!function.definition) return function.function ? function.function->argument(index) : Argument{};
    const std::vector<Argument>& arguments = function.definition->arguments;
    return index < arguments.size() ? arguments[index] : Argument{};
}

Program::Program(const Knowledge& known, FindSource find) : knowledge(known), m_find(std::move(find)) {
    uint8_t number = 0;
    for (const std::u16string_view name : lisp::SPECIAL_FORM_NAMES)
        words.at(name)->special = static_cast<SpecialForm>(++number);
    for (const auto& [name, function] : known.functions()) words.at(name)->function = &function;
}

ProgramFile& Program::addFile(Source source) {
    auto file = std::make_unique<ProgramFile>();
    file->source = std::move(source);
    file->read = readFile(file->source.text, words);
    files.push_back(std::move(file));
    return *files.back();
}

ProgramFile* Program::loaded(std::u16string_view name) {
    if (const auto at = m_loaded.find(name); at != m_loaded.end()) return at->second;
    ProgramFile* found = nullptr;
    if (std::optional<Source> source = m_find ? m_find(name) : std::nullopt) {
        for (const auto& file : files)
            if (file->source.name == source->name) found = file.get();
        if (!found) found = &addFile(std::move(*source));
    }
    m_loaded.emplace(std::u16string(name), found);
    return found;
}

const ReadText& Program::textOf(const Form& string) {
    std::unique_ptr<ReadText>& text = m_texts[&string];
    if (!text) text = std::make_unique<ReadText>(readString(string.text(), string.offsets(), words));
    return *text;
}

const ReadText* Program::knownText(const Form& string) const {
    const auto at = m_texts.find(&string);
    return at == m_texts.end() ? nullptr : at->second.get();
}

Definition& Program::define(Word* word) {
    if (!word->definition) {
        definitions.push_back(std::make_unique<Definition>());
        word->definition = definitions.back().get();
        word->definition->word = word;
    }
    return *word->definition;
}

}  // namespace check
