# One set of warnings for every target of ours, always errors.
function(vapp_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2 -Werror)
endfunction()
