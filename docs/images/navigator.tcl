# The picture in README.md: tools/demo --size 980x760 --script docs/images/navigator.tcl \
#                                     --screenshot docs/images/navigator.png
navigator onidle {
    navigator onidle {}
    user click library logic
    user settle
    user type {database cells -lcv -library sample -libraries top}
    user type "foreach library {logic basic} {\n    puts \[database cells -lcv -library sample -libraries \$library -count]\n}"
    user type {database select logic dff schematic}
    user settle
    # As picking "Select Hierarchy" from the menu sends it.
    logaction {cell selecthierarchy sample logic dff schematic}
}
