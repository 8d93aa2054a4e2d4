#include "host/documents/OpenedObjects.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <vector>

#include "host/services/Texts.h"

namespace opened {
namespace {

// What all handles have: the drawing in which they are, null for none yet.
class Handle {
  public:
    explicit Handle(cad::Drawing* drawing) : m_drawing(drawing) {}
    virtual ~Handle() = default;
    cad::Drawing* drawing() const { return m_drawing; }

  protected:
    cad::Drawing* m_drawing;
};

std::vector<std::unique_ptr<Handle>>& handles() {
    static auto& all = *new std::vector<std::unique_ptr<Handle>>;
    return all;
}

template <class Kind, class... Arguments>
Kind* keep(Arguments&&... arguments) {
    auto made = std::make_unique<Kind>(std::forward<Arguments>(arguments)...);
    Kind* const handle = made.get();
    handles().push_back(std::move(made));
    return handle;
}

void drop(const Handle* handle) {
    // What was opened last is mostly closed first.
    const auto found = std::find_if(handles().rbegin(), handles().rend(),
                                    [=](const auto& one) { return one.get() == handle; });
    if (found != handles().rend()) handles().erase(std::next(found).base());
}

int statusOf(bool done) { return done ? HOST_NORMAL : HOST_ERROR; }

// An entity of a block, by its place: entities move when others are added.
struct Place {
    cad::Block* block;
    size_t index;
    const cad::Entity& entity() const { return block->entities().at(index); }
};

template <class Interface>
class OpenEntity : public Interface, public Handle {
  public:
    OpenEntity(cad::Drawing& drawing, const Place& place) : Handle(&drawing), m_place(place) {}

    bool isKindOf(const wchar_t* className) const override {
        if constexpr (!std::is_same_v<Interface, HostEntity>) {
            if (std::wstring_view(className) == Interface::className) return true;
        }
        return std::wstring_view(className) == L"HostEntity";
    }
    int getGeomExtents(HostExtents* extents) const override {
        *extents = {};
        return statusOf(cad::extentsOf(m_place.entity(), *extents));
    }
    void close() override { drop(this); }

  protected:
    Place m_place;
};

class OpenMText final : public OpenEntity<HostMText> {
  public:
    OpenMText(cad::Drawing& drawing, const Place& place)
        : OpenEntity(drawing, place),
          m_contents(wideText(std::get<cad::MText>(place.entity().geometry).contents)) {}
    const wchar_t* contents() const override { return m_contents.c_str(); }

  private:
    std::wstring m_contents;
};

class OpenTable final : public HostTable, public Handle {
  public:
    explicit OpenTable(std::unique_ptr<cad::Table> table) : Handle(nullptr), m_new(std::move(table)) {}
    OpenTable(cad::Drawing& drawing, const Place& place) : Handle(&drawing), m_place(place) {}

    // Gives the table away to a drawing; the handle stays on it.
    cad::Entity take() {
        cad::Entity entity;
        entity.geometry = std::move(m_new);
        return entity;
    }
    void moveTo(cad::Drawing& drawing, const Place& place) {
        m_drawing = &drawing;
        m_place = place;
        if (m_layOutWhenAdded) generateLayout();
    }
    // A table may be closed before it is given to a block, which is when its handle goes.
    bool wasClosed() const { return m_wasClosed; }

    bool isKindOf(const wchar_t* className) const override {
        return std::wstring_view(className) == HostTable::className ||
               std::wstring_view(className) == L"HostEntity";
    }
    int getGeomExtents(HostExtents* extents) const override {
        *extents = {};
        return statusOf(m_drawing && cad::extentsOf(m_place.entity(), *extents));
    }
    void close() override {
        m_wasClosed = true;
        if (m_drawing) drop(this);
    }
    void setTableStyle(HostObjectId style) override { table().style = style; }
    void setSize(int rows, int columns) override {
        cad::Table& table = this->table();
        table.rowHeights.assign(static_cast<size_t>(std::max(0, rows)), cad::TableStyle().rowHeight);
        table.columnWidths.assign(static_cast<size_t>(std::max(0, columns)), cad::TableStyle().columnWidth);
        table.cells.assign(table.rowHeights.size() * table.columnWidths.size(), u"");
    }
    int numRows() const override { return constTable().rows(); }
    int numColumns() const override { return constTable().columns(); }
    void generateLayout() override {
        // A table that isn't in a drawing yet takes its style from the one that has it, which newTable's
        // caller asked.
        if (m_drawing) m_drawing->layOut(table());
        m_layOutWhenAdded = !m_drawing;
    }
    int setTextString(int row, int column, const wchar_t* text) override {
        std::u16string* cell = table().cell(row, column);
        if (cell) *cell = lispText(text);
        return statusOf(cell);
    }

  private:
    cad::Table& table() {
        return m_new ? *m_new
                     : *std::get<std::unique_ptr<cad::Table>>(m_place.block->change(m_place.index).geometry);
    }
    const cad::Table& constTable() const {
        return m_new ? *m_new : *std::get<std::unique_ptr<cad::Table>>(m_place.entity().geometry);
    }

    std::unique_ptr<cad::Table> m_new;
    Place m_place{};
    bool m_layOutWhenAdded = false;
    bool m_wasClosed = false;
};

class OpenBlock final : public HostBlockRecord, public Handle {
  public:
    OpenBlock() : Handle(nullptr), m_forWriting(true) {}
    OpenBlock(cad::Drawing& drawing, cad::Block& block, bool forWriting)
        : Handle(&drawing), m_block(&block), m_name(wideText(block.name())), m_forWriting(forWriting) {}

