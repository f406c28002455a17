# Copies FROM to TO unless TO is there.
if(NOT EXISTS "${TO}")
  configure_file("${FROM}" "${TO}" COPYONLY)
endif()
