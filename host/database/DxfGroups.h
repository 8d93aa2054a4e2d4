// The groups of a file in the exchange format: a code on one line, its value on the next.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/database/Entity.h"

namespace cad {

struct Group {
    int code = 0;
    std::string_view value;
    size_t line = 0;

    bool is(int wanted, std::string_view text) const { return code == wanted && value == text; }
    // Throws FileFault where the value is no finite number.
    double number() const;
    int whole() const;
};

// The groups in turn. `text` outlives them. Throws FileFault for a code that is none, and at the file's end.
class Groups {
  public:
    explicit Groups(std::string_view text) : m_rest(text) { next(); }

    const Group& group() const { return m_group; }
    void next();

  private:
    std::string_view line();

    std::string_view m_rest;
    size_t m_number = 0;
    Group m_group;
};

// The groups of one entity, up to the next 0.
class Record {
  public:
    explicit Record(Groups& groups) : m_kind(groups.group().value), m_line(groups.group().line) {
        for (groups.next(); groups.group().code != 0; groups.next()) m_groups.push_back(groups.group());
    }

    std::string_view kind() const { return m_kind; }
    size_t line() const { return m_line; }
    const std::vector<Group>& groups() const { return m_groups; }
    const Group* find(int code) const {
        for (const Group& group : m_groups) {
            if (group.code == code) return &group;
        }
        return nullptr;
    }
    bool has(int code) const { return find(code); }
    double number(int code, double otherwise = 0.0) const {
        const Group* group = find(code);
        return group ? group->number() : otherwise;
    }
    int whole(int code, int otherwise = 0) const {
        const Group* group = find(code);
        return group ? group->whole() : otherwise;
    }
    std::string_view text(int code) const {
        const Group* group = find(code);
        return group ? group->value : std::string_view();
    }
    // Codes `code`, 10 more and 20 more.
    HostPoint3d point(int code) const { return {number(code), number(code + 10), number(code + 20)}; }
    HostVector3d normal() const {
        const HostVector3d given{number(210, 0.0), number(220, 0.0), number(230, has(210) ? 0.0 : 1.0)};
        return given.length() <= HOST_TOLERANCE ? HostVector3d{0, 0, 1} : given;
    }
    // From the coordinates of the entity's own plane to the world's.
    HostMatrix3d plane() const { return planeOf({}, normal()); }
    double positive(int code, double otherwise = 1.0) const {
        const double value = number(code, otherwise);
        return value > 0.0 ? value : otherwise;
    }

  private:
    std::string_view m_kind;
    size_t m_line;
    std::vector<Group> m_groups;
};

// Letters by number, "\U+00B0", and the signs for degree, plus-minus and diameter.
std::u16string decodedText(std::string_view bytes);

// Formatting of multi-line text goes: braces, and codes up to their semicolon. Line breaks and escaped signs
// stay.
std::u16string withoutFormats(const std::u16string& raw);

}  // namespace cad
