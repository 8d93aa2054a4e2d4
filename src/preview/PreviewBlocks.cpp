// What the preview shows: finding a block, framing it, and giving all back.
#include <algorithm>
#include <utility>

#include "src/platform/base/CString.h"
#include "src/platform/host/HostLisp.h"
#include "src/platform/host/HostServices.h"
#include "src/preview/CGsPreviewCtrl.h"
#include "src/preview/Framing.h"
#include "src/preview/GraphicsError.h"
#include "src/shell/Module.h"

namespace {

constexpr UINT CURSOR_IDS[] = {240, 225, 226};
constexpr const wchar_t* SAMPLE_BLOCK = L"test";
constexpr int SAMPLE_ROWS = 5, SAMPLE_COLUMNS = 10;
constexpr const wchar_t* MODEL_SPACE = L"*Model_Space";
constexpr const wchar_t* NOT_LOADED = L"Could not load the drawing file: ";
constexpr const wchar_t* NOT_DISPLAYED = L"An error occurred when trying to display the drawing.";
constexpr int MOST_PATH_CHARS = 511;
constexpr HostVector3d PLAN_UP = {0, 1, 0}, PLAN_DIRECTION = {0, 0, 1};

// Closes what was opened.
template <class Opened>
class Open {
  public:
    explicit Open(Opened* opened) : m_opened(opened) {}
    ~Open() {
        if (m_opened) m_opened->close();
    }
    Open(const Open&) = delete;
    Open& operator=(const Open&) = delete;
    explicit operator bool() const { return m_opened; }
    Opened* operator->() const { return m_opened; }
    Opened* get() const { return m_opened; }

  private:
    Opened* m_opened;
};

int16_t variableOr(const wchar_t* name, int16_t otherwise) {
    HostValue* value = hostNewRb(HV_SHORT);
    const bool found = hostGetVar(name, value) == HOST_NORMAL && value->type == HV_SHORT;
    const int16_t number = found ? value->value.shortValue : otherwise;
    hostRelRb(value);
    return number;
}

CString replaced(CString text, const wchar_t* what, const wchar_t* with) {
    const std::wstring_view sought = what;
    for (size_t at = 0; (at = text.find(sought, at)) != CString::npos; at += 1)
        text.replace(at, sought.size(), with);
    return text;
}

void retSizes(double width, double height) {
    HostValue* sizes = hostBuildList(HV_REAL, width, HV_REAL, height, HV_NONE);
    hostRetList(sizes);
    hostRelRb(sizes);
}

// kept: an empty text adds nothing, and stays open.
HostExtents entityExtents(HostBlockRecord* record) {
    HostExtents extents;
    for (int at = 0; at < record->entityCount(); ++at) {
        HostEntity* entity = record->openEntity(at);
        if (!entity) continue;
        HostExtents own;
        const bool known = entity->getGeomExtents(&own) == HOST_NORMAL;
        const bool isText = entity->isKindOf(HostMText::className);
        if (isText && !*static_cast<HostMText*>(entity)->contents()) continue;
        if (known) extents.addExt(own);
        entity->close();
    }
    return extents;
}

HostValue* textNode(const wchar_t* text) {
    HostValue* node = hostNewRb(HV_STRING);
    hostNewString(text, &node->value.stringValue);
    return node;
}

}  // namespace

// --- showing

bool CGsPreviewCtrl::showSampleTable() {
    HostDatabase* database = hostWorkingDatabase();
    if (!database) return false;
    {
        const Open<HostBlockTable> blocks(database->openBlockTable(HOST_FOR_READ));
        if (blocks && blocks->has(SAMPLE_BLOCK)) {
            showBlock(SAMPLE_BLOCK);
            return true;
        }
    }
    {
        const Open<HostBlockTable> blocks(database->openBlockTable(HOST_FOR_WRITE));
        if (!blocks) return false;
        const Open<HostBlockRecord> record(hostNewBlockRecord());
        record->setName(SAMPLE_BLOCK);
        record->setOrigin({0, 0, 0});
        blocks->add(record.get());
        HostTable* table = hostNewTable();
        if (const HostObjectId style = database->tableStyle(SAMPLE_BLOCK)) table->setTableStyle(style);
        table->setSize(SAMPLE_ROWS, SAMPLE_COLUMNS);
        table->generateLayout();
        for (const auto& [row, column] : {std::pair(0, 0), {0, 1}, {1, 0}, {1, 1}})
            table->setTextString(row, column, L"test");
        table->close();
        if (record->appendEntity(table) != HOST_NORMAL) return false;
    }
    showBlock(SAMPLE_BLOCK);
    return true;
}

