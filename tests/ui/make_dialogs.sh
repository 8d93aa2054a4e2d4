#!/bin/bash
# What is made of a dialog's file: places of keys and controls, and a line that tells each mistake.
. "$(dirname "${BASH_SOURCE[0]}")/../support/work.sh"
failed=0

# same NAME: the text read is the file $work/NAME.wanted's.
same() {
    diff -u "$work/$1.wanted" - || { echo "differs: $1"; failed=1; }
}

# complains TEXT: of the file that is read a complaint begins with that text.
complains() {
    cat >"$work/WRONG.dlg"
    local told
    told=$(tools/dialogs/make-dialogs.py "$work/made" "$work/WRONG.dlg" 2>&1) && { echo "took: $1"; failed=1; }
    [[ $told == "$work/WRONG.dlg:$1"* ]] || { printf 'wanted %s\ngot %s\n' "$1" "$told"; failed=1; }
}

# A list with columns grows, what is below it follows; a stated id is kept and the next key goes on from it.
cat >"$work/ROWS.dlg" <<'EOF'
2000 DIALOGEX 200
CAPTION "Rows // and ""quotes"""
LABELS 40
BEGIN
    row label A@120 "&A, b | c:" | edit B
    row table LST x50  // a comment
    frame FRAME "&Mode"
        row radio ONE "&One" | radio TWO "&Two"
    end
    row space | button GO "&Go" default | cancel
END
EOF
cat >"$work/template.wanted" <<'EOF'
IDD_ROWS DIALOGEX 0, 0, 200, 144
STYLE DS_SHELLFONT | DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME
CAPTION "Rows // and ""quotes"""
FONT 8, "MS Shell Dlg", 400, 0, 1
BEGIN
    CONTROL "&A, b | c:", 120, "Static", SS_LEFT | WS_GROUP, 7, 9, 40, 8  // A
    CONTROL "", 121, "Edit", ES_LEFT | ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 50, 7, 143, 14  // B
    CONTROL "", 122, "SysListView32", LVS_REPORT | LVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP, 7, 26, 186, 50  // LST
    CONTROL "&Mode", 123, "Button", BS_GROUPBOX | WS_CLIPSIBLINGS, 7, 83, 186, 30  // FRAME
    CONTROL "&One", 124, "Button", BS_AUTORADIOBUTTON | WS_TABSTOP | WS_GROUP, 15, 96, 83, 10  // ONE
    CONTROL "&Two", 125, "Button", BS_AUTORADIOBUTTON, 102, 96, 83, 10  // TWO
    CONTROL "&Go", 126, "Button", BS_DEFPUSHBUTTON | WS_TABSTOP | WS_GROUP, 79, 123, 60, 14  // GO
    CONTROL "Cancel", 2, "Button", BS_PUSHBUTTON | WS_TABSTOP, 143, 123, 50, 14  // Cancel
END

IDD_ROWS WEX_ANCHORS
BEGIN
    121, 25, 100, 100,
    122, 63, 100, 100,
    123, 64, 100, 100,
    124, 39, 100, 100,
    125, 64, 100, 100,
    126, 75, 100, 100,
    2, 75, 100, 100
END
EOF
tools/dialogs/make-dialogs.py "$work/made" "$work/ROWS.dlg"
sed 1d "$work/made/ROWS.rc" | same template
echo '    IDD_ROWS "ROWS,Cancel,,,,,,,,,,A,B,LST,FRAME,ONE,TWO,GO"' >"$work/keys.wanted"
grep ROWS "$work/made/keylists.rc" | same keys

# What grows one above the other has like shares of the height; a control written by itself states its own.
cat >"$work/SHARES.dlg" <<'EOF'
2001 DIALOGEX 200
BEGIN
    row list A
    row text B "b"
    columns
        row list C
        row list D
    next
        row tree E
    end
END
EOF
cat >"$work/OWN.dlg" <<'EOF'
2002 DIALOGEX 0, 0, 200, 100
BEGIN
    CONTROL "", A, "ListBox", LBS_NOTIFY, 7, 7, 186, 40 ANCHOR 63 SHARE 0 40
END
EOF
cat >"$work/anchors.wanted" <<'EOF'
    110, 63, 100, 50,
    111, 64, 50, 50,
    112, 39, 50, 75,
    113, 39, 75, 100,
    114, 64, 50, 100
    110, 63, 0, 40
EOF
tools/dialogs/make-dialogs.py "$work/made" "$work"/{SHARES,OWN}.dlg
grep -hE '^    [0-9]+, ' "$work"/made/{SHARES,OWN}.rc | same anchors

complains "1: the id 1499 isn't between 1500 and 3999" <<<'1499 DIALOGEX 200'
complains "2: expected STYLE" <<<$'2000 DIALOGEX 200\nCAPTION Hello'
complains "3: pushbutton is no kind of control" <<<$'2000 DIALOGEX 200\nBEGIN\nrow pushbutton A "&A"\nEND'
complains "3: the row is 50 units too wide" <<<$'2000 DIALOGEX 200\nBEGIN\nrow edit A 236\nEND'
complains "4: the key a stands in line 3 already" <<<$'2000 DIALOGEX 200\nBEGIN\nrow edit A\nrow edit a\nEND'
complains "4: the id 120 has been given in line 3" <<<$'2000 DIALOGEX 200\nBEGIN\nrow edit A@120\nrow edit B@120\nEND'
complains "3: the key A would get the id 400" <<<$'2000 DIALOGEX 200\nBEGIN\nrow edit A@400\nEND'
complains "3: write CONTROL" <<<$'2000 DIALOGEX 0, 0, 200, 50\nBEGIN\nCONTROL "", A, "Edit", 0, 7, 7, 50\nEND'
complains "3: A;B is neither KEY" <<<$'2000 DIALOGEX 200\nBEGIN\nrow edit A;B\nEND'
complains "5: a frame or columns lack their end" <<<$'2000 DIALOGEX 200\nBEGIN\nframe A "A"\nrow edit B\nEND'
complains "2: the file ends before END" <<<$'2000 DIALOGEX 200\nBEGIN'
exit $failed
