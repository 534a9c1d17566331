# The Debian package: cpack makes it from what is installed.

# packages_of(<variable> <group>): a group of the list that scripts/setup.sh installs, with commas.
function(packages_of variable group)
  file(STRINGS ${PROJECT_SOURCE_DIR}/scripts/packages lines)
  set(is_group FALSE)
  foreach(line IN LISTS lines)
    if(line MATCHES "^\\[")
      string(COMPARE EQUAL ${line} "[${group}]" is_group)
    elseif(is_group AND line MATCHES "^[a-z0-9]")
      list(APPEND packages ${line})
    endif()
  endforeach()
  list(JOIN packages ", " joined)
  set(${variable} ${joined} PARENT_SCOPE)
endfunction()

# install_packed(<file> <folder> <name>): installs a text packed as small as it goes, with no time in it.
function(install_packed file folder name)
  add_custom_command(OUTPUT ${name} COMMAND gzip -9nc ${file} > ${name} DEPENDS ${file} VERBATIM)
  add_custom_target(orvane_${name} ALL DEPENDS ${name})
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name} DESTINATION ${folder})
endfunction()

set(maintainer "The Orvane developers <developers@orvane.org>")
set(documents ${CMAKE_INSTALL_DATADIR}/doc/orvane)
execute_process(COMMAND date -R -u -d ${release_date} OUTPUT_VARIABLE release_time OUTPUT_STRIP_TRAILING_WHITESPACE
  COMMAND_ERROR_IS_FATAL ANY)
configure_file(changelog.in changelog @ONLY)
configure_file(orvane.1.in orvane.1 @ONLY)
install_packed(${CMAKE_CURRENT_BINARY_DIR}/changelog ${documents} changelog.gz)
install_packed(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${documents} NEWS.gz)
install_packed(${CMAKE_CURRENT_BINARY_DIR}/orvane.1 ${CMAKE_INSTALL_MANDIR}/man1 orvane.1.gz)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${documents} RENAME copyright)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "show and record what lies under a document camera")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Orvane fills the screen with the live picture of a document camera or webcam,
large enough for a class to follow on an interactive whiteboard. It takes
photos (one, timed, in series), records movies with sound, looks through what
was taken, and hands it over to the whiteboard software.")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${maintainer})
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# The libraries are found in the program; the rest is what it finds by name when it runs.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
packages_of(CPACK_DEBIAN_PACKAGE_DEPENDS run)
packages_of(CPACK_DEBIAN_PACKAGE_RECOMMENDS recommended)
include(CPack)
