// The child windows in which cells are edited: a line of text, several lines, a choice list. Each is made
// when it is first needed, and hidden rather than destroyed, since it may be closed from within its own
// messages.
#pragma once

#include "src/platform/base/CString.h"
#include "src/platform/gridlib/CellKind.h"
#include "src/platform/mfc/Controls.h"

class CellEditor {
  public:
    // How a person ended it, and where the current cell goes then.
    enum class Ending { stay, down, up, left, right, next, previous, giveUp };

    // The grid's side. Called from within the editor's messages.
    class Owner {
      public:
        // The text is another one.
        virtual void editorChanged() = 0;
        virtual void editorEnds(Ending ending) = 0;

      protected:
        ~Owner() = default;
    };

    explicit CellEditor(Owner& owner) : m_line(*this), m_lines(*this), m_choice(*this), m_owner(owner) {}

    void setFont(HFONT font);

    // Shows the window for a cell of that style with that text. `rect` is in the parent's client pixels;
    // empty hides. Opened by typing, arrow keys end it; else they move in the text. False where it can't be
    // made.
    bool open(HWND parent, const CGXStyle& style, const CString& text, bool byTyping);
    void place(const RECT& rect);
    void dropDown();
    void close();
    bool isOpen() const { return m_field != nullptr; }
    bool owns(HWND window) const {
        return m_field && window && (window == m_field->m_hWnd || IsChild(m_field->m_hWnd, window));
    }
    HWND window() const { return m_field ? m_field->m_hWnd : nullptr; }

    CString text() const;
    void setText(const CString& text);
    // What was typed to open it replaces the text, or finds a choice.
    void type(wchar_t c);

  private:
    // The keys that text fields and choice lists have in common, and what they tell.
    class TextField : public CEdit {
      public:
        explicit TextField(CellEditor& editor) : m_editor(editor) {}
        const MessageMap& messageMap() const override;

      private:
        LRESULT onGetDlgCode(WPARAM w, LPARAM l);
        LRESULT onKeyDown(WPARAM key, LPARAM l);
        LRESULT onChar(WPARAM c, LPARAM l);
        LRESULT onKillFocus(WPARAM w, LPARAM l);
        void onChange() { m_editor.changed(); }

        CellEditor& m_editor;
    };
    class ChoiceField : public CComboBox {
      public:
        explicit ChoiceField(CellEditor& editor) : m_editor(editor) {}
        const MessageMap& messageMap() const override;
        // The next letter begins a new search.
        void forgetTyped() { m_typed.clear(); }

      private:
        LRESULT onGetDlgCode(WPARAM w, LPARAM l);
        LRESULT onKeyDown(WPARAM key, LPARAM l);
        LRESULT onChar(WPARAM c, LPARAM l);
        void onChosen() { m_editor.changed(); }
        void onKillFocus() { m_editor.ends(Ending::stay); }
        bool isDropped() const { return SendMessage(CB_GETDROPPEDSTATE) != 0; }

        CellEditor& m_editor;
        // The letters that were typed in quick succession, and when the last one was, in milliseconds.
        CString m_typed;
        LONG m_typedAt = 0;
    };

    bool create(CWnd& field, HWND parent, const wchar_t* className, DWORD style);
    bool endsBy(WPARAM key, bool isChoice);
    void changed();
    void ends(Ending ending);

    TextField m_line, m_lines;
    ChoiceField m_choice;
    CWnd* m_field = nullptr;  // the one that is open
    RECT m_placed{};          // where it is
    Owner& m_owner;
    HFONT m_font = nullptr;
    bool m_byTyping = false;
    bool m_filling = false;  // the text is set by us, which isn't a person's change
};
