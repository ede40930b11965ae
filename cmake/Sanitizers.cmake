# VAPP_SANITIZE instruments everything that is compiled here, so that mixed objects never link together.
if(VAPP_SANITIZE)
  add_compile_options(-fsanitize=${VAPP_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${VAPP_SANITIZE})
endif()
# The standard library's own assertions see what no sanitizer does: one sign behind a view that has a NUL there.
if(VAPP_SANITIZE OR VAPP_CHECKED)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
# The compiler for Windows has no sanitizers: its checked builds have guarded stack frames.
if(VAPP_CHECKED)
  add_compile_options(-fstack-protector-strong)
  add_link_options(-fstack-protector-strong)
endif()