bool CGsPreviewCtrl::showBlock(const CString& name) {
    return showBlockFull(name, 0.0, true, 1, PLAN_UP, PLAN_DIRECTION);
}

bool CGsPreviewCtrl::showBlockFull(const CString& name, double zoom, bool fitOff, int mode,
                                   const HostVector3d&, const HostVector3d& direction) {
    clearGraphics();
    if (m_database && m_fileName.empty()) deleteDatabase();
    m_blockName = name;
    if (name.empty()) return false;
    frameShown(zoom, fitOff, mode, direction);
    return true;
}

bool CGsPreviewCtrl::frameShown(double zoom, bool fitOff, int mode, const HostVector3d& direction) {
    HostBlockRecord* record = openShown();
    if (record)
        frameBlock(record, zoom, fitOff, mode, direction);
    else
        m_blockName.clear();
    return record != nullptr;
}

HostBlockRecord* CGsPreviewCtrl::openShown() const {
    HostDatabase* database = shownDatabase();
    const Open<HostBlockTable> blocks(database ? database->openBlockTable(HOST_FOR_READ) : nullptr);
    return blocks ? database->openBlock(blocks->getAt(m_blockName.c_str()), HOST_FOR_READ) : nullptr;
}

bool CGsPreviewCtrl::showBlockRecord(HostBlockRecord* record) {
    clearGraphics();
    if (!isOfOwnDrawing(*record) && m_database && m_fileName.empty()) deleteDatabase();
    m_blockName = record->name();
    frameBlock(record, 0.0, true, 1, PLAN_DIRECTION);
    return true;
}

// A record dies with its drawing.
bool CGsPreviewCtrl::isOfOwnDrawing(const HostBlockRecord& record) const {
    const Open<HostBlockRecord> again(m_database ? m_database->openBlock(record.id(), HOST_FOR_READ)
                                                 : nullptr);
    return static_cast<bool>(again);
}

void CGsPreviewCtrl::setUpGraphics(HMODULE resources, bool withModel) {
    for (size_t at = 0; at < std::size(CURSOR_IDS); ++at)
        m_cursors[at] = LoadCursorW(resources, MAKEINTRESOURCEW(CURSOR_IDS[at]));
    if (m_gsManager) return;
    m_gsManager = hostGetGsManager(nullptr);
    HostGsKernelDescriptor descriptor;
    descriptor.addRequirement(HOST_GS_3D_DRAWING);
    m_kernel = m_gsManager ? m_gsManager->acquireKernel(descriptor) : nullptr;
    if (!m_kernel) return;
    m_device = m_gsManager->createDevice(m_kernel, m_hWnd);
    const RECT client = GetClientRect();
    if (m_device) m_device->onSize(client.right, client.bottom);
    m_view = m_kernel->createView(0, 0);
    if (!withModel) return;
    m_model = m_gsManager->createModel(m_kernel);
    m_ownsModel = true;
}

HostExtents CGsPreviewCtrl::extentsOf(HostBlockRecord* record) const {
    if (m_blockName != MODEL_SPACE) return entityExtents(record);
    HostExtents extents;
    if (const HostDatabase* database = shownDatabase()) {
        extents.addPoint(database->extmin());
        extents.addPoint(database->extmax());
    }
    return extents;
}

