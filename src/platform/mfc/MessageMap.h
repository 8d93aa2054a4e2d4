// Tables that tie window messages to typed handlers of a class.
//
//     const MessageMap& WexDialog::messageMap() const {
//         static const MessageMap map(CSnapDlg::messageMap(), {
//             on<WM_SIZE, &WexDialog::onSize>(),
//         });
//         return map;
//     }
//
// The first line that fits a message takes it; a class's own lines come before those of its base. A handler
// passes a message on with CWnd::Default().
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <tuple>
#include <type_traits>
#include <vector>

class CWnd;
// The wrapper of a window that a message names; null for none.
CWnd* windowOf(WPARAM handle);

// How the parameters of a message come to its handler. Points are in the coordinates of the message. The
// position of a scroll message is a number with a sign, in the guise of one without.
template <UINT Message>
struct Unpack {
    static auto from(WPARAM, LPARAM) { return std::tuple<>(); }
};

#define WEX_UNPACK(Message, ...)                                                 \
    template <>                                                                  \
    struct Unpack<Message> {                                                     \
        static auto from([[maybe_unused]] WPARAM w, [[maybe_unused]] LPARAM l) { \
            return std::make_tuple(__VA_ARGS__);                                 \
        }                                                                        \
    };

#define WEX_POINT(l) (POINT{static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))})

WEX_UNPACK(WM_SIZE, static_cast<UINT>(w), static_cast<int>(LOWORD(l)), static_cast<int>(HIWORD(l)))
WEX_UNPACK(WM_SIZING, static_cast<UINT>(w), reinterpret_cast<RECT*>(l))
WEX_UNPACK(WM_CAPTURECHANGED, windowOf(static_cast<WPARAM>(l)))
WEX_UNPACK(WM_NCHITTEST, WEX_POINT(l))
WEX_UNPACK(WM_HELP, reinterpret_cast<HELPINFO*>(l))
WEX_UNPACK(WM_CHAR, static_cast<UINT>(w), static_cast<UINT>(l))
WEX_UNPACK(WM_KEYDOWN, static_cast<UINT>(w), static_cast<UINT>(l))
WEX_UNPACK(WM_KEYUP, static_cast<UINT>(w), static_cast<UINT>(l))
WEX_UNPACK(WM_LBUTTONDOWN, static_cast<UINT>(w), WEX_POINT(l))
WEX_UNPACK(WM_LBUTTONUP, static_cast<UINT>(w), WEX_POINT(l))
WEX_UNPACK(WM_LBUTTONDBLCLK, static_cast<UINT>(w), WEX_POINT(l))
WEX_UNPACK(WM_RBUTTONDOWN, static_cast<UINT>(w), WEX_POINT(l))
WEX_UNPACK(WM_MOUSEMOVE, static_cast<UINT>(w), WEX_POINT(l))
WEX_UNPACK(WM_MOUSEWHEEL, static_cast<UINT>(LOWORD(w)), static_cast<int>(static_cast<short>(HIWORD(w))),
           WEX_POINT(l))
WEX_UNPACK(WM_SETCURSOR, windowOf(w), static_cast<UINT>(LOWORD(l)), static_cast<UINT>(HIWORD(l)))
WEX_UNPACK(WM_SETFOCUS, windowOf(w))
WEX_UNPACK(WM_KILLFOCUS, windowOf(w))
WEX_UNPACK(WM_ENABLE, w != 0)
WEX_UNPACK(WM_HSCROLL, static_cast<UINT>(LOWORD(w)), static_cast<UINT>(static_cast<short>(HIWORD(w))))
WEX_UNPACK(WM_VSCROLL, static_cast<UINT>(LOWORD(w)), static_cast<UINT>(static_cast<short>(HIWORD(w))))
WEX_UNPACK(WM_TIMER, static_cast<UINT_PTR>(w))
WEX_UNPACK(WM_ERASEBKGND, reinterpret_cast<HDC>(w))
WEX_UNPACK(WM_CTLCOLORBTN, reinterpret_cast<HDC>(w), windowOf(static_cast<WPARAM>(l)))
WEX_UNPACK(WM_CTLCOLORSTATIC, reinterpret_cast<HDC>(w), windowOf(static_cast<WPARAM>(l)))
WEX_UNPACK(WM_DRAWITEM, reinterpret_cast<DRAWITEMSTRUCT*>(l))

