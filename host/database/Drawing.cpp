#include "host/database/Drawing.h"

#include <algorithm>
#include <atomic>
#include <stdexcept>

#include "host/lisp/Text.h"

namespace cad {
namespace {

// Ids differ between all drawings of the process, since a view is given an id alone.
ObjectId newId() {
    static std::atomic<ObjectId> last = 0;
    return ++last;
}

template <class Named>
auto findNamed(Named& things, std::u16string_view name) {
    const std::u16string folded = lisp::upperCase(name);
    return std::find_if(things.begin(), things.end(),
                        [&](const auto& thing) { return lisp::upperCase(thing.name) == folded; });
}

}  // namespace

Entity& Block::add(Entity entity) {
    ++m_revision;
    return m_entities.emplace_back(std::move(entity));
}

Entity& Block::change(size_t index) {
    ++m_revision;
    return m_entities.at(index);
}

void Block::remove(size_t index) {
    if (index >= m_entities.size()) throw std::out_of_range("no such entity");
    ++m_revision;
    m_entities.erase(m_entities.begin() + static_cast<std::ptrdiff_t>(index));
}

void Block::clear() {
    ++m_revision;
    m_entities.clear();
}

const HostExtents& Block::extents() const {
    if (m_extentsRevision != m_revision) {
        m_extents = {};
        for (const Entity& entity : m_entities) extentsOf(entity, m_extents);
        m_extentsRevision = m_revision;
    }
    return m_extents;
}

Drawing::Drawing() {
    addBlock(MODEL_SPACE);
    addBlock(PAPER_SPACE);
    m_layers.push_back({u"0"});
    addTableStyle({.name = u"Standard"});
    m_variables = {{u"CVPORT", int16_t{2}}, {u"TILEMODE", int16_t{1}}, {u"VIEWCTR", HostPoint3d{}}};
}

Block* Drawing::block(std::u16string_view name) const {
    const auto found = m_blockNumbers.find(lisp::upperCase(name));
    return found == m_blockNumbers.end() ? nullptr : m_blocks[found->second].get();
}

Block* Drawing::block(ObjectId id) const {
    const auto found =
        std::find_if(m_blocks.begin(), m_blocks.end(), [=](const auto& b) { return b->id() == id; });
    return found == m_blocks.end() ? nullptr : found->get();
}

Block& Drawing::addBlock(std::u16string name) {
    if (name.empty()) throw std::invalid_argument("a block needs a name");
    if (!m_blockNumbers.emplace(lisp::upperCase(name), m_blocks.size()).second) {
        throw std::invalid_argument("there is a block of that name");
    }
    return *m_blocks.emplace_back(std::make_unique<Block>(newId(), std::move(name)));
}

uint32_t Drawing::layerNamed(std::u16string_view name) {
    auto found = findNamed(m_layers, name);
    if (found == m_layers.end()) found = m_layers.insert(found, Layer{std::u16string(name)});
    return static_cast<uint32_t>(found - m_layers.begin());
}

uint32_t Drawing::rgbOf(const Entity& entity) const {
    return cad::rgbOf(entity.color == BY_LAYER ? m_layers.at(entity.layer).color : entity.color);
}

const TableStyle* Drawing::tableStyle(std::u16string_view name) const {
    const auto found = findNamed(m_tableStyles, name);
    return found == m_tableStyles.end() ? nullptr : &*found;
}

const TableStyle* Drawing::tableStyle(ObjectId id) const {
    const auto found = std::find_if(m_tableStyles.begin(), m_tableStyles.end(),
                                    [=](const auto& style) { return style.id == id; });
    return found == m_tableStyles.end() ? nullptr : &*found;
}

TableStyle& Drawing::addTableStyle(TableStyle style) {
    const auto found = findNamed(m_tableStyles, style.name);
    style.id = found == m_tableStyles.end() ? newId() : found->id;
    return found == m_tableStyles.end() ? m_tableStyles.emplace_back(std::move(style))
                                        : *found = std::move(style);
}

void Drawing::layOut(Table& table) const {
    const TableStyle* style = tableStyle(table.style);
    if (!style) style = &m_tableStyles.front();
    table.textHeight = style->textHeight;
    std::fill(table.rowHeights.begin(), table.rowHeights.end(), style->rowHeight);
    std::fill(table.columnWidths.begin(), table.columnWidths.end(), style->columnWidth);
}

}  // namespace cad
