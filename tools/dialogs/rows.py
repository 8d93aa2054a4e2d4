"""Lays out the rows of a dialog on the grid that docs/dialogs.md tells of. All measures are dialog units."""
import re
from dataclasses import dataclass

EDGE = 7
BOX_HEIGHT = 14
LIST_OF_COMBO = 100
FRAME_TOP, FRAME_SIDE, FRAME_BOTTOM = 13, 8, 7
BELOW_FRAME = 7
ABOVE_BUTTONS = 10
BETWEEN = 4
BESIDE_LABEL = 3
BEFORE_LABEL = 11
BETWEEN_COLUMNS = 8
# How far a control stands below the top of a row of boxes, of a row of buttons.
TEXT_BELOW_BOX, TEXT_BELOW_BUTTON, CHECK_BELOW = 2, 3, 2

# Parts of an anchor code, see docs/lisp-functions.md: what follows the right edge; then a top and a bottom that follow the
# lower edge.
STAYS, GROWS_ACROSS, MOVES_ACROSS = 0, 25, 35
MOVES_TOP, MOVES_BOTTOM = 1, 38
WITH_CORNER = 75
ALL = 100


@dataclass(frozen=True)
class Kind:
    window_class: str
    base_style: str
    width: int = 0  # 0: what the row has left
    height: int = BOX_HEIGHT
    shape: str = "box"  # text, check, box, button or tall
    grows: bool = False
    ex_style: str = ""
    own_key: str = ""
    own_text: str = '""'


STATIC = "SS_LEFT | SS_NOPREFIX | WS_GROUP"
BOX = "WS_BORDER | WS_TABSTOP"
PUSH = "BS_PUSHBUTTON | WS_TABSTOP"
TREE = "TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS"
KINDS = {
    "label": Kind("Static", "SS_LEFT | WS_GROUP", 0, 8, "text"),
    "text": Kind("Static", STATIC, 0, 8, "text"),
    "count": Kind("Static", "SS_RIGHT | SS_NOPREFIX | WS_GROUP", 0, 8, "text"),
    "check": Kind("Button", "BS_AUTOCHECKBOX | WS_TABSTOP", 0, 10, "check"),
    "radio": Kind("Button", "BS_AUTORADIOBUTTON", 0, 10, "check"),
    "edit": Kind("Edit", f"ES_LEFT | ES_AUTOHSCROLL | {BOX}"),
    "readonly": Kind("Edit", f"ES_LEFT | ES_AUTOHSCROLL | ES_READONLY | {BOX}"),
    "combo": Kind("ComboBox", "CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP"),
    "drop": Kind("ComboBox", "CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP"),
    "button": Kind("Button", PUSH, 60, shape="button"),
    "icon": Kind("Button", PUSH, 22, shape="button"),
    "ok": Kind("Button", "BS_DEFPUSHBUTTON | WS_TABSTOP", 50, shape="button", own_key="OK", own_text='"OK"'),
    "cancel": Kind("Button", PUSH, 50, shape="button", own_key="Cancel", own_text='"Cancel"'),
    "help": Kind("Button", PUSH, 50, shape="button", own_key="HELP", own_text='"&Help"'),
    "list": Kind("ListBox", f"LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_USETABSTOPS | WS_VSCROLL | {BOX}", 0, 100,
                 "tall", True),
    "table": Kind("SysListView32", f"LVS_REPORT | LVS_SHOWSELALWAYS | {BOX}", 0, 120, "tall", True),
    "tree": Kind("SysTreeView32", f"{TREE} | {BOX}", 0, 120, "tall", True),
    "grid": Kind("GXWND", "WS_CLIPCHILDREN | WS_TABSTOP", 0, 120, "tall", True, "WS_EX_CLIENTEDGE"),
    "memo": Kind("Edit", f"ES_LEFT | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL | {BOX}", 0, 60,
                 "tall", True),
    "image": Kind("Button", "BS_PUSHBUTTON", 0, 80, "tall", ex_style="WS_EX_STATICEDGE"),
    "frame": Kind("Button", "BS_GROUPBOX | WS_CLIPSIBLINGS"),
}
ENDS = {"ok", "cancel", "help"}
TOKEN = re.compile(r'"(?:[^"]|"")*"|[^\s"]+')
STYLE_WORD = re.compile(r"(?:WS|ES|BS|SS|LBS|LVS|CBS|TVS)_[A-Z]+")
SIZE = re.compile(r"(\d+)?(?:x(\d+))?")