#undef WEX_UNPACK
#undef WEX_POINT

struct MessageEntry {
    enum class Kind { message, reflectedCommand, reflectedNotify, reflectedMessage };
    using Call = LRESULT (*)(CWnd&, WPARAM, LPARAM);

    Kind kind;
    // The message, or the notification's code.
    UINT code;
    Call call;
};

class MessageMap {
  public:
    MessageMap() = default;
    MessageMap(const MessageMap& base, std::vector<MessageEntry> entries)
        : m_base(&base), m_entries(std::move(entries)) {}

    // The handler of the class or of the nearest base that has one; null where none has.
    MessageEntry::Call find(MessageEntry::Kind kind, UINT code) const {
        for (const MessageMap* map = this; map; map = map->m_base)
            for (const MessageEntry& entry : map->m_entries)
                if (entry.kind == kind && entry.code == code) return entry.call;
        return nullptr;
    }

  private:
    const MessageMap* m_base = nullptr;
    std::vector<MessageEntry> m_entries;
};

namespace message_map {

template <class>
struct ClassOf;
template <class Class, class Result, class... Arguments>
struct ClassOf<Result (Class::*)(Arguments...)> {
    using type = Class;
};

// Calls the handler with those arguments; a handler without a result answers 0.
template <auto Handler, class Arguments>
LRESULT call(CWnd& wnd, Arguments arguments) {
    auto& self = static_cast<typename ClassOf<decltype(Handler)>::type&>(wnd);
    auto run = [&](auto... argument) { return (self.*Handler)(argument...); };
    if constexpr (std::is_void_v<decltype(std::apply(run, arguments))>) {
        std::apply(run, arguments);
        return 0;
    } else {
        return static_cast<LRESULT>(std::apply(run, arguments));
    }
}

template <UINT Message, auto Handler>
LRESULT callUnpacked(CWnd& wnd, WPARAM w, LPARAM l) {
    return call<Handler>(wnd, Unpack<Message>::from(w, l));
}

template <auto Handler>
LRESULT callPlain(CWnd& wnd, WPARAM, LPARAM) {
    return call<Handler>(wnd, std::tuple<>());
}

template <auto Handler>
LRESULT callNotify(CWnd& wnd, WPARAM, LPARAM l) {
    return call<Handler>(wnd, std::make_tuple(reinterpret_cast<NMHDR*>(l)));
}

template <auto Handler>
LRESULT callRaw(CWnd& wnd, WPARAM w, LPARAM l) {
    return call<Handler>(wnd, std::make_tuple(w, l));
}

}  // namespace message_map

// A message with its parameters unpacked as above; where nothing is told, the handler takes none.
template <UINT Message, auto Handler>
MessageEntry on() {
    return {MessageEntry::Kind::message, Message, &message_map::callUnpacked<Message, Handler>};
}

// A message with its bare parameters: LRESULT(WPARAM, LPARAM).
template <UINT Message, auto Handler>
MessageEntry onRaw() {
    return {MessageEntry::Kind::message, Message, &message_map::callRaw<Handler>};
}

// A message whose parameters don't matter: LRESULT or void().
template <UINT Message, auto Handler>
MessageEntry onPlain() {
    return {MessageEntry::Kind::message, Message, &message_map::callPlain<Handler>};
}

// A WM_COMMAND notification of the control itself: void().
template <UINT Code, auto Handler>
MessageEntry onReflected() {
    return {MessageEntry::Kind::reflectedCommand, Code, &message_map::callPlain<Handler>};
}

// A WM_NOTIFY notification of the control itself: LRESULT or void(NMHDR*).
template <UINT Code, auto Handler>
MessageEntry onReflectedNotify() {
    return {MessageEntry::Kind::reflectedNotify, Code, &message_map::callNotify<Handler>};
}

// A message that the parent gets on the control's behalf: WM_DRAWITEM, WM_CTLCOLORBTN,
// WM_CTLCOLORSTATIC, WM_HSCROLL, WM_VSCROLL.
template <UINT Message, auto Handler>
MessageEntry onReflectedMessage() {
    return {MessageEntry::Kind::reflectedMessage, Message, &message_map::callUnpacked<Message, Handler>};
}
