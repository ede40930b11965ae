# vapp_unite(TARGET): where VAPP_UNITE asks for it, compiles the target's files by the sixteen. Each of them alone would
# read the same headers once more, and that is most of what compiling costs (docs/decisions/0067).
function(vapp_unite target)
  if(NOT VAPP_UNITE)
    return()
  endif()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
  # What stands in an unnamed namespace is no header's, although it comes in by an include here; and what a file calls
  # its own must not be a matter of its neighbours.
  target_compile_options(${target} PRIVATE -Wno-subobject-linkage -Wno-shadow -Wshadow=local)
endfunction()
