# VAPP_SANITIZE instruments everything that is compiled here, so that mixed objects never link together.
if(VAPP_SANITIZE)
  add_compile_options(-fsanitize=${VAPP_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${VAPP_SANITIZE})
endif()