@dataclass
class Item:
    line: int
    name: str
    named: str = ""
    text: str = '""'
    width: int = 0
    height: int = 0
    extra_style: str = ""
    group: bool = False
    is_default: bool = False
    rect: tuple = ()
    anchor: tuple = (-1, (ALL, ALL))  # the code, and the shares of the top and the bottom

    @property
    def kind(self):
        return KINDS[self.name]

    @property
    def grows(self):
        return self.name != "space" and self.kind.grows

    def shape(self):
        return "space" if self.name == "space" else self.kind.shape

    def style(self):
        style = self.kind.base_style
        if self.is_default:
            style = style.replace("BS_PUSHBUTTON", "BS_DEFPUSHBUTTON")
        style += self.extra_style
        if self.group and "WS_GROUP" not in style:
            style += " | WS_GROUP"
        return style


def anchor(across, down):
    """The code, and the percents of the dialog's growth in height that top and bottom follow; `down` gives 0 for an edge
    that stays."""
    top, bottom = down
    code = across + (MOVES_TOP if top else 0) + (MOVES_BOTTOM if bottom else 0)
    if code == MOVES_ACROSS + MOVES_TOP + MOVES_BOTTOM:
        code = WITH_CORNER
    return code or -1, (top or ALL, bottom or ALL)


def at_top_of(down):
    """Of something that doesn't grow, at the top of what does."""
    return down[0], down[0]


class Row:
    """Controls side by side."""

    def __init__(self, line, items):
        self.line, self.items = line, items
        shapes = {item.shape() for item in items}
        self.shape = next(s for s in ("tall", "box", "button", "check", "text", "space") if s in shapes)
        self.ends = any(item.name in ENDS for item in items)
        self.grows = any(item.grows for item in items)
        self.begins_with_label = items[0].name == "label"

    def height(self):
        return max((item.height for item in self.items), default=0)

    def gaps(self):
        for before, item in zip(self.items, self.items[1:]):
            if "space" in (before.name, item.name) and not (before.name == "space" and before.width):
                yield 0 if before.name == "space" else BETWEEN
            elif before.shape() in ("text", "space") and item.shape() not in ("text", "button"):
                yield BESIDE_LABEL
            elif item.name == "label":
                yield BEFORE_LABEL
            else:
                yield BETWEEN

    def place(self, x, y, width, across, down, placed):
        gaps = list(self.gaps()) + [0]
        flexible = [item for item in self.items if not item.width]
        left = width - sum(gaps) - sum(item.width for item in self.items)
        if left < len(flexible) * 10:
            raise_mistake(self.line, f"the row is {len(flexible) * 10 - left} units too wide")
        last_flexible = flexible[-1] if flexible else None
        moved = STAYS if across == GROWS_ACROSS else across
        for item, gap in zip(self.items, gaps):
            item_width = item.width
            if not item_width:
                item_width = left // len(flexible) if item is not last_flexible else (
                    left - left // len(flexible) * (len(flexible) - 1))
            if item.name != "space":
                self.place_item(item, x, y, item_width, placed)
                own = GROWS_ACROSS if across == GROWS_ACROSS and item is last_flexible else moved
                item.anchor = anchor(own, down if item.shape() == "tall" else at_top_of(down))
            if item is last_flexible and across == GROWS_ACROSS:
                moved = MOVES_ACROSS
            x += item_width + gap

    def place_item(self, item, x, y, width, placed):
        below = 0
        if item.shape() == "text" and self.shape != "text":
            below = TEXT_BELOW_BUTTON if self.shape == "button" else TEXT_BELOW_BOX
        if item.shape() == "check" and self.shape in ("box", "button"):
            below = CHECK_BELOW
        height = self.height() if item.shape() == "tall" else item.height
        if item.kind.window_class == "ComboBox":
            height = LIST_OF_COMBO
        item.rect = (x, y + below, width, height)
        placed.append(item)


