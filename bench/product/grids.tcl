# Tk's table does what grid_bench and grids.lsp do with our grid: filled, shown, scrolled by pages, changed while it is seen.
package require Tk
package require Tktable
proc bgerror {text} {puts stderr $text; exit 1}
wm geometry . 900x600

proc ms {script} {set begun [clock microseconds]; uplevel 1 $script; update; expr {([clock microseconds] - $begun) / 1000.0}}
proc row {key times} {
    set sorted [lsort -real $times]
    puts [format "%s  min %.4f  med %.4f ms  n=%d" $key [lindex $sorted 0] [lindex $sorted [expr {[llength $sorted] / 2}]] [llength $sorted]]
}
# The milliseconds of each of 60 pages of a table of so many rows.
proc pages {rows} {
    set times {}
    for {set i 0} {$i < 60} {incr i} {lappend times [ms {.t yview [expr {$i * $rows / 62}]}]}
    return $times
}

set fill {}; set show {}
foreach round {1 2 3} {
    destroy .t
    array unset data
    lappend fill [ms {for {set r 0} {$r < 100000} {incr r} {for {set c 0} {$c < 10} {incr c} {set data($r,$c) "cell $r $c"}}}]
    lappend show [ms {table .t -rows 100001 -cols 10 -variable data -titlerows 1; pack .t -fill both -expand 1}]
}
row tk.grid_100000_fill $fill
row tk.grid_100000_show $show
row tk.grid_page_of_100000 [pages 100000]
set paste {}
foreach round {1 2 3} {
    lappend paste [ms {for {set r 0} {$r < 10000} {incr r} {for {set c 0} {$c < 5} {incr c} {set data($r,$c) "new $r $c $round"}}}]
}
row tk.grid_10000x5_live $paste
destroy .t

proc value {r c} {return "$r,$c"}
table .t -rows 1000001 -cols 20 -usecommand 1 -command {value %r %c} -cache 0 -titlerows 1
pack .t -fill both -expand 1
update
row tk.grid_page_of_1000000 [pages 1000000]
exit
