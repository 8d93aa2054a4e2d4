// What Lisp said of the tiles before the window existed is carried over to the controls.
#include <algorithm>

#include "src/dialog/EventBridge.h"
#include "src/dialog/TemplateAnchors.h"
#include "src/dialog/TileWarnings.h"
#include "src/dialog/WexDialog.h"
#include "src/platform/host/HostServices.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

// Most controls are enabled or disabled already as they should be, and EnableWindow costs as much as all else
// that is done for a record.
void enable(const CWnd& control, bool enabled) {
    if (IsWindowEnabled(control.m_hWnd) != enabled) control.EnableWindow(enabled);
}

}  // namespace

bool WexDialog::OnInitDialog() {
    CSnapDlg::OnInitDialog();
    if (!m_title.IsEmpty()) SetWindowText(m_title);
    addExtraControl();
    m_initialClientRect = GetClientRect();
    callLispAction(m_onInitAction);
    takeTemplateAnchors();
    applyRecords();
    m_hasApplied = true;
    placeAtStart();
    return true;
}

// Anchors of the template count where Lisp gave no code. A dialog that grows by them is never smaller than
// its template, unless Lisp set limits.
void WexDialog::takeTemplateAnchors() {
    const auto anchors = templateAnchors(m_templateModule, m_templateId);
    if (anchors.empty()) return;
    for (size_t at = 0; at < m_tiles.size(); ++at) {
        CCtrlInfo& tile = *m_tiles.at(at);
        const auto anchor = anchors.find(tile.m_ctrlId);
        if (tile.m_isCodeGiven || tile.m_resizeCode != -1 || anchor == anchors.end()) continue;
        tile.m_resizeCode = anchor->second.code;
        tile.m_heightShares = anchor->second.shares;
    }
    if (m_hasMinimum) return;
    const RECT window = GetWindowRect();
    m_limits.minWidth = static_cast<int>((window.right - window.left) / hostMonitorDpiXScale(nullptr));
    const auto height = static_cast<int>((window.bottom - window.top) / hostMonitorDpiYScale(nullptr));
    // A limit of the height above the width would stretch the window at its start.
    m_limits.minHeight = std::min(height, m_limits.minWidth);
}

void WexDialog::applyRecords() {
    // Lisp may have added records, and may add more from here.
    for (size_t at = 0; at < m_tiles.size(); ++at) {
        CCtrlInfo& tile = *m_tiles.at(at);
        const int id = tile.m_ctrlId >= 0 ? tile.m_ctrlId : idForKey(tile.m_key);
        if (id == -1) continue;
        CWnd* control = tile.m_control && tile.m_control->isLive() ? tile.m_control : itemForId(id);
        if (!control) {
            // Ids without a key were told of when they were used.
            if (m_tiles.keys.hasId(id)) warnUnknownTile(*this, {.key = tile.m_key});
            continue;
        }
        computeAnchors(*control, tile);
        applyTile(*control, tile);
    }
}

void WexDialog::applyTile(CWnd& control, CCtrlInfo& tile) {
    CString type = tile.m_controlType;
    if (type.IsEmpty()) {
        type = control.className();
        tile.m_control = &control;
    }
    applyMode(control, tile);
    if (!tile.m_value.IsEmpty()) {
        if (tile.m_ctrlId >= 0)
            setValueById(tile.m_ctrlId, tile.m_value);
        else if (!tile.m_key.IsEmpty())
            setValueByKey(tile.m_key, tile.m_value);
    }
    if (auto* wrapper = dynamic_cast<TileControl*>(&control)) wrapper->applyRecord(tile);
    if (const ControlFamily* family = familyOfType(type); family && family->applyMessages)
        family->applyMessages(control, tile);
}

void WexDialog::applyMode(CWnd& control, CCtrlInfo& tile) {
    switch (tile.mode()) {
        case MODE_ENABLE:
        case MODE_DISABLE:
            enable(control, tile.mode() == MODE_ENABLE);
            break;
        case MODE_FOCUS:
            if (tile.m_ctrlId < 0) tile.m_ctrlId = control.GetDlgCtrlID();
            m_focusId = tile.m_ctrlId;
            break;
        case MODE_SELECT_TEXT:
            control.SendMessage(EM_SETSEL, 0, tile.m_editLimit);
            control.SendMessage(EM_SCROLLCARET);
            break;
        case MODE_SHOW:
        case MODE_HIDE:
            showControl(control.m_hWnd, tile.mode() == MODE_SHOW);
            break;
        default:
            break;
    }
}
