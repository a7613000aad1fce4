# Qt's and GoogleTest's headers are most of what a window's or a test's source
# costs to compile. Each target that uses them compiles them once, as a
# precompiled header; -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON builds without, to
# check that every source includes what it uses.

set(KOLTA_QT_HEADERS
  <QAction> <QApplication> <QComboBox> <QDialog> <QDialogButtonBox> <QDir> <QFile> <QFileInfo>
  <QKeyEvent> <QLabel> <QLineEdit> <QListWidget> <QMainWindow> <QMenu> <QMenuBar> <QPushButton>
  <QString> <QTableWidget> <QTimer> <QTreeWidget> <QVBoxLayout> <QWidget>
  <memory> <string> <vector>)

set(KOLTA_TEST_HEADERS
  <gmock/gmock.h> <gtest/gtest.h>
  <algorithm> <filesystem> <functional> <memory> <optional> <string> <vector>)

# The windows library.
function(kolta_precompile_qt_headers target)
  target_precompile_headers(${target} PRIVATE ${KOLTA_QT_HEADERS})
endfunction()

# Test programs over the core and the tool share one precompiled header.
function(kolta_precompile_test_headers target)
  get_property(first GLOBAL PROPERTY KOLTA_TEST_PCH_TARGET)
  if(first)
    target_precompile_headers(${target} REUSE_FROM ${first})
  else()
    target_precompile_headers(${target} PRIVATE ${KOLTA_TEST_HEADERS})
    set_property(GLOBAL PROPERTY KOLTA_TEST_PCH_TARGET ${target})
  endif()
endfunction()

# The window tests: Qt, its test library and GoogleTest.
function(kolta_precompile_window_test_headers target)
  target_precompile_headers(${target} PRIVATE ${KOLTA_QT_HEADERS} <QSignalSpy> <QTest> ${KOLTA_TEST_HEADERS})
endfunction()
