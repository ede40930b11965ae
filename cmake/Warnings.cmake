# One set of warnings for every target of ours, always errors.
#
# g++ 12 sees an impossible overlap in `"literal" + std::string` once it has inlined it (its bug 105651); the
# warning is of no use in optimised builds until that compiler is gone.
function(vapp_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2 -Werror
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>,$<NOT:$<CONFIG:Debug>>>:-Wno-restrict>)
endfunction()
