# What `cmake --install` lays out, by GNU directories: programs in bin, resources that nobody writes to in
# share/gatewise, desktop files where desktops look for them.
include(GNUInstallDirs)

# The date of the release is that of the commit that is packed, so that two runs give the same bytes.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  string(TIMESTAMP GATEWISE_RELEASE_DATE "%Y-%m-%d" UTC)
else()
  execute_process(COMMAND git log -1 --format=%cs WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
                  OUTPUT_VARIABLE GATEWISE_RELEASE_DATE OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
if(NOT GATEWISE_RELEASE_DATE)
  string(TIMESTAMP GATEWISE_RELEASE_DATE "%Y-%m-%d" UTC)
endif()

set(GATEWISE_APP_ID org.gatewise.terminal)
# Shops show pictures from the web alone. Until the project has an address there the metainfo names none.
set(GATEWISE_HOMEPAGE "" CACHE STRING "The project's address on the web, without a slash at its end")
set(GATEWISE_ON_THE_WEB "")
if(GATEWISE_HOMEPAGE)
  file(READ "${PROJECT_SOURCE_DIR}/packaging/linux/on-the-web.xml.in" GATEWISE_ON_THE_WEB)
  string(CONFIGURE "${GATEWISE_ON_THE_WEB}" GATEWISE_ON_THE_WEB @ONLY)
endif()
set(packaging "${PROJECT_SOURCE_DIR}/packaging/linux")

foreach(program gtdrive gt1)
  install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()
if(GATEWISE_WINDOW)
  install(TARGETS gatewise RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

if(GATEWISE_DATA)
  install(DIRECTORY "${GATEWISE_PROGRAM_DIR}/" DESTINATION "${CMAKE_INSTALL_DATADIR}/gatewise" COMPONENT resources
          FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ
          DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE
          PATTERN "gatewise" EXCLUDE PATTERN "gatewise.exe" EXCLUDE PATTERN "*.tmp" EXCLUDE)
endif()

if(UNIX)
  foreach(page gatewise gtdrive gt1)
    configure_file("${packaging}/${page}.1.in" "${CMAKE_CURRENT_BINARY_DIR}/man/${page}.1" @ONLY)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/man/${page}.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
  endforeach()
  configure_file("${packaging}/${GATEWISE_APP_ID}.metainfo.xml.in"
                 "${CMAKE_CURRENT_BINARY_DIR}/${GATEWISE_APP_ID}.metainfo.xml" @ONLY)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${GATEWISE_APP_ID}.metainfo.xml"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
  install(FILES "${packaging}/${GATEWISE_APP_ID}.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")

  # The icon as it is drawn, and in the sizes of the icon theme.
  set(icons "${CMAKE_CURRENT_BINARY_DIR}/icons")
  set(icon_svg "${PROJECT_SOURCE_DIR}/assets/skin/app_icon.svg")
  install(FILES "${icon_svg}" RENAME "${GATEWISE_APP_ID}.svg"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
  find_program(GATEWISE_RSVG rsvg-convert)
  if(GATEWISE_RSVG)
    foreach(size 16 22 24 32 48 64 128 256 512)
      set(icon "${icons}/${size}.png")
      add_custom_command(OUTPUT "${icon}" COMMAND ${CMAKE_COMMAND} -E make_directory "${icons}"
                         COMMAND "${GATEWISE_RSVG}" -w ${size} -h ${size} -o "${icon}" "${icon_svg}"
                         DEPENDS "${icon_svg}" VERBATIM)
      list(APPEND icon_files "${icon}")
      install(FILES "${icon}" RENAME "${GATEWISE_APP_ID}.png"
              DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps")
    endforeach()
    add_custom_target(icons ALL DEPENDS ${icon_files})
  endif()
endif()
