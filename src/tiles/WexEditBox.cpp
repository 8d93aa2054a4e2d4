#include "src/tiles/WexEditBox.h"

#include <utility>

#include "src/dialog/EventBridge.h"
#include "src/platform/host/HostUnits.h"
#include "src/tiles/EndOfEdit.h"

IMPLEMENT_DYNAMIC(WexEditBox, CEdit)

namespace {

constexpr int FORMAT_CHARS = 256;
// Fast enough for a person to see a text run that a program counts up, without a turn of the loop in between.
constexpr ULONGLONG MS_BETWEEN_TEXTS = 20;
constexpr UINT PLAIN_BEEP = static_cast<UINT>(-1);

UnitConverters converters(EditMode mode, int unit, int precision) {
    const bool angular = mode == EditMode::angular;
    return {[=](const CString& text) -> std::optional<double> {
                double value = 0;
                const int status = (angular ? hostAngToF : hostDisToF)(text.c_str(), unit, &value);
                return status == HOST_NORMAL ? std::optional(value) : std::nullopt;
            },
            [=](double value) -> std::optional<CString> {
                wchar_t text[FORMAT_CHARS];
                const int status =
                    (angular ? hostAngToS : hostRToS)(value, unit, precision, text, FORMAT_CHARS);
                return status == HOST_NORMAL ? std::optional(CString(text)) : std::nullopt;
            }};
}

}  // namespace

const MessageMap& WexEditBox::messageMap() const {
    static const MessageMap map(CEdit::messageMap(), {
                                                         onReflected<EN_SETFOCUS, &WexEditBox::onSetFocus>(),
                                                         onReflected<EN_KILLFOCUS, &WexEditBox::endEditing>(),
                                                         on<WM_CHAR, &WexEditBox::onChar>(),
                                                     });
    return map;
}

void WexEditBox::setNotation(EditMode mode, int unit, int precision) {
    m_mode = mode;
    m_unit = unit;
    m_precision = precision;
    if (const auto valid = validChars(mode, unit)) m_validChars = *valid;
}

void WexEditBox::showText(const CString& text) {
    const ULONGLONG now = GetTickCount64();
    if (now - m_shownAt >= MS_BETWEEN_TEXTS) {
        m_shownAt = now;
        m_awaited.reset();
        return SetWindowText(text);
    }
    if (!m_awaited) PostMessage(WM_NULL);
    m_awaited = text;
}

LRESULT WexEditBox::WindowProc(UINT message, WPARAM w, LPARAM l) {
    if (m_awaited) SetWindowText(*std::exchange(m_awaited, std::nullopt));
    return CEdit::WindowProc(message, w, l);
}

void WexEditBox::onSetFocus() {
    m_lastGood = GetWindowText();
    m_focusPending = true;
}

void WexEditBox::onChar(UINT typed, UINT /*flags*/) {
    if (typed == VK_RETURN) endEditing();
    if (!isLive()) return;
    switch (filterChar(static_cast<wchar_t>(typed), m_validChars)) {
        case TypedChar::pass:
            Default();
            break;
        case TypedChar::restore:
            SetWindowText(m_lastGood);
            break;
        case TypedChar::refuse:
            MessageBeep(PLAIN_BEEP);
            break;
    }
}

// One focus period gives one end of editing. Lisp sees the text as it was typed, before it is rewritten.
void WexEditBox::endEditing() {
    if (!std::exchange(m_focusPending, false)) return;
    const CString typed = GetWindowText();
    publish(*this, typed, REASON_EDITED, m_action);
    if (m_mode == EditMode::plain || !isLive()) return;
    const EditedText edited = endOfEdit(typed, m_lastGood, converters(m_mode, m_unit, m_precision));
    m_lastGood = edited.lastGood;
    SetWindowText(edited.shown);
}

void setEditValue(CWnd& control, const CString& value, bool /*byKey*/) {
    if (auto* box = dynamic_cast<WexEditBox*>(&control))
        box->showText(value);
    else
        control.SetWindowText(value);
}
