# Commands of one's own in the menus of the navigator: one of each style, and one for each list.
#
#     navigator --scripts examples/scripts FOLDER
#
# or copied into the folder of scripts beside the settings; docs/navigator.md tells where that is. Each command says what it
# found in the console and in the log.

namespace eval example {
    variable said ""
    variable marked {}

    # What a command has to tell.
    proc say {sentence} {
        variable said $sentence
        puts $sentence
    }

    # Style command: nothing is appended.
    proc countListed {} {
        say "[dict get [user state] rows] cell views are listed."
    }

    # Style focused: the design and the cell view that has the focus, if one has it.
    proc where {design args} {
        if {[llength $args] != 3} { return [say "No cell has the focus."] }
        lassign $args library cell view
        foreach entry [database all_libs] {
            if {[lindex $entry 0] ne $design} continue
            foreach pair [lrange $entry 1 end] {
                if {[lindex $pair 0] eq $library} {
                    say "$library/$cell/$view of $design is in [lindex $pair 1]."
                }
            }
        }
    }

    # Style selected: the design, and all selected cell views as a list of lists.
    proc countSelected {design option views} {
        set cells {}
        foreach view $views { lappend cells [lrange $view 0 1] }
        say "[llength $views] cell views of [llength [lsort -unique $cells]] cells are selected."
    }

    # Style master: options that describe a cell to place.
    proc master {args} {
        # "-add" stands last and has no value.
        set options [lrange $args 0 end-1]
        say "The next cell to place is [dict get $options -mastercell] of [dict get $options -masterdesign]."
    }

    # Style cellview: the focused cell view, its cell first.
    proc otherViews {cell library view} {
        set others {}
        foreach triple [database cells -lcv -library [dict get [user state] design] -libraries [list $library]] {
            lassign $triple - aCell aView
            if {$aCell eq $cell && $aView ne $view} { lappend others $aView }
        }
        if {$others eq ""} { return [say "$cell of $library has no view beside $view."] }
        say "$cell of $library also has [join $others {, }]."
    }

    # Style cell: library and cell, whatever the view.
    proc note {library cell} {
        say "There is no note about $library/$cell."
    }

    # For libraries, style command: the design.
    proc sizeOfDesign {design} {
        set libraries [lsearch -inline -index 0 -exact [database all_libs] $design]
        set views [database cells -lcv -library $design -count]
        say "$design: $views views in [expr {[llength $libraries] - 1}] libraries"
    }

    # For libraries, style libraries: the design and, if some are selected, their names.
    proc sizeOfLibraries {design args} {
        if {$args eq ""} { return [say "No library is selected."] }
        set lines {}
        foreach library [dict get $args -libraries] {
            set views [database cells -lcv -library $design -libraries [list $library] -count]
            lappend lines "$library: $views views"
        }
        say [join $lines {, }]
    }

    # For a tab: its number, and 1 if the item became checked.
    proc mark {tab isChecked} {
        variable marked
        set marked [lsearch -all -inline -not -exact $marked $tab]
        if {$isChecked} { lappend marked $tab }
        say "Tab $tab is [expr {$isChecked ? {marked} : {not marked any more}}]."
    }

    # A tab whose menu is asked for is the current one.
    proc isMarked {} {
        variable marked
        expr {[dict get [user state] tab] in $marked}
    }
}

usermenu add cells "Count of cells"  example::countListed   -style command  -submenu "E&xamples"
usermenu add cells "Where is it?"    example::where         -style focused  -submenu "E&xamples"
usermenu add cells "Count selected"  example::countSelected -style selected -submenu "E&xamples"
usermenu separator cells -submenu "E&xamples"
usermenu add cells "As master"       example::master        -style master   -submenu "E&xamples"
usermenu add cells "Other views"     example::otherViews    -style cellview -submenu "E&xamples"
usermenu add cells "Notes..."        example::note          -style cell     -submenu "E&xamples"

usermenu add libraries "Size of design"    example::sizeOfDesign    -style command
usermenu add libraries "Size of libraries" example::sizeOfLibraries -style libraries \
    -enabled {expr {[dict get [user state] libraries] ne ""}}
usermenu add libraries "Names to clipboard" CopyNamestoClipboard    -style builtin

usermenu add tabs "Marked" example::mark -checked example::isMarked
