/// @file
/// The design that `drop-target` shows, as the lines of Tcl that the navigator asks: a few cells, or what is
/// in a folder.
#pragma once

/// Answers `database`; `place_all` places each of a list of cells by `place`.
inline constexpr char csDesign[] = R"tcl(
    set design chip
    set libraries {{logic /libs/logic} {{my io} /libs/io}}
    set cells {{logic inv symbol} {logic nand2 symbol} {logic nor2 symbol} {{my io} {pad in} layout}}

    # The folders in a folder are its libraries; the files inv.sym and inv.sch are two views of the cell inv.
    proc open_design folder {
        set ::design [file tail [file normalize $folder]]
        set ::libraries {}
        set ::cells {}
        foreach library [lsort [glob -nocomplain -tails -types d -directory $folder *]] {
            set path [file join $folder $library]
            lappend ::libraries [list $library $path]
            foreach {ending view} {.sym symbol .sch schematic} {
                foreach file [glob -nocomplain -tails -directory $path *$ending] {
                    lappend ::cells [list $library [file rootname $file] $view]
                }
            }
        }
    }
    proc cells_of options {
        set at [lsearch -exact $options -libraries]
        if {$at < 0} { return $::cells }
        set libraries [lindex $options $at+1]
        set found {}
        foreach cell $::cells { if {[lindex $cell 0] in $libraries} { lappend found $cell } }
        return $found
    }
    proc database {what args} {
        switch $what {
            all_libs  { return [list [list $::design {*}$::libraries]] }
            top_level { return [lindex $::libraries 0 0] }
            cells     { set cells [cells_of $args]
                        return [expr {"-count" in $args ? [llength $cells] : $cells}] }
            default   { return 0 }
        }
    }
    proc librarynavigator args {}
    proc logaction line { eval $line }
    proc place_all {design -lcvs cells} { foreach cell $cells { place $design {*}$cell } }
)tcl";
