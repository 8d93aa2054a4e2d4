"""Reads a dialog's file: see docs/dialogs.md for what it holds."""
import re
from dataclasses import dataclass, field

from rows import Rows

FIRST_KEY_ID = 110
LAST_KEY_ID = 399
FIXED_IDS = {"ok": 1, "cancel": 2}
DIALOG_IDS = range(1500, 4000)
LONGEST_KEY_LIST = 1499

STYLE = "DS_SHELLFONT | DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU"
FONT = '8, "MS Shell Dlg", 400, 0, 1'

STRING = r'"(?:[^"]|"")*"'
# A key with its id or without, or an id alone.
NAMED = re.compile(r"([A-Za-z_][^\s,@\"'();]*)(?:@(\d+))?|(\d+)")


class Mistake(Exception):
    """What is wrong in a file, and in which line."""

    def __init__(self, line, text):
        super().__init__(text)
        self.line = line


@dataclass
class Control:
    line: int
    text: str  # with its quotes
    key: str  # empty for none
    place: int  # the id that its place in the key list stands for; 0 until it has one
    window_class: str
    style: str
    rect: tuple
    ex_style: str = ""
    anchor: int = -1
    shares: tuple = (100, 100)

    @property
    def id(self):
        return FIXED_IDS.get(self.key.lower(), self.place)


@dataclass
class Dialog:
    path: str
    name: str
    id: int = 0
    width: int = 0
    height: int = 0
    style: str = STYLE
    ex_style: str = ""
    font: str = FONT
    caption: str = '""'
    controls: list = field(default_factory=list)

    def key_list(self):
        keys = {control.place: control.key for control in self.controls if control.key}
        last = max(keys, default=FIRST_KEY_ID - 1)
        return ",".join([self.name] + [keys.get(place, "") for place in range(FIRST_KEY_ID, last + 1)])

    def anchors(self):
        return [(control.id, control.anchor, *control.shares) for control in self.controls if control.anchor >= 0]


def split_named(line, word):
    """A key and its id (0 for none stated), or no key and an id."""
    match = NAMED.fullmatch(word)
    if not match:
        raise Mistake(line, f"{word} is neither KEY nor KEY@ID nor an id")
    return match[1] or "", int(match[2] or match[3] or 0)


def without_comment(line):
    match = re.match(rf"((?:{STRING}|[^/\"]|/(?!/))*)", line)
    return match[1].rstrip()


def split_at_commas(text):
    return [part.strip() for part in re.findall(rf"((?:{STRING}|[^,\"])*)(?:,|$)", text)][:-1]


