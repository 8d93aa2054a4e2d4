// One dialog, from wex_new_dialog to the end of wex_start_dialog. Before it runs it has no window, and what
// the Lisp program says of its tiles waits in their records.
#pragma once

#include "src/dialog/CSnapDlg.h"
#include "src/dialog/DialogRegistry.h"
#include "src/dialog/TileControl.h"
#include "src/dialog/TileRecords.h"
#include "src/platform/base/DialogTemplate.h"
#include "src/platform/buttons/CThemeHelperST.h"
#include "src/shell/DialogSource.h"
#include "src/shell/LispCall.h"

class WexDialog : public CSnapDlg {
    DECLARE_DYNAMIC(WexDialog)

  public:
    WexDialog(const DialogSource& source, CWnd* parent);
    ~WexDialog() override;

    // --- keys, control ids, records, windows

    int idForKey(const CString& key) const { return m_tiles.keys.idForKey(key); }
    CString keyForId(int id) const { return m_tiles.keys.keyForId(id); }
    // The control of a key or an id; null without a window, and where there is none.
    CWnd* itemForKey(const CString& key) const;
    CWnd* itemForId(int id) const;
    // These two are for Lisp functions: the author is told where the dialog hasn't got the tile.
    CWnd* itemFor(const TileAddress& tile) const;
    CCtrlInfo* tileForId(int id) { return m_tiles.forId(id); }
    CCtrlInfo* tileForKey(const CString& key) { return m_tiles.forKey(key); }
    CCtrlInfo* tileForControl(const CWnd* control) const { return m_tiles.forControl(control); }
    CCtrlInfo* tileFor(const TileAddress& tile);
    // The same for a tile that was found to have no window; before the start its record tells.
    void checkTile(const TileAddress& tile, const CCtrlInfo* record) const;

    // --- values (SetValue.cpp)

    // Sets a tile's value in its control and its record. By key the dialog's own name and "main_title" also
    // name its title.
    void setValueFor(const TileAddress& tile, const CString& value);
    void setValueByKey(const CString& key, const CString& value);
    void setValueById(int id, const CString& value);

    // --- layout (Layout.cpp)

    // Puts the anchored controls where they belong in a client area of that size, in pixels, unless that is
    // the size of the last layout.
    void layoutControls(int width, int height);
    // Fits the labels, and draws the dialog anew where controls were moved.
    void redrawMoved();

    // Whether what Lisp had said before the start has been carried over to the controls.
    bool hasApplied() const { return m_hasApplied; }

    // --- events

    bool PreTranslateMessage(MSG& message) override;

    UINT m_templateId;
    DialogSource m_source;
    std::vector<std::unique_ptr<TileControl>> m_controls;  // every wrapper that discovery made
    TileRecords m_tiles;
    CString m_onInitAction;  // names of Lisp functions
    CString m_onSizeAction;
    RECT m_lastClientRect{};           // of the last layout
    RECT m_initialClientRect{};        // at the start: the base for anchors
    CCtrlInfo* m_listTile = nullptr;   // of the last wex_start_list
    bool m_isListOpen = false;         // until wex_end_list
    CCtrlInfo* m_imageTile = nullptr;  // of the open wex_start_image
    CString m_name;                    // lower case
    HDWP m_deferPos = nullptr;         // the open wex_start_controlmove
    CString m_title;                   // set before the window exists
    bool m_inAction = false;           // a button's click is being served
    int32_t m_focusId = -1;            // the control that gets the focus at the first paint
    bool m_hasMinimum = false;         // Lisp set the lower limits: the template's size is none
    CThemeHelperST m_themeHelper;
    mutable std::unique_ptr<const DialogTemplate> m_layout;  // read when a warning first asks for it

  protected:
    const MessageMap& messageMap() const override;
    void DoDataExchange(CDataExchange& exchange) override;
    bool OnInitDialog() override;
    void OnCancel() override;
    bool OnCommand(UINT id, UINT notification) override;
    void runEnded() override;

  private:
    void onPaint();
    void onSize(UINT type, int width, int height);
    LRESULT onColorStatic(HDC dc, CWnd* control);
    LRESULT onEraseBackground(HDC dc);
    LRESULT onHelp(HELPINFO* help);

    // From the tail to the head.
    void deleteControls();
    bool turnPage(int step);
    bool pressByMnemonic(const MSG& message);
    void discover(int id, HWND control);
    void addExtraControl();
    void takeTemplateAnchors();
    void applyRecords();
    void computeAnchors(const CWnd& control, CCtrlInfo& tile);
    void placeAtStart();
    // Whether a control changed its size. Stops at the first one that is gone.
    bool fitMoved();
    void applyTile(CWnd& control, CCtrlInfo& tile);
    void applyMode(CWnd& control, CCtrlInfo& tile);
    void setControlValue(CWnd* control, const CString& value, bool byKey);
    // Whether that key names the dialog's title.
    bool isOwnTitle(const CString& key) const;

    // Whether discovery has run. The platform sends WM_SIZE while it creates the window, before that: nobody
    // resized anything then, and no on-size action runs.
    bool m_discovered = false;
    bool m_hasApplied = false;
};

// All dialogs that were made and have not ended.
extern DialogRegistry<WexDialog>& g_dialogs;
// The name given to the last wex_new_dialog, in the program's spelling.
extern CString g_dialogName;
// What the last wex_done_dialog said.
extern int32_t g_doneStatus;

// The dialog on which all tile functions work; null when there is none. Lisp may change it: ask again after a
// call.
inline WexDialog* currentDialog() { return g_dialogs.current(); }