void CGsPreviewCtrl::setViewOrRecover(const ViewFrame& frame) {
    const auto setView = [&] {
        if (!m_view) throw GraphicsError();
        demand(m_view->setView(frame.position, frame.target, frame.up, frame.width, frame.height, 0));
    };
    try {
        return setView();
    } catch (const GraphicsError&) {
    }
    try {
        const int16_t viewport = variableOr(L"CVPORT", 0);
        int style = HOST_STYLE_WIREFRAME_3D;
        if (variableOr(L"TILEMODE", 0) != 0 || viewport != 1) {
            style = HOST_STYLE_FLAT;
            HostGsView* hosts = hostGetCurrent3dView(viewport);
            if (!hosts) throw GraphicsError();
            demand(hosts->setVisualStyle(HostVisualStyle(HOST_STYLE_FLAT)));
        }
        if (m_view) demand(m_view->setVisualStyle(HostVisualStyle(style)));
        setView();
    } catch (const GraphicsError&) {
        hostAlert(NOT_DISPLAYED);
    }
}

void CGsPreviewCtrl::frameBlock(HostBlockRecord* record, double zoom, bool fitOff, int mode,
                                const HostVector3d& direction) {
    const Open<HostBlockRecord> closed(record);
    setUpGraphics(g_resourceInstance, true);
    const ViewFrame frame = frameOf(extentsOf(record), direction);
    setViewOrRecover(frame);
    if (m_view) {
        if (!fitOff) {
            const RECT client = GetClientRect();
            m_view->zoom(mode == 1 ? std::max(frame.height / client.bottom, frame.width / client.right) / zoom
                                   : zoom);
        }
        m_view->setVisualStyle(HostVisualStyle(HOST_STYLE_WIREFRAME_2D));
        if (!m_database) m_view->eraseAll();
        m_view->add(record, m_model);
    }
    Invalidate();
    if (m_showGadget) paintGadget(nullptr);
}

// Each object goes in its turn; one that can't ends it, and the others stay.
void CGsPreviewCtrl::clearGraphics() {
    m_blockName.clear();
    HostGsManager* const manager = m_gsManager;
    try {
        if (m_view) demand(m_view->eraseAll());
        if (m_device && m_view) demand(m_device->eraseView(m_view));
        if (m_kernel) {
            if (m_view) demand(m_kernel->deleteView(m_view));
            m_view = nullptr;
            if (m_extraModel) demand(m_kernel->deleteExtra(m_extraModel));
            m_extraModel = nullptr;
        }
        if (manager) {
            if (m_model && m_ownsModel) demand(manager->deleteModel(m_model));
            m_model = nullptr;
            if (m_device) demand(manager->deleteDevice(m_device));
            m_device = nullptr;
            m_gsManager = nullptr;
        }
        if (m_kernel && manager) demand(manager->releaseKernel(m_kernel));
        m_kernel = nullptr;
    } catch (const GraphicsError&) {
    }
}

// --- drawings of its own

void CGsPreviewCtrl::deleteDatabase() {
    hostDeleteDatabase(m_database);
    m_database = nullptr;
}

void CGsPreviewCtrl::forgetDrawing() {
    deleteDatabase();
    m_blockName.clear();
    m_fileName.clear();
}

CString CGsPreviewCtrl::findDrawing(const CString& fileName) {
    const CString name = replaced(replaced(fileName, L"\\", L"/"), L"//", L"/");
    wchar_t found[MOST_PATH_CHARS + 1] = {};
    if (hostFindFile(name.c_str(), found, MOST_PATH_CHARS) == HOST_NORMAL) return found;
    hostAlert((NOT_LOADED + name).c_str());
    return {};
}

bool CGsPreviewCtrl::readDrawing(const CString& path, int sharing) {
    clearGraphics();
    if (m_database) forgetDrawing();
    m_blockName = MODEL_SPACE;
    m_database = hostNewDatabase(false, true);
    if (m_database->readFile(path.c_str(), sharing) == HOST_NORMAL) return true;
    hostAlert((NOT_LOADED + path).c_str());
    forgetDrawing();
    return false;
}

