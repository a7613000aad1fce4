# `cpack` (or `cmake --build build --target package`) makes a Debian package
# of what `cmake --install` puts in place.
set(CPACK_PACKAGE_NAME kolta-editor)
set(CPACK_PACKAGE_VENDOR "The kolta-editor developers")
set(CPACK_PACKAGE_CONTACT "The kolta-editor developers <kolta-editor@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Editor for the players and teams of a KOLTA cricket game")
set(CPACK_PACKAGE_DESCRIPTION
    "kolta-editor opens the players.dat and teams.dat of a KOLTA game and lets you change that world \
before you start a game: edit players and teams, move players between squads, create players. \
The command-line tool kolta-data checks, exports, imports and compares the same files.")
set(CPACK_PACKAGE_INSTALL_DIRECTORY kolta-editor)
set(CPACK_STRIP_FILES ON)
if(NOT CPACK_GENERATOR)
  set(CPACK_GENERATOR DEB)
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
# The libraries the programs link to become the package's dependencies.
find_program(KOLTA_DPKG_SHLIBDEPS dpkg-shlibdeps)
if(KOLTA_DPKG_SHLIBDEPS)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
else()
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6widgets6, libstdc++6")
endif()

include(CPack)
