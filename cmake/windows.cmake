# What a Windows build puts beside its programs: the compiler's runtime DLLs
# and, with the editor, Qt's DLLs, the plugins it loads and Qt's licence texts.
# They are copied into the build's bin/ as the programs are built, so that
# folder runs as it stands, and installed beside the programs, so every
# package carries them. Qt stays a set of replaceable DLLs, as its licence asks.

set(kolta_mingw_dlls)
if(MINGW)
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
                    OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    file(REAL_PATH "${path}" path)
    list(APPEND kolta_mingw_dlls ${path})
  endforeach()
endif()
set(kolta_qt_dlls)

# The plugin folders and the Qt plugins in each. The offscreen platform runs
# the editor without a screen, as the installer's test does. The pictures are
# PNG, which Qt reads itself, so no image plugin goes along.
set(kolta_qt_plugin_folders)
if(KOLTA_BUILD_GUI)
  foreach(target Qt6::Core Qt6::Gui Qt6::Widgets)
    list(APPEND kolta_qt_dlls $<TARGET_FILE:${target}>)
  endforeach()
  set(kolta_qt_plugins_platforms Qt6::QWindowsIntegrationPlugin Qt6::QOffscreenIntegrationPlugin)
  set(kolta_qt_plugins_styles Qt6::QWindowsVistaStylePlugin)
  set(kolta_qt_plugin_folders platforms styles)
  # The Qt that tools/windows_qt.sh builds carries its licence texts and
  # where its source comes from.
  if(IS_DIRECTORY ${QT6_INSTALL_PREFIX}/licenses)
    install(DIRECTORY ${QT6_INSTALL_PREFIX}/licenses/ DESTINATION licenses/qt)
  endif()
endif()

set(stamp ${CMAKE_CURRENT_BINARY_DIR}/windows_runtime.stamp)
set(all_files ${kolta_mingw_dlls} ${kolta_qt_dlls})
# Debian ships the compiler's runtime DLLs with their symbols (libstdc++ alone
# is 24 MB, 2 MB without): they are stripped on the way, as Qt's already are.
set(copies)
foreach(dll ${kolta_mingw_dlls})
  get_filename_component(name ${dll} NAME)
  list(APPEND copies COMMAND ${CMAKE_STRIP} --strip-unneeded -o ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name} ${dll})
  install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name} DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()
if(kolta_qt_dlls)
  list(APPEND copies COMMAND ${CMAKE_COMMAND} -E copy_if_different ${kolta_qt_dlls} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  install(FILES ${kolta_qt_dlls} DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
foreach(folder ${kolta_qt_plugin_folders})
  set(files)
  foreach(plugin ${kolta_qt_plugins_${folder}})
    list(APPEND files $<TARGET_FILE:${plugin}>)
  endforeach()
  list(APPEND all_files ${files})
  list(APPEND copies
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${folder}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${files} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${folder})
  install(FILES ${files} DESTINATION ${CMAKE_INSTALL_BINDIR}/${folder})
endforeach()
add_custom_command(OUTPUT ${stamp}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
  ${copies}
  COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
  DEPENDS ${all_files}
  COMMENT "Copying the DLLs the programs need into bin/")
add_custom_target(windows_runtime ALL DEPENDS ${stamp})

# A cross build runs its programs under Wine. Those in bin/ find their DLLs
# beside them; the tests find them, and Qt's test library, through Wine's
# PATH, which this wrapper sets.
if(CMAKE_CROSSCOMPILING AND CMAKE_CROSSCOMPILING_EMULATOR)
  set(dll_folders)
  foreach(dll ${kolta_mingw_dlls})
    get_filename_component(folder ${dll} DIRECTORY)
    list(APPEND dll_folders ${folder})
  endforeach()
  if(KOLTA_BUILD_GUI)
    list(APPEND dll_folders ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})
  endif()
  list(REMOVE_DUPLICATES dll_folders)
  list(TRANSFORM dll_folders PREPEND "Z:")
  string(REPLACE "/" "\\" wine_path "${dll_folders}")
  set(wrapper ${CMAKE_BINARY_DIR}/wine-run.sh)
  file(WRITE ${wrapper} "#!/bin/sh\n# Runs a program of this build under Wine, with the DLLs it needs on its PATH.\n"
                        "WINEPATH='${wine_path}'\"\${WINEPATH:+;\$WINEPATH}\" exec '${CMAKE_CROSSCOMPILING_EMULATOR}' \"\$@\"\n")
  file(CHMOD ${wrapper} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${wrapper})
endif()
