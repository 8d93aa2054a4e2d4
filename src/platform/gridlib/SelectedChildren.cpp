#include "src/platform/gridlib/SelectedChildren.h"

#include <algorithm>
#include <utility>

#include "src/platform/gridlib/CountedObject.h"
#include "src/platform/gridlib/GridAccessible.h"

namespace {

class SelectedChildren final : public CountedObject<IEnumVARIANT> {
  public:
    SelectedChildren(std::vector<GridArea> areas, uint32_t columns)
        : m_areas(std::move(areas)), m_columns(columns) {
        Reset();
    }

    HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* children, ULONG* given) override {
        ULONG i = 0;
        for (; i < count && m_area < m_areas.size(); ++i, advance()) {
            children[i].vt = VT_I4;
            children[i].lVal = childOf(m_at.row, m_at.column, m_columns);
        }
        if (given) *given = i;
        return i == count ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
        for (; count > 0 && m_area < m_areas.size(); --count) advance();
        return count == 0 ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        enter(0);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override {
        if (!copy) return E_POINTER;
        auto* clone = new SelectedChildren(m_areas, m_columns);
        clone->m_area = m_area;
        clone->m_at = m_at;
        *copy = clone;
        return S_OK;
    }

  private:
    ~SelectedChildren() override = default;

    void enter(size_t area) {
        m_area = area;
        if (area < m_areas.size()) m_at = {m_areas[area].top, m_areas[area].left};
    }
    void advance() {
        do {
            const GridArea& area = m_areas[m_area];
            if (m_at.column < area.right)
                ++m_at.column;
            else if (m_at.row < area.bottom)
                m_at = {m_at.row + 1, area.left};
            else
                enter(m_area + 1);
        } while (m_area < m_areas.size() && isInFormerArea());
    }
    bool isInFormerArea() const {
        return std::any_of(m_areas.begin(), m_areas.begin() + static_cast<std::ptrdiff_t>(m_area),
                           [this](const GridArea& area) { return area.contains(m_at); });
    }

    std::vector<GridArea> m_areas;
    uint32_t m_columns;
    size_t m_area = 0;
    GridPlace m_at;
};

}  // namespace

IEnumVARIANT* selectedChildren(std::vector<GridArea> areas, uint32_t columns) {
    return new SelectedChildren(std::move(areas), columns);
}