class Block:
    """Rows one below the other."""

    def __init__(self):
        self.parts = []

    @property
    def grows(self):
        return any(part.grows for part in self.parts)

    def height(self):
        return sum(self.gap(i) + part.height() for i, part in enumerate(self.parts))

    def gap(self, index):
        part = self.parts[index]
        extra = getattr(part, "extra", 0)
        if index == 0:
            return extra
        return extra + gap_between(self.parts[index - 1], part)

    def place(self, x, y, width, across, down, placed):
        growing = [part for part in self.parts if part.grows]
        top, bottom = down
        for index, part in enumerate(self.parts):
            y += self.gap(index)
            # Those that grow have like shares of what the block has.
            end = top + (bottom - top) // len(growing) if part.grows else top
            if part.grows:
                growing.remove(part)
            part.place(x, y, width, across, (top, end), placed)
            top = end
            y += part.height()


def gap_between(before, part):
    if part.shape == "space":
        return 0
    if getattr(part, "ends", False):
        return ABOVE_BUTTONS
    if "frame" in (before.shape, part.shape) or before.shape == "columns":
        return BELOW_FRAME
    if part.shape == "columns":
        return 2 if before.shape == "text" and before.begins_with_label else 5
    if before.shape == "text":
        is_labeled = getattr(part, "begins_with_label", False)
        if before.begins_with_label:
            return 5 if is_labeled else 2
        return {"text": 5 if is_labeled else 2, "check": 3, "tall": 2}.get(part.shape, 5)
    if part.shape == "text":
        return 7
    return 2 if (before.shape, part.shape) == ("check", "check") else 5


class Frame(Block):
    """Rows within a frame."""

    shape = "frame"

    def __init__(self, item):
        super().__init__()
        self.item = item

    def height(self):
        return FRAME_TOP + super().height() + FRAME_BOTTOM

    def place(self, x, y, width, across, down, placed):
        self.item.rect = (x, y, width, self.height())
        self.item.anchor = anchor(across, down)
        placed.append(self.item)
        super().place(x + FRAME_SIDE, y + FRAME_TOP, width - 2 * FRAME_SIDE, across, down, placed)


class Columns:
    """Blocks side by side."""

    shape = "columns"

    def __init__(self, line, widths):
        self.line, self.widths, self.blocks = line, widths, [Block()]

    @property
    def grows(self):
        return any(block.grows for block in self.blocks)

    def height(self):
        return max(block.height() for block in self.blocks)

    def place(self, x, y, width, across, down, placed):
        widths = self.widths or [0] * len(self.blocks)
        if len(widths) != len(self.blocks):
            raise_mistake(self.line, f"{len(widths)} widths for {len(self.blocks)} columns")
        left = width - sum(widths) - BETWEEN_COLUMNS * (len(widths) - 1)
        share = left // max(widths.count(0), 1)
        growing = [block for block in self.blocks if block.grows] or self.blocks
        moved = STAYS if across == GROWS_ACROSS else across
        for block, own in zip(self.blocks, widths):
            is_growing = block is growing[-1]
            block.place(x, y, own or share, across if is_growing else moved, down if block.grows else at_top_of(down), placed)
            if is_growing and across == GROWS_ACROSS:
                moved = MOVES_ACROSS
            x += (own or share) + BETWEEN_COLUMNS


def raise_mistake(line, text):
    from reading import Mistake
    raise Mistake(line, text)