    // A new record's block is made. Throws std::invalid_argument.
    void addTo(cad::Drawing& drawing) {
        m_block = &drawing.addBlock(lispText(m_name));
        m_block->origin = m_origin;
        m_drawing = &drawing;
    }
    bool isNew() const { return !m_block; }
    bool isWritten() const { return m_forWriting; }

    const wchar_t* isA() const override { return L"HostBlockRecord"; }
    bool isPersistent() const override { return m_block; }
    HostObjectId id() const override { return m_block ? m_block->id() : 0; }
    bool bounds(HostExtents* extents) const override {
        if (!m_block || m_block->extents().isEmpty()) return false;
        *extents = m_block->extents();
        return true;
    }
    const wchar_t* name() const override { return m_name.c_str(); }
    int setName(const wchar_t* name) override {
        if (m_block) return HOST_ERROR;
        m_name = name;
        return HOST_NORMAL;
    }
    void setOrigin(const HostPoint3d& origin) override { (m_block ? m_block->origin : m_origin) = origin; }
    int appendEntity(HostEntity* entity) override {
        if (!entity || !entity->isKindOf(HostTable::className)) return HOST_ERROR;
        auto* table = static_cast<OpenTable*>(static_cast<HostTable*>(entity));
        const bool taken = m_block && m_forWriting && !table->drawing();
        if (taken) {
            m_block->add(table->take());
            table->moveTo(*m_drawing, {m_block, m_block->entities().size() - 1});
        }
        if (table->wasClosed()) drop(table);
        return statusOf(taken);
    }
    int entityCount() const override { return m_block ? static_cast<int>(m_block->entities().size()) : 0; }
    HostEntity* openEntity(int index) override {
        if (index < 0 || index >= entityCount()) return nullptr;
        const Place place{m_block, static_cast<size_t>(index)};
        const cad::Geometry& geometry = place.entity().geometry;
        if (std::holds_alternative<cad::MText>(geometry)) return keep<OpenMText>(*m_drawing, place);
        if (std::holds_alternative<std::unique_ptr<cad::Table>>(geometry))
            return keep<OpenTable>(*m_drawing, place);
        return keep<OpenEntity<HostEntity>>(*m_drawing, place);
    }
    void close() override { drop(this); }

  private:
    cad::Block* m_block = nullptr;
    std::wstring m_name;
    HostPoint3d m_origin;
    bool m_forWriting;
};

class OpenBlockTable final : public HostBlockTable, public Handle {
  public:
    OpenBlockTable(cad::Drawing& drawing, bool forWriting) : Handle(&drawing), m_forWriting(forWriting) {}

    bool isWritten() const { return m_forWriting; }
    bool has(const wchar_t* name) const override { return getAt(name) != 0; }
    HostObjectId getAt(const wchar_t* name) const override {
        const cad::Block* block = m_drawing->block(lispText(name));
        return block ? block->id() : 0;
    }
    int blockCount() const override { return static_cast<int>(m_drawing->blocks().size()); }
    HostObjectId blockAt(int index) const override {
        return index >= 0 && index < blockCount() ? m_drawing->blocks()[static_cast<size_t>(index)]->id() : 0;
    }
    int add(HostBlockRecord* record) override {
        auto* block = static_cast<OpenBlock*>(record);
        if (!m_forWriting || !block || !block->isNew()) return HOST_ERROR;
        try {
            block->addTo(*m_drawing);
        } catch (const std::invalid_argument&) {
            return HOST_ERROR;
        }
        return HOST_NORMAL;
    }
    void close() override { drop(this); }

  private:
    bool m_forWriting;
};

class OpenViewport final : public HostViewportRecord, public Handle {
  public:
    explicit OpenViewport(const cad::ViewportState& state) : Handle(nullptr), m_state(state) {}
    double height() const override { return m_state.height; }
    double width() const override { return m_state.width; }
    HostPoint3d target() const override { return m_state.target; }
    HostVector3d viewDirection() const override { return m_state.direction; }
    double viewTwist() const override { return m_state.twist; }
    void close() override { drop(this); }

  private:
    cad::ViewportState m_state;
};

}  // namespace

HostBlockTable* blockTable(cad::Drawing& drawing, bool forWriting) {
    for (const auto& handle : handles()) {
        const auto* open = dynamic_cast<const OpenBlockTable*>(handle.get());
        // Many may read; who writes is alone.
        if (open && open->drawing() == &drawing && (forWriting || open->isWritten())) return nullptr;
    }
    return keep<OpenBlockTable>(drawing, forWriting);
}

HostBlockRecord* block(cad::Drawing& drawing, cad::Block& block, bool forWriting) {
    return keep<OpenBlock>(drawing, block, forWriting);
}

HostViewportRecord* viewport(const cad::ViewportState& state) { return keep<OpenViewport>(state); }

HostTable* newTable() { return keep<OpenTable>(std::make_unique<cad::Table>()); }

HostBlockRecord* newBlock() { return keep<OpenBlock>(); }

void closeAllOf(const cad::Drawing& drawing) {
    std::erase_if(handles(), [&](const auto& handle) { return handle->drawing() == &drawing; });
}

}  // namespace opened
