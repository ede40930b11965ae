# A schematic as a sheet onto which cells are placed by the menu: "Place cells here" on a schematic, then "Place" on a symbol.
# An instance is one line at the end of the schematic's file; the navigator sees that the file has changed and draws it anew.

namespace eval place {
    variable sheet {}
    variable pitch 200

    # The folder of a library.
    proc folder {design library} {
        set entry [lsearch -inline -index 0 -exact [database all_libs] $design]
        lindex [lsearch -inline -index 0 -exact [lrange $entry 1 end] $library] 1
    }

    # Style focused: the cell view that has the focus becomes the sheet.
    proc here {design args} {
        variable sheet
        if {[llength $args] != 3} { error "no cell has the focus" }
        lassign $args library cell view
        set file [file join [folder $design $library] $cell.sch]
        if {$view ne "schematic" || ![file isfile $file]} { error "cells are placed onto schematics" }
        set sheet [dict create file $file master $args]
    }

    proc hasSheet {} {
        variable sheet
        expr {$sheet ne ""}
    }

    # How many cells the sheet has already, so that the next one stands beside them.
    proc count {file} {
        set channel [open $file]
        fconfigure $channel -encoding utf-8
        set count [regexp -all -line {^C } [read $channel]]
        close $channel
        return $count
    }

    # Style master: the cell that is placed, as "-mastercell CELL -masterdesign LIBRARY -add".
    proc add {args} {
        variable sheet
        variable pitch
        set master [lrange $args 0 end-1]
        set file [dict get $sheet file]
        set number [count $file]
        set reference [dict get $master -masterdesign]/[dict get $master -mastercell].sym
        set channel [open $file a]
        fconfigure $channel -encoding utf-8
        puts $channel "C {[string map {\\ \\\\ \{ \\\{ \} \\\}} $reference]}\
            [expr {$number % 4 * $pitch}] [expr {$number / 4 * $pitch}] 0 0 {name=x[incr number]}"
        close $channel
        database rescan
        database select {*}[dict get $sheet master]
    }
}

usermenu add cells "Place cells here" place::here -style focused -submenu "&Place" \
    -enabled {expr {[lindex [dict get [user state] cell] 2] eq "schematic"}}
usermenu add cells "Place" place::add -style master -submenu "&Place" \
    -enabled {expr {[place::hasSheet] && [lindex [dict get [user state] cell] 2] eq "symbol"}}
