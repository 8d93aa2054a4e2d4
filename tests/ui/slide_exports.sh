#!/bin/bash
# Other programs show exported slides as they are: ImageMagick the bitmap, libwmf the metafile.
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"
WEX_EXPORTS="Z:$work" wine64 build/windows/testbin/slides_ui_test.exe --gtest_filter='SlideExport.As*' >"$work/log" ||
    { cat "$work/log"; exit 1; }

status=0
# expect WHAT WANTED GOT
expect() {
    [ "$2" = "$3" ] || { echo "$1: wanted $2, got $3"; status=1; }
}

# colors PICTURE X,Y…: the size and the colours at those points
colors() {
    local format='%w %h' point picture=$1
    shift
    for point in "$@"; do format+=" %[hex:p{$point}]"; done
    convert "$picture" -alpha off -depth 8 -format "$format" info:
}

expect 'the bitmap of 60 x 60' '60 60 000000 FF0000 000000' "$(colors "$work/slide.BMP" 1,1 30,34 58,58)"
# libwmf shows what is drawn, without the room around it. 100 units at 96 an inch are 75 of its points.
wmf2gd -t png -o "$work/slide.png" "$work/slide.wmf" >/dev/null 2>&1
expect 'the metafile of 100 x 50' '75 37 FF0000 FFFFFF FFFFFF' "$(colors "$work/slide.png" 5,30 60,30 20,5)"
wmf2svg -o "$work/slide.svg" "$work/slide.wmf" >/dev/null 2>&1
expect 'its shapes' 'polygon red, line lime, line black' \
    "$(tr '\n' ' ' <"$work/slide.svg" | grep -oE '<(polygon|line) [^>]*stroke:[a-z]+' | sed -E 's/<([a-z]+) .*stroke:/\1 /' |
        paste -sd, | sed 's/,/, /g')"
exit $status
