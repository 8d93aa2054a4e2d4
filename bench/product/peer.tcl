# Tk's tree does what trees.lsp does with ours: the children of one item are made while it is seen, opened, sorted, closed.
package require Tk 8.6
wm withdraw .

proc now {} {expr {[clock microseconds] / 1000.0}}
# Until all is drawn, at the X server too.
proc settle {} {update; winfo pointerxy .}
proc ms {script} {set begun [now]; uplevel 1 $script; settle; expr {[now] - $begun}}

proc row {key times} {
    set sorted [lsort -real $times]
    puts [format "%s  min %.4f  med %.4f ms  n=%d" $key [lindex $sorted 0] [lindex $sorted [expr {[llength $sorted] / 2}]] [llength $sorted]]
}

proc show {} {
    toplevel .t
    ttk::treeview .t.tree -height 20 -show tree
    pack .t.tree -fill both -expand 1
    tkwait visibility .t.tree
    settle
    .t.tree insert {} end -id all -text All -open 1
}

proc fill {n} {for {set i 0} {$i < $n} {incr i} {.t.tree insert all end -text "Part [expr {$i * 7919 % 100003}]"}}

proc sortChildren {} {
    set pairs {}
    foreach item [.t.tree children all] {lappend pairs [list [.t.tree item $item -text] $item]}
    .t.tree children all [lmap pair [lsort -index 0 $pairs] {lindex $pair 1}]
}

foreach {n repetitions} {10000 7 100000 3} {
    set live {}; set sort {}; set open {}; set close {}
    for {set i 0} {$i < $repetitions} {incr i} {
        show
        lappend live [ms {fill $n}]
        lappend sort [ms sortChildren]
        .t.tree item all -open 0
        settle
        lappend open [ms {.t.tree item all -open 1}]
        lappend close [ms {destroy .t}]
    }
    row tk.tree_${n}_live $live
    row tk.tree_sort_$n $sort
    row tk.tree_open_$n $open
    row tk.tree_${n}_close $close
}
exit
