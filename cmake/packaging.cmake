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
  if(WIN32)
    set(CPACK_GENERATOR ZIP NSIS)
  else()
    set(CPACK_GENERATOR DEB)
  endif()
endif()

# For Windows, a portable folder in a zip (unzip, double-click
# kolta-editor.exe) and a 64-bit installer with a Start-menu entry and an
# uninstaller in Add/Remove Programs. NSIS makes a 32-bit installer unless
# told otherwise, and a 32-bit one cannot install into Program Files.
# The installer is kolta-editor-VERSION-win64-setup.exe, beside the zip.
if(WIN32)
  set(CPACK_SYSTEM_NAME win64)
  set(CPACK_PACKAGE_EXECUTABLES kolta-editor "KOLTA editor")
  set(CPACK_NSIS_EXECUTABLES_DIRECTORY .)
  set(CPACK_NSIS_DEFINES "Target amd64-unicode")
  set(CPACK_NSIS_INSTALL_ROOT "$PROGRAMFILES64")
  set(CPACK_NSIS_PACKAGE_NAME "KOLTA editor")
  set(CPACK_NSIS_DISPLAY_NAME "KOLTA editor")
  set(CPACK_NSIS_INSTALLED_ICON_NAME kolta-editor.exe)
  set(CPACK_NSIS_MUI_ICON ${PROJECT_SOURCE_DIR}/assets/icons/kolta-editor.ico)
  set(CPACK_NSIS_MUI_UNIICON ${PROJECT_SOURCE_DIR}/assets/icons/kolta-editor.ico)
  set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
  set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/package_names.cmake)
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