bool CGsPreviewCtrl::loadDrawing(const CString& fileName) {
    const CString path = findDrawing(fileName);
    if (path.empty() || !readDrawing(path, HOST_SHARE_READ)) return false;
    m_fileName.clear();
    if (!frameShown(0.0, true, 1, PLAN_DIRECTION)) forgetDrawing();
    return true;
}

bool CGsPreviewCtrl::loadDrawingByPath(const CString& fileName) {
    const CString path = findDrawing(fileName);
    if (path.empty() || !readDrawing(path, HOST_SHARE_NONE)) return false;
    m_fileName = path;
    return true;
}

// --- questions

bool CGsPreviewCtrl::blockExists(const CString& name) const {
    HostDatabase* database = hostWorkingDatabase();
    const Open<HostBlockTable> blocks(database ? database->openBlockTable(HOST_FOR_READ) : nullptr);
    return blocks && blocks->has(name.c_str());
}

void CGsPreviewCtrl::listBlockNames() const {
    HostDatabase* database = shownDatabase();
    const Open<HostBlockTable> blocks(database ? database->openBlockTable(HOST_FOR_READ) : nullptr);
    if (!blocks) {
        hostRetInt(-1);
        return;
    }
    HostValue* first = nullptr;
    HostValue** end = &first;
    for (int at = 0; at < blocks->blockCount(); ++at) {
        const Open<HostBlockRecord> record(database->openBlock(blocks->blockAt(at), HOST_FOR_READ));
        if (!record) continue;
        const std::wstring_view name = record->name();
        if (name.starts_with(L"*Model") || name.starts_with(L"*Paper")) continue;
        *end = textNode(record->name());
        end = &(*end)->next;
    }
    if (!first) first = textNode(L"");
    hostRetList(first);
    hostRelRb(first);
}

void CGsPreviewCtrl::getBlockSize(const CString& name) {
    HostDatabase* database = shownDatabase();
    const Open<HostBlockTable> blocks(!name.empty() && database ? database->openBlockTable(HOST_FOR_READ)
                                                                : nullptr);
    const Open<HostBlockRecord> record(
        blocks ? database->openBlock(blocks->getAt(name.c_str()), HOST_FOR_READ) : nullptr);
    if (!record) {
        // kept: asking for a block that isn't there ends what is shown.
        if (!name.empty()) m_blockName.clear();
        hostRetNil();
        return;
    }
    const HostExtents extents = entityExtents(record.get());
    retSizes(extents.max.x - extents.min.x, extents.max.y - extents.min.y);
}

void CGsPreviewCtrl::getDatabaseSize() const {
    if (!m_database) {
        hostRetInt(-1);
        return;
    }
    const HostVector3d size = m_database->extmax() - m_database->extmin();
    retSizes(size.x, size.y);
}

bool CGsPreviewCtrl::getActiveViewParameters(double& height, double& width, HostPoint3d& target,
                                             HostVector3d& direction, double& twist, bool useCentre) const {
    hostVportsToRecords();
    HostDatabase* database = hostWorkingDatabase();
    if (!database) return false;
    const Open<HostViewportRecord> record(database->openViewport(L"*Active"));
    if (!record) return true;
    height = record->height();
    width = record->width();
    target = record->target();
    if (useCentre) {
        HostValue* centre = hostNewRb(HV_POINT);
        if (hostGetVar(L"VIEWCTR", centre) == HOST_NORMAL && centre->type == HV_POINT) {
            target = {centre->value.pointValue[0], centre->value.pointValue[1], centre->value.pointValue[2]};
        }
        hostRelRb(centre);
    }
    direction = record->viewDirection();
    twist = record->viewTwist();
    return true;
}

void CGsPreviewCtrl::setBorderColor(int) {
    uint32_t first = 0;
    m_borderOn = true;
    m_borderColor = hostGetCurrentColors(&first, 1) == HOST_NORMAL ? first : 0;
    Invalidate();
}
