// A plug-in that gives the operations of a drawing preview to Lisp: each function is one of them, on one
// preview of 200 by 200 pixels.
#include <optional>

#include "src/platform/host/HostServices.h"
#include "src/platform/mfc/Drawing.h"
#include "tests/support/LispTable.h"
#include "tests/ui/preview/PreviewProbe.h"

namespace {

constexpr RECT PLACE = {0, 0, 200, 200};
constexpr COLORREF RED = RGB(255, 0, 0);

struct Shown {
    Shown() {
        parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, PLACE, nullptr, 0);
        preview.Create(PLACE, parent.m_hWnd, 1);
        preview.ShowWindow(SW_SHOW);
    }
    CWnd parent;
    CGsPreviewCtrl preview;
};
std::optional<Shown> g_shown;

CGsPreviewCtrl& preview() {
    if (!g_shown) g_shown.emplace();
    return g_shown->preview;
}

CString text(const HostValue* argument) { return argument->value.stringValue; }
double number(const HostValue* argument) {
    return argument->type == HV_SHORT ? argument->value.shortValue : argument->value.realValue;
}
bool flag(const HostValue* argument) { return argument && argument->type != HV_NIL; }

void answer(bool yes) { yes ? hostRetT() : hostRetNil(); }

void load() { answer(preview().loadDrawing(text(hostGetArgs()))); }
void loadByPath() { answer(preview().loadDrawingByPath(text(hostGetArgs()))); }
void exists() { answer(preview().blockExists(text(hostGetArgs()))); }

// (p_show BLOCK [ZOOM FITOFF MODE])
void show() {
    const HostValue* name = hostGetArgs();
    const HostValue* zoom = name->next;
    if (!zoom) return answer(preview().showBlock(text(name)));
    const HostValue* fitOff = zoom->next;
    answer(preview().showBlockFull(text(name), number(zoom), flag(fitOff),
                                   static_cast<int>(number(fitOff->next)), {0, 1, 0}, {0, 0, 1}));
}

// (p_record BLOCK) of the loaded drawing, or else of the current one
void showRecord() {
    HostDatabase* loaded = PreviewProbe(preview()).database();
    HostDatabase* database = loaded ? loaded : hostWorkingDatabase();
    HostBlockTable* blocks = database->openBlockTable(HOST_FOR_READ);
    HostBlockRecord* record = database->openBlock(blocks->getAt(text(hostGetArgs()).c_str()), HOST_FOR_READ);
    blocks->close();
    answer(preview().showBlockRecord(record));
}

void blocks() { preview().listBlockNames(); }
void blockSize() { preview().getBlockSize(text(hostGetArgs())); }
void drawingSize() { preview().getDatabaseSize(); }

// (p_view CENTRE) gives height, width, target, direction and twist, flat
void view() {
    double height = 0, width = 0, twist = 0;
    HostPoint3d target;
    HostVector3d direction;
    if (!preview().getActiveViewParameters(height, width, target, direction, twist, flag(hostGetArgs())))
        return answer(false);
    HostValue* all = hostBuildList(HV_REAL, height, HV_REAL, width, HV_REAL, target.x, HV_REAL, target.y,
                                   HV_REAL, target.z, HV_REAL, direction.x, HV_REAL, direction.y, HV_REAL,
                                   direction.z, HV_REAL, twist, HV_NONE);
    hostRetList(all);
    hostRelRb(all);
}

// How many pixels of the middle row are red.
void span() {
    UpdateWindow(preview().m_hWnd);
    const ClientDC dc(preview().m_hWnd);
    int count = 0;
    for (int x = 0; x < PLACE.right; ++x) count += GetPixel(dc, x, PLACE.bottom / 2) == RED;
    hostRetInt(count);
}

constexpr LispRow ROWS[] = {
    {L"p_load", &entry<load>},      {L"p_load_path", &entry<loadByPath>},     {L"p_exists", &entry<exists>},
    {L"p_show", &entry<show>},      {L"p_record", &entry<showRecord>},        {L"p_blocks", &entry<blocks>},
    {L"p_size", &entry<blockSize>}, {L"p_drawing_size", &entry<drawingSize>}, {L"p_view", &entry<view>},
    {L"p_span", &entry<span>},
};

}  // namespace

extern "C" {

__declspec(dllexport) int32_t pluginEntryPoint(int32_t message, void*) {
    serve(ROWS, message);
    if (message == PLUGIN_UNLOAD) g_shown.reset();
    return 0;
}

__declspec(dllexport) uint32_t pluginGetApiVersion() { return HOST_API_VERSION; }
}