class Rows:
    """Takes the lines of a dialog that has rows, and places what they name."""

    def __init__(self, width):
        self.width = width
        self.label_width = 66
        self.height = 0
        self.block = Block()
        self.open = [self.block]  # the innermost is last
        self.extra = 0

    def take(self, line, text):
        word, _, rest = text.partition(" ")
        if word == "row":
            self.add(Row(line, self.read_items(line, rest)))
        elif word == "frame":
            frame = Frame(self.read_item(line, text))
            self.add(frame)
            self.open.append(frame)
        elif word == "columns":
            columns = Columns(line, [0 if width == "*" else self.number(line, width) for width in rest.split()])
            self.add(columns)
            self.open += [columns, columns.blocks[0]]
        elif word == "next" and len(self.open) > 2 and isinstance(self.open[-2], Columns):
            columns = self.open[-2]
            columns.blocks.append(Block())
            self.open[-1] = columns.blocks[-1]
        elif word == "end" and len(self.open) > 1:
            self.open.pop()
            if isinstance(self.open[-1], Columns):
                self.open.pop()
        elif word == "gap":
            self.extra = self.number(line, rest)
        else:
            raise_mistake(line, f"expected CONTROL, row, frame, columns, next, end, gap or END, not: {text}")

    def number(self, line, text):
        if not text.isdecimal():
            raise_mistake(line, f"{text or 'the end of the line'} stands where a number is expected")
        return int(text)

    def add(self, part):
        part.extra, self.extra = self.extra, 0
        self.open[-1].parts.append(part)

    def read_items(self, line, text):
        parts = re.split(r'\|(?=(?:[^"]*"[^"]*")*[^"]*$)', text)
        items = [self.read_item(line, part) for part in parts]
        for item, after in zip(items, items[1:] + [None]):
            # A label that names the box beside it; alone it has the row.
            if item.name == "label" and not item.width and after and after.shape() in ("box", "tall"):
                item.width = self.label_width
            if item.name == "space" and not item.width and items[0] is item and after and after.shape() == "check":
                item.width = self.label_width
        return items

    def read_item(self, line, text):
        tokens = TOKEN.findall(text)
        name = tokens.pop(0) if tokens else ""
        if name != "space" and name not in KINDS:
            raise_mistake(line, f"{name or 'nothing'} is no kind of control; there are {', '.join(KINDS)}")
        item = Item(line, name)
        for token in tokens:
            if token.startswith('"'):
                item.text = token
            elif token == "default":
                item.is_default = True
            elif STYLE_WORD.fullmatch(token):
                item.extra_style += f" | {token}"
            elif SIZE.fullmatch(token):
                width, height = SIZE.fullmatch(token).groups()
                item.width, item.height = int(width or 0), int(height or 0)
            elif item.named:
                raise_mistake(line, f"{token} can't follow {item.named}")
            else:
                item.named = token
        if name == "space":
            return item
        kind = item.kind
        item.named = item.named or kind.own_key
        if item.named == "-":
            item.named = "0"
        elif not item.named:
            raise_mistake(line, f"the {name} has no key")
        item.text = item.text if item.text != '""' else kind.own_text
        item.width = item.width or kind.width
        item.height = item.height or kind.height
        return item

    def place(self, end):
        """The controls in the order of the Tab key, each with its rectangle."""
        if len(self.open) > 1:
            raise_mistake(end, "a frame or columns lack their end")
        if not self.block.parts:
            return []
        placed = []
        grows = self.block.grows
        self.block.place(EDGE, EDGE, self.width - 2 * EDGE, GROWS_ACROSS if grows else STAYS,
                         (0, ALL if grows else 0), placed)
        self.height = EDGE + self.block.height() + EDGE
        mark_groups(placed)
        return placed


def mark_groups(placed):
    """The arrow keys walk within a group: buttons and check boxes in a run, radio buttons by themselves."""
    before = None
    for item in placed:
        run = {"check": "check", "radio": "radio"}.get(item.name, item.shape())
        item.group = run != before and (run in ("check", "radio", "button") or before == "radio")
        if item.name == "radio" and item.group:
            item.extra_style += " | WS_TABSTOP"
        before = run