class Reader:
    def __init__(self, path, name, text):
        self.dialog = Dialog(path, name)
        self.lines = [(number, without_comment(line).strip()) for number, line in enumerate(text.split("\n"), 1)]
        self.lines = [line for line in self.lines if line[1]]
        self.end = text.rstrip().count("\n") + 1

    def read(self):
        self.read_head(*self.next("the dialog's id and DIALOGEX"))
        while (statement := self.next("BEGIN"))[1] != "BEGIN":
            self.read_statement(*statement)
        self.read_controls()
        if self.lines:
            raise Mistake(self.lines[0][0], "nothing may follow END")
        give_ids(self.dialog)
        check_keys(self.dialog, self.end)
        return self.dialog

    def next(self, wanted):
        if not self.lines:
            raise Mistake(self.end, f"the file ends before {wanted}")
        return self.lines.pop(0)

    def read_head(self, line, text):
        match = re.fullmatch(r"(\d+) DIALOGEX (?:0, 0, )?(\d+)(?:, (\d+))?", text)
        if not match:
            raise Mistake(line, f"write ID DIALOGEX WIDTH or ID DIALOGEX 0, 0, WIDTH, HEIGHT, not: {text}")
        dialog = self.dialog
        dialog.id, dialog.width, dialog.height = int(match[1]), int(match[2]), int(match[3] or 0)
        if dialog.id not in DIALOG_IDS:
            raise Mistake(line, f"the id {dialog.id} isn't between {DIALOG_IDS[0]} and {DIALOG_IDS[-1]}")
        self.rows = Rows(dialog.width)

    def read_statement(self, line, text):
        word, _, rest = text.partition(" ")
        if word == "STYLE":
            self.dialog.style = rest
        elif word == "EXSTYLE":
            self.dialog.ex_style = rest
        elif word == "FONT":
            self.dialog.font = rest
        elif word == "CAPTION" and re.fullmatch(STRING, rest):
            self.dialog.caption = rest
        elif word == "LABELS" and rest.isdecimal():
            self.rows.label_width = int(rest)
        else:
            raise Mistake(line, f"expected STYLE, EXSTYLE, CAPTION, FONT, LABELS or BEGIN, not: {text}")

    def read_controls(self):
        dialog = self.dialog
        while (statement := self.next("END"))[1] != "END":
            line, text = statement
            if text.startswith("CONTROL "):
                dialog.controls.append(self.read_control(line, text))
            else:
                self.rows.take(line, text)
        placed = self.rows.place(self.end)
        if placed and dialog.height:
            raise Mistake(self.end, "the height of a dialog with rows follows from them: leave it out")
        if not placed and not dialog.height:
            raise Mistake(self.end, "a dialog without rows needs a height: ID DIALOGEX 0, 0, WIDTH, HEIGHT")
        if placed:
            dialog.height = self.rows.height
            dialog.controls += [self.placed_control(item) for item in placed]
        if dialog.anchors() and "WS_THICKFRAME" not in dialog.style:
            dialog.style += " | WS_THICKFRAME"

    def read_control(self, line, text):
        match = re.fullmatch(r"CONTROL (.*?)(?: ANCHOR (\d+)(?: SHARE (\d+) (\d+))?)?", text)
        parts = split_at_commas(match[1])
        if len(parts) not in (8, 9):
            raise Mistake(line, 'write CONTROL "text", KEY, "class", styles, x, y, width, height[, extended styles]')
        caption, named, window_class, style, *rest = parts
        for string in (caption, window_class):
            if not re.fullmatch(STRING, string):
                raise Mistake(line, f"{string} stands where a text in quotes is expected")
        for number in rest[:4]:
            if not re.fullmatch(r"-?\d+", number):
                raise Mistake(line, f"{number} stands where a number is expected")
        key, place = split_named(line, named)
        shares = (int(match[3]), int(match[4])) if match[3] else (100, 100)
        return Control(line, caption, key, place, window_class, style, tuple(map(int, rest[:4])),
                       rest[4] if len(rest) == 5 else "", int(match[2]) if match[2] else -1, shares)

    def placed_control(self, item):
        key, place = split_named(item.line, item.named)
        return Control(item.line, item.text, key, place, f'"{item.kind.window_class}"', item.style(), item.rect,
                       item.kind.ex_style, *item.anchor)


def give_ids(dialog):
    """OK, Cancel and HELP have the first places of the key list; every other key follows the one written before it.
    A stated id comes first, and controls without a key follow all that have one."""
    taken = {control.place for control in dialog.controls if control.place}
    at_start = {"ok": 0, "cancel": 1, "help": 2}
    first = [control for control in dialog.controls if not control.place and control.key.lower() in at_start]
    place = FIRST_KEY_ID
    for control in sorted(first, key=lambda control: at_start[control.key.lower()]):
        while place in taken:
            place += 1
        control.place = place
        taken.add(place)
    last = [control for control in dialog.controls if not control.key]
    for control in [control for control in dialog.controls if control.key] + last:
        if not control.place:
            while place in taken:
                place += 1
            control.place = place
            taken.add(place)
        if control.key and control not in first:
            place = control.place + 1


def check_keys(dialog, end):
    keys, ids = {}, {}
    for control in dialog.controls:
        key = control.key.lower()
        if key in keys:
            raise Mistake(control.line, f"the key {control.key} stands in line {keys[key]} already")
        if control.place in ids:
            raise Mistake(control.line, f"the id {control.place} has been given in line {ids[control.place]} already")
        if key:
            keys[key] = control.line
        ids[control.place] = control.line
        if key and not FIRST_KEY_ID <= control.place <= LAST_KEY_ID:
            raise Mistake(control.line, f"the key {control.key} would get the id {control.place}; "
                          f"keys have {FIRST_KEY_ID} to {LAST_KEY_ID}")
    if len(dialog.key_list()) > LONGEST_KEY_LIST:
        raise Mistake(end, f"the key list has {len(dialog.key_list())} characters; {LONGEST_KEY_LIST} is the most")
