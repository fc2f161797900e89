include(${CMAKE_CURRENT_LIST_DIR}/unity.cmake)

# Half the time of a compilation goes into the headers of the toolkit: each library reads those that most of its files use
# once. Only these, since what is read in advance costs a little in every file. All files include what they use all the
# same, and compile without.
set(ZR3_CORE_HEADERS <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QString> <QStringList> <pugixml.hpp> <algorithm>
    <functional> <map> <memory> <optional> <string> <vector>)
set(ZR3_DESKTOP_HEADERS <QApplication> <QComboBox> <QDialog> <QLabel> <QLineEdit> <QMenu> <QPainter> <QPlainTextEdit>
    <QPushButton> <QScrollArea> <QTableView> <QTimer> <QVBoxLayout> ${ZR3_CORE_HEADERS})
function(zr3_precompile_headers target)
    if(ZR3_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} PRIVATE ${ARGN})
        target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
    endif()
endfunction()

# In the build of ./lint each file of the core stands by itself, so that it shows whether it includes what it uses.
function(zr3_library name kind)
    add_library(${name} STATIC)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PUBLIC zr3_options)
    zr3_harden(${name})
    if(ZR3_LINT AND kind STREQUAL CORE)
        return()
    endif()
    zr3_precompile_headers(${name} ${ZR3_${kind}_HEADERS})
    # When all folders have named their sources.
    cmake_language(EVAL CODE "cmake_language(DEFER DIRECTORY [[${CMAKE_SOURCE_DIR}]] CALL zr3_unite [[${name}]])")
endfunction()
